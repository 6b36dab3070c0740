// Money moved with the mouse: what the records say, and what the screen shows of it.
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <algorithm>
#include <random>

#include "tests/qt/desk.h"
#include "tests/qt/sheet.h"

namespace {

using namespace on_screen;

constexpr QPoint kCoin{260, 360};  // on the rightmost coin of the pile
constexpr QPoint kHeart{50, 200};
constexpr QSize kSize[] = {{59, 31}, {56, 28}, {20, 20}};
constexpr int kWorth[] = {10, 5, 1};

QPoint Home(int piece) {
  constexpr int kTop[] = {288, 322, 352};
  return {184 + 8 * (piece % 20), kTop[piece / 20]};
}

class Drag : public AtTable {
 protected:
  Qt::CursorShape Shape() { return ViewOf(table)->cursor().shape(); }
  QPoint Corner(int piece) {
    return {static_cast<int>(table.Money[piece].Left), static_cast<int>(table.Money[piece].Top)};
  }
  std::string Total() { return table.Label3[3].Caption; }
  bool AllHome() {
    bool home = Total() == "£200" && Shape() == Qt::ArrowCursor;
    for (int n = 0; n < 60; ++n) home = home && Corner(n) == Home(n);
    return home;
  }
  void Send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
    auto& view = *ViewOf(table);
    QMouseEvent event(type, at, view.mapToGlobal(QPointF(at)), button, held, {});
    QApplication::sendEvent(&view, &event);
  }
  /// Has a coin in the air over the heart.
  void Lift() {
    Press(table, kCoin);
    Move(table, kHeart);
    ASSERT_EQ(Total(), "£199");
  }
};

/// What a player expects of the money.
struct Expected {
  std::array<QPoint, 60> corners;
  std::array<std::vector<int>, 6> mat;

  Expected() {
    for (int n = 0; n < 60; ++n) corners[n] = Home(n);
  }
  /// The square that takes a piece at a point, or -1.
  int Takes(QPoint at) const {
    for (int square = 0; square < 6; ++square)
      if (QRect(6 + 104 * square, 156, 100, 100).contains(at)) return mat[square].size() < 5 ? square : -1;
    return -1;
  }
  void Lift(int piece) {
    for (auto& pieces : mat) std::erase(pieces, piece);
  }
  void Drop(int piece, QPoint corner, int square) {
    corners[piece] = Home(piece);
    if (square < 0) return;
    const QRect room(QPoint(6 + 104 * square, 156), QSize(101, 93) - kSize[piece / 20]);
    corners[piece] = {std::clamp(corner.x(), room.left(), room.right()),
                      std::clamp(corner.y(), room.top(), room.bottom())};
    mat[square].push_back(piece);
  }
  int Stake(int square) const {
    int pounds = 0;
    for (const int piece : mat[square]) pounds += kWorth[piece / 20];
    return pounds;
  }
};

TEST_F(Drag, TwoHundredAtRandomEndWhereAPlayerExpects) {
  std::mt19937 random(7);
  const auto upTo = [&](int most) { return std::uniform_int_distribution(0, most)(random); };
  Expected expected;
  int seated = 0;
  for (int drag = 0; drag < 200; ++drag) {
    int piece = 0;
    QPoint grip;
    do {
      piece = upTo(59);
      grip = expected.corners[piece] + QPoint(upTo(19), upTo(19));
    } while (table.ElementAt(static_cast<float>(grip.x()), static_cast<float>(grip.y())) != &table.Money[piece]);
    const QPoint over(upTo(631), upTo(405));
    // Mostly onto the mat; now and then beyond the table.
    const QPoint to = upTo(9) < 7 ? QPoint(upTo(631), 150 + upTo(110)) : QPoint(upTo(700) - 30, upTo(440) - 15);

    Press(table, grip);
    expected.Lift(piece);
    Move(table, over);
    ASSERT_EQ(Corner(piece), expected.corners[piece] + over - grip) << drag;
    ASSERT_EQ(Shape(), expected.Takes(over) < 0 ? Qt::ForbiddenCursor : Qt::ArrowCursor) << drag;
    Release(table, to);
    const int square = expected.Takes(to);
    expected.Drop(piece, expected.corners[piece] + to - grip, square);

    ASSERT_EQ(Shape(), Qt::ArrowCursor) << drag;
    for (int n = 0; n < 60; ++n) ASSERT_EQ(Corner(n), expected.corners[n]) << drag << ": piece " << n;
    int total = 200;
    for (int s = 0; s < 6; ++s) {
      const int stake = expected.Stake(s);
      total -= stake;
      ASSERT_EQ(table.Label1[s].Caption, stake == 0 ? "" : "£" + std::to_string(stake) + " Bet") << drag;
    }
    ASSERT_EQ(Total(), "£" + std::to_string(total)) << drag;

    if (square >= 0 && piece < 40) {
      ++seated;
      const QRect place = Device(QRect(expected.corners[piece], kSize[piece / 20]));
      const QImage note = Carried(piece < 20 ? "TenPound" : "FivePound").convertedTo(QImage::Format_RGB32);
      ASSERT_TRUE(Same(Shown(*ViewOf(table)).copy(place), note)) << drag << ": in front, as the last one let go";
    }
    if (drag % 10 == 9) {
      ASSERT_TRUE(IsFresh(table)) << drag;
    }
  }
  EXPECT_GT(seated, 40);
}

