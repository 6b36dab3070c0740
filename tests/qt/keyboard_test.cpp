// The forms without a mouse and without eyes: keys, and what a screen reader is told.
#include <QAccessible>
#include <QKeyEvent>

#include "tests/qt/desk.h"

namespace {

using namespace on_screen;

using Keyboard = OnDesk;

TEST_F(Keyboard, EnterAndSpacePressTheButtonThatHasTheFocus) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    desktop.SetFocus(frame.Splash, frame.Splash.Instructions);
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
}

TEST_F(Keyboard, TheTableTellsTotalsStakesAndResult) {
  StartGame();
  std::string told;
  desktop.inRest = [&] {
    told += QAccessible::queryAccessibleInterface(ViewOf(table))->text(QAccessible::Description).toStdString() + "\n";
  };
  Carry(table, {186, 290}, {50, 200});
  desktop.inRest();
  // All three dice end on the heart: each starts on the group before, the middle one behind.
  desktop.draws = {5.5F / 6, 1.5F / 6, 5.5F / 6, 0.1F, 0.1F, 0.1F};
  Click(table, {40, 80});
  for (const char* part :
       {"Your money: £190. Ten Pound Notes: £120. Five Pound Notes: £60. One Pound Coins: £10. "
        "heart: £10 Bet. Dice: ",
        "heart: £10 Bet. The dice are being thrown.\n", "heart: WIN £30. Dice: heart, heart, heart.\n"})
    EXPECT_NE(told.find(part), std::string::npos) << part << " is not in " << told;
}

/// What a screen reader finds on a form that shows: roles and names.
std::string Read(QWidget& view) {
  QAccessibleInterface* form = QAccessible::queryAccessibleInterface(&view);
  std::string read = form->role() == QAccessible::Form ? form->text(QAccessible::Name).toStdString() + ":" : "";
  for (int i = 0; i < form->childCount(); ++i) {
    QAccessibleInterface* child = form->child(i);
    EXPECT_EQ(form->indexOfChild(child), i);
    EXPECT_EQ(child->parent(), form);
    if (!child->state().invisible) read += " " + child->text(QAccessible::Name).toStdString() + ",";
  }
  return read;
}

TEST_F(Keyboard, AReaderFindsEachFormByItsNameAndTheTextsOnIt) {
  EXPECT_EQ(Read(*ViewOf(frame.Splash)),
            "Thistle and Lantern: Quenby Software, presents, Thistle and Lantern, Exit, Options, Play Game, "
            "Instructions,");
  Menu("Support");
  EXPECT_EQ(Read(*ViewOf(frame.Support)),
            "Support: Support, For All Support Questions, Email Us at, Or Visit Our Web Site at, "
            "support@quenby-software.example, https://quenby-software.example, Return,");
  EXPECT_EQ(ViewOf(frame.Splash), nullptr) << "what lies beneath is not said to be showing";
  Key(Qt::Key_Escape);
  StartGame();
  Menu("About");
  EXPECT_EQ(Read(*ViewOf(frame.About)), "About: Thistle and Lantern, Version 1.0.0, from Quenby Software, OK,");
  EXPECT_TRUE(Read(*ViewOf(table)).starts_with("Table: ")) << "a small form leaves it in view";
  QAccessibleInterface* form = QAccessible::queryAccessibleInterface(ViewOf(frame.About));
  EXPECT_EQ(form->child(0)->rect().topLeft(), ViewOf(frame.About)->mapToGlobal(QPoint(3 + 64, 3 + 16)))
      << "at its place";
}

TEST_F(Keyboard, AReaderCanPressALink) {
  Menu("Support");
  auto* link = qobject_cast<QAbstractButton*>(Control(frame.Support, "support@quenby-software.example"));
  int pressed = 0;
  QObject::disconnect(link, &QAbstractButton::clicked, nullptr, nullptr);
  QObject::connect(link, &QAbstractButton::clicked, [&] { ++pressed; });
  QAccessibleActionInterface* actions = QAccessible::queryAccessibleInterface(link)->actionInterface();
  EXPECT_EQ(actions->actionNames(), QStringList(QAccessibleActionInterface::pressAction()));
  actions->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(pressed, 1);
}

}  // namespace
