// What keys and screen readers find on the table: piles, squares, cup and "Get Change" in the order of Tab, then what
// is only read. What is done there is done by a hand, so that no rule of the table stands here.
#include <algorithm>
#include <ranges>

#include "desktop/units.h"
#include "game/frmGame.h"
#include "game/texts.h"
#include "table/places.h"

namespace thistle {

namespace {

using desktop::Deed;
using desktop::Element;
using desktop::Hand;
using desktop::Key;
using desktop::kNoStop;
using desktop::Neighbours;
using desktop::Stop;

constexpr int kPile = 0;
constexpr int kSquare = kPile + kDenominations;
constexpr int kCup = kSquare + kSquares;
constexpr int kGetChange = kCup + 1;

constexpr Neighbours kBesidePiles[] = {{.Up = kSquare + 2, .Right = kGetChange, .Down = kPile + 1},
                                       {.Up = kPile, .Right = kGetChange, .Down = kPile + 2},
                                       {.Up = kPile + 1, .Right = kGetChange}};
constexpr Neighbours kBesideCup{.Down = kSquare};
constexpr Neighbours kBesideGetChange{.Left = kPile + 2, .Up = kSquare + 4};

constexpr Neighbours BesideSquare(int square) {
  return {.Left = square > 0 ? kSquare + square - 1 : kNoStop,
          .Up = kCup,
          .Right = square < kSquares - 1 ? kSquare + square + 1 : kNoStop,
          .Down = kPile};
}

constexpr std::array<Key, kSquares> kDigits{Key::One, Key::Two, Key::Three, Key::Four, Key::Five, Key::Six};

/// Where a hand takes a piece: as near to its corner as lets the others show.
constexpr float kGrip = 4;

Hand From(const Element& piece, float left, float top) {
  return {piece.Left + kGrip, piece.Top + kGrip, left + kGrip, top + kGrip};
}

Stop StopAt(std::string name, std::string value, float left, float top, float width, float height) {
  Stop stop;
  stop.Name = std::move(name);
  stop.Value = std::move(value);
  stop.Left = left;
  stop.Top = top;
  stop.Width = width;
  stop.Height = height;
  return stop;
}

Stop StopAt(const Element& element, std::string name, std::string value) {
  Stop stop = StopAt(std::move(name), std::move(value), element.Left, element.Top, element.Width, element.Height);
  stop.Visible = element.Visible;
  return stop;
}

}  // namespace

std::vector<Stop> frmGame::Stops() const {
  std::vector<Stop> stops;
  for (int d = 0; d < kDenominations; ++d) stops.push_back(PileStop(d));
  for (int square = 0; square < kSquares; ++square) stops.push_back(SquareStop(square));
  stops.push_back(CupStop());
  stops.push_back(StopAt(Command1, std::string(texts::kGetChange), {}));
  stops.back().Control = &Command1;
  stops.back().Neighbours = kBesideGetChange;
  for (int die = 0; die < kDice; ++die)
    stops.push_back(StopAt(Dice[die], std::string(texts::kDice[die]),
                           std::string(Throwing ? texts::kThrown : texts::kSquares[DiceSquare[die]])));
  stops.push_back(StopAt(Label3[kDenominations], std::string(texts::kLabel2.back()), Label3[kDenominations].Caption));
  for (int i = kGetChange + 1; i < static_cast<int>(stops.size()); ++i) stops[i].OnlyRead = true;
  return stops;
}

std::vector<Deed> frmGame::DeedsAnywhere() const {
  // A press brings its piece to the front: of those on the mat, the one that was laid last is the frontmost.
  for (const Element* element : std::views::reverse(Graphics()))
    if (desktop::IsOneOf(Money, *element) && element->Visible && !IsHome(element->Index) && CanBeTaken(*element))
      return {{{Key::Escape}, std::string(texts::kTakeBack), HandHome(element->Index)}};
  return {};
}

Stop frmGame::PileStop(int denomination) const {
  const Element& first = Money[kPiecesOfAKind * denomination];
  const std::optional<int> piece = FrontPiece(denomination);
  const float right = piece ? Money[*piece].Left + Money[*piece].Width : first.Left + first.Width;
  Stop pile = StopAt(std::string(texts::kLabel2[denomination + 1]),
                     Label3[denomination].Caption + ", " + texts::Pieces(module1_.MoneyCount[denomination]),
                     HomeLeft[first.Index], HomeTop[first.Index], right - HomeLeft[first.Index], first.Height);
  pile.Neighbours = kBesidePiles[denomination];
  if (!piece) return pile;
  for (int square = 0; square < kSquares; ++square)
    pile.Deeds.push_back({{kDigits[square]}, texts::BetOn(square), HandTo(*piece, square)});
  return pile;
}

Stop frmGame::SquareStop(int square) const {
  const std::string words = SquareInWords(square);
  Stop stop =
      StopAt(Image1[square], std::string(texts::kSquares[square]), words.empty() ? std::string(texts::kNoBet) : words);
  stop.Height = Label1[square].Top + Label1[square].Height - stop.Top;
  stop.Neighbours = BesideSquare(square);
  const std::optional<int> more = DenominationLaid ? FrontPiece(*DenominationLaid) : std::nullopt;
  if (more) stop.Deeds.push_back({{Key::Enter, Key::Plus}, std::string(texts::kBetMore), HandTo(*more, square)});
  const int count = BetPieces[square][0];
  const int last = BetPieces[square][count];
  if (count == 0 || !CanBeTaken(Money[last])) return stop;
  stop.Deeds.push_back({{Key::Delete, Key::Backspace}, std::string(texts::kTakeBack), HandHome(last)});
  for (int other = 0; other < kSquares; ++other)
    if (other != square) stop.Deeds.push_back({{kDigits[other]}, texts::MoveTo(other), HandTo(last, other)});
  return stop;
}

Stop frmGame::CupStop() const {
  Stop cup = StopAt(CupStanding, std::string(texts::kCup), {});
  cup.Neighbours = kBesideCup;
  if (!CanBeTaken(CupStanding)) return cup;
  cup.Value = texts::kReady;
  const float x = cup.Left + cup.Width / 2;
  const float y = cup.Top + cup.Height / 2;
  cup.Deeds.push_back({{Key::Enter, Key::Space}, std::string(texts::kThrow), {x, y, x, y}});
  return cup;
}

bool frmGame::CanBeTaken(const Element& element) const { return element.Reacts() && !HoldsBack(element); }

/// The frontmost of a pile, if it can be taken.
std::optional<int> frmGame::FrontPiece(int denomination) const {
  for (int n = kPiecesOfAKind * (denomination + 1) - 1; n >= kPiecesOfAKind * denomination; --n)
    if (IsHome(n) && CanBeTaken(Money[n])) return n;
  return std::nullopt;
}

Hand frmGame::HandTo(int piece, int square) const {
  // Where nothing lies yet; on a full square, which refuses it, anywhere.
  int free = 0;
  const auto liesThere = [&](const Element& money) {
    const auto at = places::Bet(square, free);
    return money.Left == desktop::Pixels(at.Left) && money.Top == desktop::Pixels(at.Top);
  };
  while (free < kPiecesOnSquare - 1 && std::ranges::any_of(Money, liesThere)) ++free;
  const auto to = places::Bet(square, free);
  return From(Money[piece], desktop::Pixels(to.Left), desktop::Pixels(to.Top));
}

Hand frmGame::HandHome(int piece) const { return From(Money[piece], HomeLeft[piece], HomeTop[piece]); }

}  // namespace thistle