TEST_F(Drag, PressesBesideAPieceChangeNothing) {
  for (const QPoint at : {QPoint(600, 20), QPoint(1, 404), QPoint(175, 300), kHeart}) {
    Press(table, at);
    Move(table, {150, 200});
    EXPECT_TRUE(AllHome()) << at.x();
    Release(table, at);
    EXPECT_TRUE(AllHome()) << at.x();
  }
  Press(table, kCoin, Qt::RightButton);
  Move(table, kHeart);
  Release(table, kHeart, Qt::RightButton);
  EXPECT_TRUE(AllHome());
}

TEST_F(Drag, ASecondPressInQuickSuccessionLiftsAsTheFirst) {
  Send(QEvent::MouseButtonDblClick, kCoin, Qt::LeftButton, Qt::LeftButton);
  EXPECT_EQ(Total(), "£199");
  Send(QEvent::MouseMove, kHeart, Qt::NoButton, Qt::LeftButton);
  Send(QEvent::MouseButtonRelease, kHeart, Qt::LeftButton, {});
  EXPECT_EQ(table.Label1[0].Caption, "£1 Bet");
}

TEST_F(Drag, WhatTakesTheMouseSendsThePieceHome) {
  bool homeAtOnce = false;
  QMenu& menu = *desktop.window().findChild<QMenuBar*>()->actions().first()->menu();
  const std::pair<const char*, std::function<void()>> takers[] = {
      {"a lost release", [&] { Send(QEvent::MouseMove, kHeart, Qt::NoButton, {}); }},
      {"a menu",
       [&] {
         menu.popup({0, 0});
       }},
      {"a question",
       [&] {
         WhenAsked([&](QMessageBox& box) {
           homeAtOnce = AllHome() && IsFresh(table);
           Answer(box, QMessageBox::No);
         });
         desktop.AskYesNo("", "");
       }},
      {"a window that is gone", [&] { desktop.window().hide(); }}};
  for (const auto& [name, take] : takers) {
    Lift();
    take();
    EXPECT_TRUE(AllHome()) << name;
    menu.close();
    desktop.window().show();
    Release(table, kHeart);
    EXPECT_TRUE(AllHome()) << "a late release after " << name;
  }
  EXPECT_TRUE(homeAtOnce) << "before the answer";
}

TEST_F(Drag, ThePointerTellsWhereAPieceMayGo) {
  Press(table, kCoin);
  EXPECT_EQ(Shape(), Qt::ArrowCursor) << "not before a move";
  for (const auto& [at, shape] : {std::pair{kCoin + QPoint(1, 0), Qt::ForbiddenCursor},
                                  {QPoint(105, 255), Qt::ArrowCursor},
                                  {QPoint(106, 255), Qt::ForbiddenCursor}}) {
    Move(table, at);
    EXPECT_EQ(Shape(), shape) << at.x();
  }
  Release(table, {106, 255});
  EXPECT_TRUE(AllHome());
}

}  // namespace
