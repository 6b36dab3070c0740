#include "Graphics/instructions.h"

#include <array>
#include <initializer_list>
#include <string>

#include "Graphics/catalogue.h"
#include "Graphics/colours.h"

namespace thistle {

namespace {

using desktop::Align;
using desktop::Document;
using desktop::Paragraph;
using desktop::Run;
using desktop::TextStyle;

constexpr TextStyle kTitle{{16, true, true, true}, colours::kDocumentTitle};
constexpr TextStyle kHeading{{14, true, true, true}, colours::kDocumentHeading};
constexpr TextStyle kBody{{12, false, false, false}, {0x000000}};
constexpr TextStyle kAddress{{12, false, false, true}, colours::kLink};

constexpr int kTabDistance = 48;  // pixels; 720 twips

constexpr std::array<std::string_view, 6> kFaceNames{"heart", "spade", "diamond", "club", "thistle", "lantern"};

constexpr std::string_view kObject =
    "Thistle & Lantern is a simple betting game.   The object of the game is win money.";

constexpr std::string_view kOrigin =
    "They say that a lamplighter and a gardener made up the game one foggy evening, with a lantern to see by and a "
    "thistle for the loser's chair.   ";

constexpr std::string_view kSummary =
    "The game is played using three special dice with the faces marked with a heart, a club, a spade, a diamond, a "
    "thistle, and a lantern, and a betting mat with six places, each having one of the six dice symbols.";

constexpr std::string_view kWager =
    "Each player puts a wager on one or more of the spaces on the betting mat. The banker then rolls all three dice "
    "and pays out winnings based on that throw.   If any of the dice shows a symbol you placed a bet on, you get your "
    "bet back   If one of the dice shows your symbol, the banker also pays you the amount of your bet.   If two of the "
    "dice show your symbol, the banker pays you double your bet.   If all three dice show your symbol, the banker pays "
    "you three times your bet.";

constexpr std::string_view kStart =
    "You start with a total £200, £130 in £10 notes, £60 in £5 notes, and £10 in £1 coins.";

constexpr std::string_view kPlay =
    "Drag and drop notes or coins onto the betting mat in the center of the screen.   You may bet on more than one "
    "symbol if you wish.   Bets are limited to 5 notes or coins on any symbol.   You can move or retrieve bets already "
    "placed if you wish, as long as the dice roll has not begun.   When you are ready, click on the dice cup, and the "
    "dice will roll.   Winnings are paid out automatically.   The display of notes and coins on the table is limited "
    "to "
    "20 of each type, so do not worry if you have more and they are not shown, they will reappear when there is space "
    "for them.";

constexpr std::string_view kDragging =
    "Position the mouse over the note or coin to be dragged.   Press and hold down the left mouse button.   While "
    "still "
    "holding down the left mouse button, move the mouse to drag the note or coin to the betting mat square on which "
    "you "
    "wish to bet.   The tip of the cursor arrow shows the exact location.   When you have positioned the note or coin "
    "over the betting mat, drop it on the mat by releasing the left mouse button.   Whenever you are not positioned "
    "correctly over a betting square, the cursor will show the no-drop symbol (";

constexpr std::string_view kNotDropped =
    ").   If you drop while the no-drop symbol is displayed, the note or coin will return to your pile.";

constexpr std::string_view kChange =
    "If you run short of the lower denominations, use the \"Get Change\" button to break down the higher denomination "
    "notes.   The \"Get Change\" button is only available when there is no money on the betting mat, and you have less "
    "than 20 £5 notes or less than 20 £1 coins.";

constexpr std::string_view kNoMoney =
    "When you have no money left, a dialogue box will appear, inviting you to accept a further £200.   If you refuse, "
    "the game will end.";

constexpr std::string_view kPreviousGames =
    "If there is any money left from your last game, it will be remembered, and at the start of a new game, a dialogue "
    "box will appear asking if you wish to play with this amount.   If you refuse, you will start with the normal "
    "£200.";

constexpr std::string_view kOptions = "Sounds may be turned on and off in the Options menu.";

Run Words(std::string_view text, const TextStyle& style = kBody) { return {std::string(text), &style, nullptr, {}}; }

Run Shown(const desktop::Picture& picture, std::string_view meaning) {
  return {{}, nullptr, &picture, std::string(meaning)};
}

Run Tab() { return Words("\t"); }

Paragraph Line(std::initializer_list<Run> runs) { return {Align::Left, runs}; }

Paragraph EmptyLine() { return Line({Words("")}); }

Paragraph DiceFaces() {
  Paragraph row = Line({Words("The Dice Faces:")});
  for (std::size_t face = 0; face < kFaceNames.size(); ++face) {
    row.Runs.push_back(Tab());
    row.Runs.push_back(Shown(pictures::Face[face], kFaceNames[face]));
  }
  return row;
}

Paragraph Pieces() {
  return Line({Words("£10 Note:    "), Shown(pictures::InlineTen, "£10 note"), Tab(), Words("£5 Note:    "),
               Shown(pictures::InlineFive, "£5 note"), Tab(), Words("£1 Coin:    "),
               Shown(pictures::InlineOne, "£1 coin")});
}

/// A heading, directly followed by its text, and an empty line that sets it off from the next.
void AddSection(Document& document, std::string_view heading, std::initializer_list<Paragraph> text) {
  document.Paragraphs.push_back(Line({Words(heading, kHeading)}));
  document.Paragraphs.insert(document.Paragraphs.end(), text);
  document.Paragraphs.push_back(EmptyLine());
}

}  // namespace

Document Instructions(std::string_view support, std::string_view webSite) {
  Document document{kTabDistance,
                    {{Align::Centre, {Words("Instructions for Thistle & Lantern", kTitle)}}, EmptyLine()}};
  AddSection(document, "Object of the Game", {Line({Words(kObject)})});
  AddSection(
      document, "Game Summary",
      {Line({Words(kOrigin), Words(kSummary)}), DiceFaces(),
       Line({Words("The Betting Mat:"), Tab(), Words("         "), Shown(pictures::InlineMat, "the betting mat")}),
       Line({Words(kWager)})});
  AddSection(document, "Game Play", {Line({Words(kStart)}), Pieces(), Line({Words(kPlay)})});
  AddSection(document, "Dragging and Dropping",
             {Line({Words(kDragging), Shown(pictures::NoDrop, "no-drop symbol"), Words(kNotDropped)})});
  AddSection(document, "Getting Change", {Line({Words(kChange)})});
  AddSection(document, "Running Out of Money", {Line({Words(kNoMoney)})});
  AddSection(document, "Money From Previous Games", {Line({Words(kPreviousGames)})});
  AddSection(document, "Options", {Line({Words(kOptions)})});
  AddSection(document, "Support", {Line({Words("Email us at "), Words(support, kAddress)})});
  AddSection(document, "WebSite", {Line({Words("Visit us at "), Words(webSite, kAddress)})});
  document.Paragraphs.pop_back();  // nothing follows the last section
  return document;
}

}  // namespace thistle
