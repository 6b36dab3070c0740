// The table form: all state of a game, and the operations on it.
//
// Each group of operations stands in the file named above it.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/form.h"
#include "game/module1.h"

namespace thistle {

inline constexpr int kPieces = 60;
inline constexpr int kPiecesOfAKind = 20;  ///< images of one denomination, and so the most a pile shows
inline constexpr int kSquares = 6;
inline constexpr int kPiecesOnSquare = 5;
inline constexpr int kPayoutsOfSquare = 15;  ///< three times five £10 notes need no more
inline constexpr int kPayouts = kSquares * kPayoutsOfSquare;
inline constexpr int kDice = 3;
inline constexpr int kDieFrames = 24;
inline constexpr int kFramesOfGroup = 4;  ///< die frames from one uppermost face to the next

/// The denomination of a piece: 0 £10 note, 1 £5 note, 2 £1 coin.
constexpr int Denomination(int piece) { return piece / kPiecesOfAKind; }

class frmGame : public desktop::Form {
 public:
  explicit frmGame(Module1& module1);

  // --- turn_cycle.cpp
  /// Starts over with a fresh stake. During a throw, a settlement or an exchange, what is running is
  /// first brought to its end without waits, sounds or questions.
  void NewGame();
  // --- throw.cpp
  void RandomDice();
  /// Waits `howlong` seconds while events run. Nested waits end before outer ones. Returns at once
  /// for 0 or less.
  void FixedDelay(double howlong);

  // --- change.cpp
  /// Pieces in the piles with all exchanges under way brought to their end, as they would end without a further
  /// click. The same as MoneyCount while there is none.
  Counts MoneyAfterExchanges() const;

  // --- load.cpp
  void Form_Load() override;
  // --- events.cpp
  bool HoldsBack(const desktop::Element& element) const override;
  void MouseDown(desktop::Element& element, int Button, float X, float Y) override;
  void MouseMove(desktop::Element& element, int Button, float X, float Y) override;
  void MouseUp(desktop::Element& element, int Button, float X, float Y) override;
  void MouseLost(desktop::Element& element) override;
  void Click(desktop::Element& element) override;
  // --- table/stops.cpp
  std::vector<desktop::Stop> Stops() const override;
  std::vector<desktop::Deed> DeedsAnywhere() const override;
  // --- sentences.cpp
  std::vector<desktop::Sentence> Sentences() const override;

  // --- State. Handlers alone write it.

  std::array<int, kDice> DiceSquare{};  ///< mat square that each die shows
  std::array<int, kDice> DiceFrame{};   ///< 0 to 23; a multiple of 4 when the die is at rest
  std::array<int, kDice> DiceSpin{};    ///< frames that each die turns in this throw, 4 or 8
  /// Mat square of the face that lies uppermost in frame 4g, by g.
  static constexpr std::array<int, kDieFrames / kFramesOfGroup> FaceSquare{0, 3, 4, 5, 2, 1};

  float GrabX = 0;  ///< twips; where in the piece the pointer was at the press
  float GrabY = 0;  ///< twips

  std::array<float, kPieces> HomeTop{};   ///< pixels; the piece's place in its pile
  std::array<float, kPieces> HomeLeft{};  ///< pixels

  std::array<int, kSquares> BetValue{};  ///< pounds staked on each square, 0 to 50
  /// Column 0: pieces on the square, 0 to 5. Columns 1 to 5: their numbers, in the order of dropping.
  std::array<std::array<int, kPiecesOnSquare + 1>, kSquares> BetPieces{};

  bool DropAllowed = false;  ///< the last FindSquare found a square that has a free place

  std::optional<int> Refused;           ///< the full square that the last piece to be let go was sent home from
  int Refusals = 0;                     ///< in all
  std::optional<int> DenominationLaid;  ///< of the last piece that came to lie on the mat
  bool Throwing = false;                ///< the dice are in the cup, or roll

  /// Pieces of each denomination remembered from the last run, and their value in pounds.
  std::array<std::int64_t, kDenominations + 1> Stash{};

  // --- Elements, in their order from back to front.

