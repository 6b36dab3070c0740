// The table on the screen: each thing at its place, and nothing painted that need not be.
#include <QPaintEvent>

#include "tests/qt/desk.h"
#include "tests/qt/sheet.h"

namespace {

using namespace on_screen;

constexpr QRgb kGround = 0xFFFF80;
constexpr QRgb kMat = 0xC0FFC0;
constexpr QRect kGetChange(480, 376, 89, 25);

/// The table of a new game whose dice show frames 0, 4 and 20.
Sheet NewTable() {
  Sheet sheet({632, 406}, kGround);
  sheet.Fill({2, 152, 628, 116}, 0x00C000);
  sheet.Picture("Anidice00", {312, 40});
  sheet.Picture("Anidice20", {520, 24});
  sheet.Picture("Anidice04", {416, 8});
  sheet.Picture("CupStanding", {0, 24});
  int left = 6;
  for (const char* square : {"MatHeart", "MatSpade", "MatDiamond", "MatClub", "MatThistle", "MatLantern"}) {
    sheet.Picture(square, {left, 156});
    sheet.Fill({left, 248, 100, 16}, kMat);
    left += 104;
  }
  sheet.Words({8, 272, 169, 25}, Qt::AlignHCenter, "Your Money", {.underline = true});
  int top = 296;
  for (const auto& [name, sum] : {std::pair{"Ten Pound Notes", "£130"},
                                  {"Five Pound Notes", "£60"},
                                  {"One Pound Coins", "£10"},
                                  {"Total", "£200"}}) {
    sheet.Words({8, top, 121, 25}, Qt::AlignLeft, name, {});
    sheet.Words({128, top, 41, 17}, Qt::AlignRight, sum, {});
    top += 28;
  }
  for (int i = 0; i < 13; ++i) sheet.Picture("TenPound", {184 + 8 * i, 288});
  for (int i = 0; i < 12; ++i) sheet.Picture("FivePound", {184 + 8 * i, 322});
  for (int i = 0; i < 10; ++i) sheet.Picture("OnePound", {184 + 8 * i, 352});
  sheet.Fill({420, 280, 208, 34}, 0xFFE0C0);
  sheet.Words({420, 280, 208, 34}, Qt::AlignHCenter, "Drag and Drop Notes or Coins Onto the Mat Above to Bet", {});
  sheet.LeaveOut(kGetChange);
  return sheet;
}

/// Adds up what a widget paints.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

  /// What was painted since the last call.
  QRegion Take() {
    QCoreApplication::sendPostedEvents();
    return std::exchange(painted_, {});
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted_ += static_cast<QPaintEvent*>(event)->region();
    return false;
  }

 private:
  QRegion painted_;
};

/// Images are numbered as they are made, by decoding and scaling too. This makes the next one.
qint64 NextImage() { return QImage(1, 1, QImage::Format_RGB32).cacheKey() >> 32; }

class Table : public AtTable {
 protected:
  void SetUp() override {
    desktop.draws = {0.5F / 6, 1.5F / 6, 5.5F / 6};
    AtTable::SetUp();
  }

  static QRect Place(const desktop::Element& element) {
    return QRectF(element.Left, element.Top, element.Width, element.Height).toRect();
  }
  /// What may be painted for it. Where device pixels straddle its edge, the neighbours belong to it.
  static QRegion Near(const QRect& place) {
    const int edge = IsWhole() ? 0 : 2;
    return place.adjusted(-edge, -edge, edge, edge);
  }
};

TEST_F(Table, StandsAsLaidOutAtItsLoad) {
  EXPECT_TRUE(NewTable().IsShownBy(Shown(*ViewOf(table))));
  QWidget* button = Control(table, "Get Change");
  EXPECT_EQ(button->geometry(), kGetChange);
  EXPECT_TRUE(IsWooden(Shown(*button)));
}

TEST_F(Table, LooksAfterEveryChangeAsIfPaintedAnew) {
  Press(table, {210, 290});
  EXPECT_TRUE(IsFresh(table)) << "a piece from the middle of its pile lies in front";
  Release(table, {210, 290});
  EXPECT_TRUE(IsFresh(table));
  // A coin on each square: every throw wins some and loses some.
  for (int square = 0; square < 6; ++square) {
    Carry(table, Place(table.Money[49 - square]).topLeft() + QPoint(3, 3), {50 + 104 * square, 190});
    EXPECT_TRUE(IsFresh(table)) << square;
  }
  desktop.inRest = [&] { EXPECT_TRUE(IsFresh(table)) << "rest " << desktop.rests; };
  Click(table, {40, 80});
  EXPECT_GE(desktop.rests, 40) << "a throw and a settlement";
  desktop.rests = 0;
  Click(table, kGetChange.center());
  EXPECT_GE(desktop.rests, 3) << "an exchange";
}

TEST_F(Table, PaintsNoMoreThanTheDiceInAThrowAndDecodesNothing) {
  PaintWatch watch(*ViewOf(table));
  Carry(table, {257, 355}, {60, 200});
  watch.Take();
  int ticks = 0;
  const int ofPaint = Ratio() == 1 ? 0 : 1;  // a scaled paint makes an image for itself
  qint64 last = NextImage();
  desktop.inRest = [&] {
    const QRegion painted = watch.Take();
    const qint64 image = NextImage();
    EXPECT_LE(image, last + 1 + ofPaint) << "rest " << desktop.rests;
    last = image;
    if (desktop.lastSound != "ROLLDICE" || ticks++ == 0) return;
    QRegion dice;
    for (const auto& die : table.Dice) dice += Near(Place(die));
    EXPECT_TRUE(painted.subtracted(dice).isEmpty()) << "tick " << ticks;
    EXPECT_FALSE(painted.isEmpty()) << "tick " << ticks;
  };
  Click(table, {40, 80});
  EXPECT_GE(ticks, 3);
}

}  // namespace
