// The forms without a mouse and without eyes: keys, and what a screen reader is told.
#include <QAccessible>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

#include "tests/qt/desk.h"

namespace {

using namespace on_screen;

class Keyboard : public OnDesk {
 protected:
  static QString Said(QWidget& widget, QAccessible::Text text = QAccessible::Name) {
    return QAccessible::queryAccessibleInterface(&widget)->text(text);
  }
  static QString SaidWithin(QWidget& widget) {
    QStringList names;
    const auto* spoken = QAccessible::queryAccessibleInterface(&widget);
    for (int i = 0; i < spoken->childCount(); ++i) names += spoken->child(i)->text(QAccessible::Name);
    return names.join(", ");
  }
};

TEST_F(Keyboard, TabGoesRoundTheOpeningForm) {
  EXPECT_EQ(Focus(), "Play Game");
  for (const char* next : {"Instructions", "Exit", "Options", "Play Game", "Instructions"}) {
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), next);
  }
  for (const char* next : {"Play Game", "Options", "Exit", "Instructions"}) {
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Focus(), next);
  }
}

TEST_F(Keyboard, EnterAndSpacePressTheButtonThatHasTheFocus) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    Control(frame.Splash, "Instructions")->setFocus();
    Key(key);
    ASSERT_TRUE(frame.Help.Loaded) << key;
    EXPECT_EQ(Focus(), "Return");
    QKeyEvent held(QEvent::KeyPress, key, {}, {}, true);
    QApplication::sendEvent(QApplication::focusWidget(), &held);
    EXPECT_TRUE(frame.Help.Loaded) << "a key held down presses once";
    Key(key);
    ASSERT_FALSE(frame.Help.Loaded) << key;
    EXPECT_EQ(Focus(), "Instructions") << "as it was before";
  }
  Key(Qt::Key_Escape);
  EXPECT_FALSE(desktop.ended) << "no button of the opening form is its cancel button";
  Key(Qt::Key_Tab);
  Key(Qt::Key_Space);
  EXPECT_TRUE(desktop.ended) << "Exit asks nothing";
}

TEST_F(Keyboard, EnterAndEscPressTheClosingButtonFromAnywhere) {
  for (const char* entry : {"Options", "Support", "About"})
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape})
      for (const int tabs : {0, 1, 2}) {
        Menu(entry);
        EXPECT_NE(frame.Children().back(), &frame.Splash);
        for (int i = 0; i < tabs; ++i) Key(Qt::Key_Tab);
        Key(key);
        EXPECT_EQ(frame.Children().back(), &frame.Splash) << entry << " by " << key << " after " << tabs << " tabs";
      }
}

TEST_F(Keyboard, OptionsAreChosenByKey) {
  Menu("Options");
  EXPECT_EQ(Focus(), "OK");
  for (const auto& [name, on] : {std::pair{"Sounds Off", false}, {"Sounds On", true}}) {
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), name);
    EXPECT_NE(frame.module1.SoundOn, on) << "passing by chooses nothing";
    Key(Qt::Key_Space);
    EXPECT_EQ(frame.module1.SoundOn, on);
  }
}

TEST_F(Keyboard, StaysOnTheFormInFront) {
  Menu("Options");
  for (int i = 0; i < 7; ++i) {
    Key(Qt::Key_Tab);
    EXPECT_TRUE(ViewOf(frame.Options)->isAncestorOf(QApplication::focusWidget())) << i;
  }
  Menu("Instructions");
  Key(Qt::Key_Return);
  EXPECT_TRUE(frame.Options.Loaded && !frame.Help.Loaded && !table.Loaded);
  Key(Qt::Key_Escape);

  // A form that a click has buried hears nothing until it is lifted.
  StartGame();
  Menu("About");
  Click(table, {5, 5});
  EXPECT_EQ(frame.Children().back(), &table);
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) Key(key);
  EXPECT_TRUE(frame.About.Loaded);
  Menu("About");
  Key(Qt::Key_Escape);
  EXPECT_FALSE(frame.About.Loaded);
}

