// Questions and waits: what ends them.
#include <QTimer>

#include "tests/qt/desk.h"

namespace {

using namespace on_screen;

using Question = OnDesk;

TEST_F(Question, IsAnsweredByItsButtonsAndTheirKeysAlone) {
  const auto ask = [&](const std::function<void(QMessageBox&)>& look) {
    WhenAsked(look);
    return desktop.AskYesNo("1 < 2 <b>and</b>\r\nmore ?", "The Title");
  };
  for (const auto answer : {QMessageBox::Yes, QMessageBox::No})
    EXPECT_EQ(ask([&](QMessageBox& box) { Answer(box, answer); }), answer == QMessageBox::Yes);
  for (const Qt::Key key : {Qt::Key_Y, Qt::Key_N, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
    EXPECT_EQ(ask([key](QMessageBox& box) { QTest::keyClick(box.windowHandle(), key); }), key != Qt::Key_N) << key;
  const QPoint playGame(390, 350);
  EXPECT_TRUE(ask([&](QMessageBox& box) {
    EXPECT_EQ(box.text(), "1 < 2 <b>and</b>\nmore ?");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), "The Title");
    Click(frame.Splash, playGame);
    EXPECT_FALSE(table.Loaded) << "no mouse for the forms";
    QTest::keyClick(box.windowHandle(), Qt::Key_Escape);
    box.windowHandle()->close();
    QKeyEvent heldSinceBefore(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QCoreApplication::sendEvent(box.windowHandle(), &heldSinceBefore);
    QCoreApplication::processEvents();
    EXPECT_TRUE(box.isVisible() && box.result() == 0);
    Answer(box, QMessageBox::Yes);
  }));
  Click(frame.Splash, playGame);
  EXPECT_TRUE(table.Loaded) << "the same click, after the answer";
}

using Waiting = AtTable;

TEST_F(Waiting, NeverEndsEarlyAndRestsUntilAnEvent) {
  desktop.hurries = false;
  bool late = false;
  QTimer::singleShot(0, [&] {
    table.FixedDelay(0.01);
    late = true;
    Click(table, {600, 10});
  });
  const double start = desktop.Clock();
  desktop.RunEventsUntil(start);
  EXPECT_FALSE(late) << "a wait of nothing runs nothing";
  desktop.RunEventsUntil(start + 30);
  EXPECT_LT(desktop.Clock(), start + 20) << "an event ends a rest, after one within it too";

  desktop.rests = 0;
  const double idle = desktop.Clock();
  table.FixedDelay(0.2);
  EXPECT_GE(desktop.Clock() - idle, 0.2);
  EXPECT_LE(desktop.rests, 2) << "it rests instead of polling";
}

TEST_F(Waiting, AQuestionHoldsUpTheWaitAroundItNoLongerThanItsAnswer) {
  desktop.hurries = false;
  const double end = desktop.Clock() + 0.02;
  QTimer::singleShot(0, [&] {
    WhenAsked([&](QMessageBox& box) {
      while (desktop.Clock() < end + 0.05) QTest::qWait(5);
      Answer(box, QMessageBox::No);
    });
    desktop.AskYesNo("", "");
  });
  desktop.RunEventsUntil(end);  // for ever, if it has missed its moment
  EXPECT_GE(desktop.Clock(), end + 0.05) << "not before its answer";
}

TEST(Chance, IsTheSystemsAndNotAlwaysTheSame) {
  desktop::qt::QtDesktop one, other;
  for (auto* desktop : {&one, &other}) desktop->Randomize();
  int same = 0;
  for (int i = 0; i < 20; ++i) same += one.Random() == other.Random() ? 1 : 0;
  EXPECT_LT(same, 5);
}

}  // namespace