  desktop::Element Shape1;
  std::array<desktop::Element, kDice> Dice;
  desktop::Element CupThrow, CupStanding, CupLeft, CupRight, CupCentre;
  std::array<desktop::Element, kSquares> Image1;
  std::array<desktop::Element, kSquares> Label1;  ///< the stake on a square, later its outcome
  std::array<desktop::Element, 5> Label2;
  std::array<desktop::Element, kDenominations + 1> Label3;  ///< pounds in each pile, and in all
  std::array<desktop::Element, kPieces> Money;
  std::array<desktop::Element, 2> Instruction;
  std::array<desktop::Element, kPayouts> Payout;
  desktop::Element Command1;  ///< "Get Change"

 private:
  // --- load.cpp
  void ReadStash();

  // --- turn_cycle.cpp
  /// Runs a handler that waits, perhaps inside another one. When the last of them ends, a New Game that came in the
  /// meantime starts. They are counted here alone: a handler that was left without being counted off would hold back
  /// every New Game from then on. No destructor does it, as none may start a game while the end of the process
  /// unwinds the stack.
  void RunToItsEnd(void (frmGame::*handler)());
  /// A New Game waits for what is running, which goes on to its end without waits or sounds.
  bool Hurrying() const { return newGameWaits_; }
  void StartNewGame();
  void SendAllHome();
  void FreshStake();
  void SetUpTurn();
  void NextTurn();
  void ClearBets();
  void OfferFreshStake();
  void CupStanding_Click();

  // --- throw.cpp
  void ThrowDice();
  int DrawSpins();
  void ShakeCup();
  void RollDice(int LastTick);
  void TurnDie(int die);
  void ShowDie(int die);
  void Play(std::string_view sound) const;

  // --- settlement.cpp
  void PayBets();
  void SettleSquare(int square);
  void LoseStake(int square);
  void PayWinnings(int square, int matches);
  void LayOut(int& slot, const desktop::Picture& piece, int count);
  void BringStakesHome();
  void BankPayouts();

  // --- change.cpp
  /// A click on "Get Change" on its way.
  struct Exchanging {
    std::size_t breaking = 0;  ///< which of its two exchanges it is at
    int owed = 0;              ///< pieces that this one has yet to deal out
  };
  void Command1_Click();
  void Exchange(int from, int to, std::size_t mine);
  void ShowChange();

  // --- money_display.cpp
  void ShowMoney();
  void StackMoney();
  void ShowTotals();
  void EnableMoney();
  void DisableMoney();

  // --- table/layout.cpp
  void LayOutTable();

  // --- table/hit_test.cpp
  std::optional<int> FindSquare(float X, float Y);

  // --- table/seating.cpp
  void PlaceOnSquare(int piece, int square);
  bool IsHome(int piece) const;
  void SendHome(int piece);

  // --- table/stops.cpp
  desktop::Stop PileStop(int denomination) const;
  desktop::Stop SquareStop(int square) const;
  desktop::Stop CupStop() const;
  bool CanBeTaken(const desktop::Element& element) const;
  std::optional<int> FrontPiece(int denomination) const;
  desktop::Hand HandTo(int piece, int square) const;
  desktop::Hand HandHome(int piece) const;

  // --- sentences.cpp
  std::string DiceInWords() const;
  std::string SquareInWords(int square) const;

  // --- table/drag.cpp
  void Money_MouseDown(int Index, int Button, float X, float Y);
  void Money_MouseMove(int Index, int Button, float X, float Y);
  void Money_MouseUp(int Index, int Button, float X, float Y);
  void Money_MouseLost(int Index);
  std::optional<int> SquareUnder(int Index, float X, float Y);
  void FollowPointer(int Index, float X, float Y);
  void LiftFromPile(int Index);
  void LiftFromSquare(int Index, int square);
  void ReturnToPile(int Index);
  void DropOnSquare(int Index, int square);
  void ShowBets();

  Module1& module1_;
  int running_ = 0;
  std::vector<Exchanging> exchanges_;  ///< one inside the other
  bool newGameWaits_ = false;
};

}  // namespace thistle