TEST_F(Keyboard, AHiddenButtonTakesNoKeys) {
  StartGame();
  Key(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "Get Change");
  Press(table, {186, 290});
  EXPECT_FALSE(Control(table, "Get Change")->isVisible());
  Release(table, {50, 200});
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Space}) Key(key);
  EXPECT_EQ(desktop.rests, 0) << "no exchange";

  Press(table, {50, 200});
  Release(table, {600, 20});
  Key(Qt::Key_Tab);
  Key(Qt::Key_Space);
  EXPECT_GT(desktop.rests, 0) << "on show again";
}

TEST_F(Keyboard, TheMenuOpensByItsLetters) {
  Key(Qt::Key_H, Qt::AltModifier);
  ASSERT_TRUE(QApplication::activePopupWidget());
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_A);
  EXPECT_TRUE(frame.About.Loaded);
  Key(Qt::Key_O, Qt::AltModifier);
  EXPECT_TRUE(frame.Options.Loaded);
  Key(Qt::Key_G, Qt::AltModifier);
  ASSERT_TRUE(QApplication::activePopupWidget());
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_E);
  EXPECT_TRUE(desktop.ended) << "no money yet, no question";
}

TEST_F(Keyboard, EverythingIsCalledByItsText) {
  EXPECT_EQ(SaidWithin(*ViewOf(frame.Splash)), "Exit, Options, Play Game, Instructions");
  Menu("Instructions");
  EXPECT_EQ(SaidWithin(*ViewOf(frame.Help)), "Instructions, Return");
  Menu("Options");
  EXPECT_EQ(SaidWithin(*ViewOf(frame.Options)), "Sounds Off, Sounds On, OK");
  Menu("Support");
  EXPECT_EQ(SaidWithin(*ViewOf(frame.Support)),
            "support@quenby-software.example, https://quenby-software.example, Return");
  QWidget* link = Control(frame.Support, "https://quenby-software.example");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(link)->role(), QAccessible::Link);
  Menu("About");
  EXPECT_EQ(SaidWithin(*ViewOf(frame.About)), "OK");
  Menu("New Game");
  EXPECT_EQ(SaidWithin(*ViewOf(table)), "Get Change");

  auto* bar = desktop.window().findChild<QMenuBar*>();
  EXPECT_EQ(SaidWithin(*bar), "Game, Options, Help");
  EXPECT_EQ(SaidWithin(*bar->actions().first()->menu()), "New Game, Exit");
  EXPECT_EQ(SaidWithin(*bar->actions().last()->menu()), "Instructions, Support, About");
}

TEST_F(Keyboard, TheTableTellsTotalsStakesAndResult) {
  StartGame();
  const auto told = [&] { return Said(*ViewOf(table), QAccessible::Description).toStdString(); };
  const auto has = [&](const std::string& words) { return told().find(words) != std::string::npos; };
  EXPECT_TRUE(has("Your money: £200.") && has("Five Pound Notes: £60.") && !has("heart: ")) << told();
  for (const int square : {0, 5}) {
    Press(table, {186 + 8 * square, 290});
    Release(table, {50 + 104 * square, 200});
  }
  EXPECT_TRUE(has("Your money: £180.") && has("heart: £10 Bet.") && has("lantern: £10 Bet.")) << told();

  // All three dice end on the heart: each starts on the group before, the middle one behind.
  desktop.draws = {5.5F / 6, 1.5F / 6, 5.5F / 6, 0.1F, 0.1F, 0.1F};
  bool thrown = false;
  bool won = false;
  desktop.inRest = [&] {
    thrown = thrown || has("The dice are being thrown.");
    won = won || (has("heart: WIN £30.") && has("Dice: heart, heart, heart."));
  };
  Click(table, {40, 80});
  EXPECT_TRUE(thrown);
  EXPECT_TRUE(won);
  EXPECT_TRUE(has("Your money: £220.") && has("Dice: heart, heart, heart.") && !has("WIN")) << told();
}

}  // namespace
