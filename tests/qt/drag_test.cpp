// Money moved with the mouse: what the records say, and what the screen shows of it.
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>

#include "desktop/qt/canvas.h"
#include "tests/qt/desk.h"
#include "tests/qt/sheet.h"

namespace {

using namespace on_screen;

constexpr QPoint kCoin{260, 360};  // on the rightmost coin of the pile
constexpr QPoint kHeart{50, 200};

class Drag : public AtTable {
 protected:
  Qt::CursorShape Shape() { return ViewOf(table)->cursor().shape(); }
  QPointF Corner(int piece) { return {table.Money[piece].Left, table.Money[piece].Top}; }
  /// Between whole ratios the pointer stands at fractions of a pixel, which a piece does not follow.
  void ExpectNear(QPointF place, QPointF wanted, int row) {
    const QPointF off = place - wanted;
    const double room = IsWhole() ? 0 : 1;
    EXPECT_TRUE(qAbs(off.x()) <= room && qAbs(off.y()) <= room) << row << ": " << off.x() << ", " << off.y();
  }
  std::string Total() { return table.Label3[3].Caption; }
  bool AllHome() {
    bool home = Total() == "£200" && Shape() == Qt::ArrowCursor;
    for (const auto& piece : table.Money)
      home = home && piece.Left == table.HomeLeft[piece.Index] && piece.Top == table.HomeTop[piece.Index];
    return home;
  }
  void Send(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons held) {
    auto& view = *ViewOf(table);
    QMouseEvent event(type, at, view.mapToGlobal(at), button, held, {});
    QApplication::sendEvent(&view, &event);
  }
};

TEST_F(Drag, CarriesAPieceByThePixelItWasTakenAtToWhereThePointerIs) {
  // A piece, where it is gripped, where it is let go, whether a square takes it, and where it comes to lie.
  const std::tuple<int, QPoint, QPoint, bool, QPoint> rows[] = {
      {12, {281, 289}, {300, 160}, true, {255, 159}},   {31, {327, 349}, {7, 157}, true, {6, 156}},
      {49, {275, 371}, {105, 255}, true, {86, 228}},    {0, {185, 300}, {107, 255}, false, {184, 288}},
      {48, {249, 371}, {-20, -300}, false, {248, 352}}, {12, {300, 160}, {626, 200}, false, {280, 288}}};
  for (const auto& [piece, grip, to, taken, seat] : rows) {
    const QPointF offset = grip - Corner(piece);
    Press(table, grip);
    EXPECT_EQ(Shape(), Qt::ArrowCursor) << "not before a move";
    Move(table, to);
    ExpectNear(Corner(piece), to - offset, to.x());
    EXPECT_EQ(Shape(), taken ? Qt::ArrowCursor : Qt::ForbiddenCursor) << to.x();
    EXPECT_TRUE(IsFresh(table)) << to.x();
    Release(table, to);
    ExpectNear(Corner(piece), seat, to.x());
    EXPECT_EQ(Shape(), Qt::ArrowCursor) << to.x();
  }
  EXPECT_EQ(table.Label1[0].Caption, "£6 Bet");
  EXPECT_EQ(Total(), "£194");
}

TEST_F(Drag, TheEdgesOfASquareAreWhereTheyArePaintedToTheDevicePixel) {
  Press(table, kCoin);
  // The coin is held by its corner, so that the pointer's pixel alone decides.
  const auto isOn = [&](int x, int y) {
    Send(QEvent::MouseMove, QPointF(x, y) / Ratio() + desktop::qt::PaintedBeside(*ViewOf(table)) / Ratio(),
         Qt::NoButton, Qt::LeftButton);
    return Shape() == Qt::ArrowCursor;
  };
  const int middleX = Device(56), middleY = Device(200);
  for (const auto& [left, right] : {std::pair{6, 106}, {110, 210}}) {
    EXPECT_FALSE(isOn(Device(left) - 1, middleY)) << left;
    EXPECT_TRUE(isOn(Device(left), middleY)) << left;
    EXPECT_TRUE(isOn(Device(right) - 1, middleY)) << right;
    EXPECT_FALSE(isOn(Device(right), middleY)) << right;
  }
  EXPECT_FALSE(isOn(middleX, Device(156) - 1));
  EXPECT_TRUE(isOn(middleX, Device(156)));
  EXPECT_TRUE(isOn(middleX, Device(256) - 1));
  EXPECT_FALSE(isOn(middleX, Device(256)));
}

TEST_F(Drag, LeavesNoTrail) {
  Press(table, {210, 290});
  for (int step = 0; step < 60; ++step) {
    Move(table, {210 + 7 * step, 290 - 3 * step});
    EXPECT_TRUE(step % 10 != 9 || IsFresh(table)) << step;
  }
}

TEST_F(Drag, IsTheLeftButtonsWorkAndASecondPressInQuickSuccessionLiftsAsTheFirst) {
  Press(table, kCoin, Qt::RightButton);
  Move(table, kHeart);
  Release(table, kHeart, Qt::RightButton);
  EXPECT_TRUE(AllHome());
  Send(QEvent::MouseButtonDblClick, kCoin, Qt::LeftButton, Qt::LeftButton);
  EXPECT_EQ(Total(), "£199");
  Send(QEvent::MouseButtonRelease, kHeart, Qt::LeftButton, {});
  EXPECT_EQ(table.Label1[0].Caption, "£1 Bet");
}

TEST_F(Drag, WhatTakesTheMouseSendsThePieceHome) {
  QMenu& menu = *desktop.window().findChild<QMenuBar*>()->actions().first()->menu();
  const std::pair<const char*, std::function<void()>> takers[] = {
      {"a lost release", [&] { Send(QEvent::MouseMove, kHeart, Qt::NoButton, {}); }},
      {"a menu", [&] { menu.popup(QPoint()); }},
      {"a question",
       [&] {
         WhenAsked([&](QMessageBox& box) {
           EXPECT_TRUE(AllHome() && IsFresh(table)) << "before the answer";
           Answer(box, QMessageBox::No);
         });
         desktop.AskYesNo("", "");
       }},
      {"a window that is gone", [&] { desktop.window().hide(); }}};
  for (const auto& [name, take] : takers) {
    Press(table, kCoin);
    Move(table, kHeart);
    ASSERT_EQ(Total(), "£199");
    take();
    EXPECT_TRUE(AllHome()) << name;
    menu.close();
    desktop.window().show();
    Release(table, kHeart);
    EXPECT_TRUE(AllHome()) << "a late release after " << name;
  }
}

}  // namespace
