// Questions and waits: what ends them, and in which order.
#include <QPushButton>
#include <QTimer>

#include "tests/qt/desk.h"

namespace {

using namespace on_screen;

class Question : public OnDesk {
 protected:
  bool Ask(const std::function<void(QMessageBox&)>& look) {
    WhenAsked(look);
    return desktop.AskYesNo("1 < 2 <b>and</b>\r\nmore ?", "The Title");
  }
};

TEST_F(Question, SaysWhatItIsGivenAndKeepsTheMouseFromTheForms) {
  const QPoint playGame(390, 350);
  Ask([&](QMessageBox& box) {
    EXPECT_EQ(box.text(), "1 < 2 <b>and</b>\nmore ?");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), "The Title");
    EXPECT_EQ(box.icon(), QMessageBox::Question);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(box.windowModality(), Qt::ApplicationModal);
    Click(frame.Splash, playGame);
    EXPECT_FALSE(table.Loaded);
    Answer(box, QMessageBox::Yes);
  });
  Click(frame.Splash, playGame);
  EXPECT_TRUE(table.Loaded) << "the same click, after the answer";
}

TEST_F(Question, IsAnsweredByItsButtonsAndTheirKeysAlone) {
  EXPECT_TRUE(Ask([](QMessageBox& box) { Answer(box, QMessageBox::Yes); }));
  EXPECT_FALSE(Ask([](QMessageBox& box) { Answer(box, QMessageBox::No); }));
  for (const Qt::Key key : {Qt::Key_Y, Qt::Key_N, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
    EXPECT_EQ(Ask([key](QMessageBox& box) { QTest::keyClick(box.windowHandle(), key); }), key != Qt::Key_N) << key;

  bool stood = false;
  EXPECT_TRUE(Ask([&](QMessageBox& box) {
    QTest::keyClick(box.windowHandle(), Qt::Key_Escape);
    box.close();
    box.windowHandle()->close();
    QCoreApplication::processEvents();
    stood = box.isVisible() && box.result() == 0;
    QTest::keyClick(box.windowHandle(), Qt::Key_Y);
  }));
  EXPECT_TRUE(stood);
}

class Waiting : public AtTable {};

TEST_F(Waiting, NestedWaitsEndInnerFirstAndNeverEarly) {
  desktop.pace = Pace::Real;
  std::vector<std::string> ended;
  const auto wait = [&](const char* name, double seconds) {
    const double start = desktop.Clock();
    table.FixedDelay(seconds);
    EXPECT_GE(desktop.Clock() - start, seconds) << name;
    ended.emplace_back(name);
  };
  QTimer::singleShot(1, [&] {
    QTimer::singleShot(1, [&] { wait("innermost", 0.15); });
    wait("inner", 0.1);
  });
  wait("outer", 0.02);
  EXPECT_EQ(ended, (std::vector<std::string>{"innermost", "inner", "outer"}));

  desktop.rests = 0;
  wait("idle", 0.2);
  EXPECT_LE(desktop.rests, 2) << "it rests instead of polling";
}

TEST_F(Waiting, OfNothingRunsNothing) {
  bool ran = false;
  QTimer::singleShot(0, [&] { ran = true; });
  for (const double seconds : {0.0, -1.0}) {
    table.FixedDelay(seconds);
    desktop.RunEventsUntil(desktop.Clock() + seconds);
  }
  EXPECT_FALSE(ran);
  desktop.pace = Pace::Real;
  table.FixedDelay(0.2);
  EXPECT_TRUE(ran);
}

TEST_F(Waiting, AQuestionHoldsUpTheWaitAroundItNoLongerThanItsAnswer) {
  desktop.pace = Pace::Real;
  bool asked = false;
  const double end = desktop.Clock() + 0.02;
  QTimer::singleShot(0, [&] {
    WhenAsked([&](QMessageBox& box) {
      while (desktop.Clock() < end + 0.05) QTest::qWait(5);
      asked = true;
      Answer(box, QMessageBox::No);
    });
    desktop.AskYesNo("", "");
  });
  // Would end a rest that has missed its moment.
  bool rescued = false;
  QTimer rescue;
  rescue.callOnTimeout([&] {
    rescued = true;
    Click(table, {600, 10});
  });
  rescue.start(20000);
  desktop.RunEventsUntil(end);
  EXPECT_TRUE(asked);
  EXPECT_FALSE(rescued);
}

TEST_F(Waiting, ANewGameEndsAThrowAndStartsAnew) {
  Press(table, {186, 290});
  Release(table, {50, 200});
  ASSERT_EQ(table.Label1[0].Caption, "£10 Bet");
  // The clock stands still: only the choice itself can end a wait.
  desktop.pace = Pace::Frozen;
  int rests = 0;
  QTimer poll;
  poll.callOnTimeout([&] {
    if (!table.CupCentre.Visible) return;
    poll.stop();
    WhenAsked([&](QMessageBox& box) {
      EXPECT_EQ(box.text(), "Are you sure you want to start again ?");
      rests = desktop.rests;
      Answer(box, QMessageBox::Yes);
    });
    Menu("New Game");
  });
  poll.start(5);
  Click(table, {40, 80});
  EXPECT_EQ(desktop.rests, rests) << "no wait after the choice";
  EXPECT_EQ(desktop.sounds.back(), "SHAKEDICE") << "and no sound";
  EXPECT_EQ(table.Label3[3].Caption, "£200");
  EXPECT_EQ(table.Label1[0].Caption, "");
  EXPECT_TRUE(table.CupStanding.Visible && !table.CupCentre.Visible);
  EXPECT_TRUE(IsFresh(table));
}

}  // namespace
