// The forms without a mouse and without eyes: keys, and what a screen reader is told.
#include <QAccessible>
#include <QKeyEvent>

#include "tests/qt/desk.h"

namespace {

/// What a screen reader hears unasked: where the keyboard goes, and what happens.
std::string* hears = nullptr;

}  // namespace

// Nobody can listen on the offscreen platform. Here a screen reader always does.
bool QAccessible::isActive() { return true; }

void QAccessible::updateAccessibility(QAccessibleEvent* event) {
  if (!hears || event->object()) return;  // a widget speaks for itself
  QAccessibleInterface* source = event->accessibleInterface();
  const std::string name = source->text(Name).toStdString() + "; ";
  if (event->type() == Focus) *hears += "at " + name;
  if (event->type() == ObjectShow && source->role() == Notification) *hears += name;
}

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

TEST_F(Keyboard, AReaderHearsOfATurnAsItHappens) {
  StartGame();
  QCoreApplication::processEvents();
  std::string heard;
  hears = &heard;
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_1, Qt::Key_Up, Qt::Key_Up}) {
    Key(key);
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(heard, "at Ten Pound Notes; heart: £10 bet, 1 of 5 pieces. Total: £190.; at diamond; at dice cup; ");
  heard.clear();
  // All three dice end on the heart: each starts on the group before, the middle one behind.
  desktop.draws = {5.5F / 6, 1.5F / 6, 5.5F / 6, 0.1F, 0.1F, 0.1F};
  Key(Qt::Key_Space);
  QCoreApplication::processEvents();
  EXPECT_EQ(heard, "The dice are being thrown.; Dice: heart, heart, heart.; heart: WIN £30.; Total: £230.; ");
  hears = nullptr;
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
  EXPECT_TRUE(Read(*ViewOf(table))
                  .starts_with("Table: Ten Pound Notes, Five Pound Notes, One Pound Coins, heart, spade, diamond, "
                               "club, thistle, lantern, dice "
                               "cup, Get Change, first die, second die, third die, Total, Drag and Drop"))
      << "a small form leaves it in view";
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
