// The table on the screen: each thing at its place, and nothing painted that need not be.
#include <QPaintEvent>
#include <set>

#include "Graphics/catalogue.h"
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
  sheet.Words({8, 296, 121, 25}, Qt::AlignLeft, "Ten Pound Notes", {});
  sheet.Words({8, 324, 121, 25}, Qt::AlignLeft, "Five Pound Notes", {});
  sheet.Words({8, 352, 121, 25}, Qt::AlignLeft, "One Pound Coins", {});
  sheet.Words({8, 380, 121, 25}, Qt::AlignLeft, "Total", {});
  sheet.Words({128, 296, 41, 17}, Qt::AlignRight, "£130", {});
  sheet.Words({128, 324, 41, 17}, Qt::AlignRight, "£60", {});
  sheet.Words({128, 352, 41, 17}, Qt::AlignRight, "£10", {});
  sheet.Words({128, 380, 41, 17}, Qt::AlignRight, "£200", {});
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
  explicit PaintWatch(QWidget& widget) : widget_(widget) { widget.installEventFilter(this); }

  /// What was painted since the last call.
  QRegion Take() {
    QCoreApplication::sendPostedEvents();
    return std::exchange(painted_, {});
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == &widget_ && event->type() == QEvent::Paint) painted_ += static_cast<QPaintEvent*>(event)->region();
    return false;
  }

 private:
  QWidget& widget_;
  QRegion painted_;
};

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
  ASSERT_TRUE(button);
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
    Press(table, Place(table.Money[49 - square]).topLeft() + QPoint(3, 3));
    for (const QPoint step : {QPoint(190, 280), QPoint(420, 250), QPoint(50 + 104 * square, 190)}) {
      Move(table, step);
      EXPECT_TRUE(IsFresh(table)) << square;
    }
    Release(table, {50 + 104 * square, 190});
    EXPECT_TRUE(IsFresh(table)) << square;
  }
  int looks = 0;
  std::set<std::string> seen;
  desktop.inRest = [&] {
    ++looks;
    EXPECT_TRUE(IsFresh(table)) << "rest " << looks;
    for (const desktop::Element* element : table.Graphics())
      if (element->Visible) seen.insert(std::string(element->Name) + element->Caption.substr(0, 3));
  };
  Click(table, {40, 80});
  for (const char* thing : {"CupCentre", "CupLeft", "CupRight", "CupThrow", "Payout", "Label1YOU", "Label1WIN"})
    EXPECT_TRUE(seen.contains(thing)) << thing;
  looks = 0;
  Click(table, kGetChange.center());
  EXPECT_GE(looks, 3) << "an exchange";
}

TEST_F(Table, PaintsNoMoreThanHasChanged) {
  PaintWatch watch(*ViewOf(table));
  auto& coin = table.Money[49];
  Press(table, {257, 355});
  watch.Take();
  for (const QPoint step : {QPoint(300, 340), QPoint(310, 345), QPoint(310, 345), QPoint(60, 200)}) {
    const QRect old = Place(coin);
    Move(table, step);
    const QRegion painted = watch.Take();
    EXPECT_TRUE(painted.subtracted(Near(old) + Near(Place(coin))).isEmpty()) << step.x();
    EXPECT_EQ(painted.isEmpty(), old == Place(coin)) << step.x();
  }
  Release(table, {60, 200});
  watch.Take();
  Click(table, {249, 355});
  EXPECT_TRUE(watch.Take().subtracted(Near({110, 352, 65, 54})).isEmpty()) << "the frontmost piece changes two sums";

  int ticks = 0;
  desktop.inRest = [&] {
    const QRegion painted = watch.Take();
    if (desktop.sounds.back() != "ROLLDICE" || ticks++ == 0) return;
    QRegion dice;
    for (const auto& die : table.Dice) dice += Near(Place(die));
    EXPECT_TRUE(painted.subtracted(dice).isEmpty()) << "tick " << ticks;
    EXPECT_FALSE(painted.isEmpty()) << "tick " << ticks;
  };
  Click(table, {40, 80});
  EXPECT_GE(ticks, 3);
}

/// A view of its own needs no desktop.
class NoEvents : public desktop::qt::Events {
 public:
  explicit NoEvents(desktop::Frame& frame) : frame_(frame), pointer_(frame) {}
  void Deliver(const std::function<void()>& handler) override { handler(); }
  desktop::Pointer& pointer() override { return pointer_; }
  desktop::Frame& frame() override { return frame_; }

 private:
  desktop::Frame& frame_;
  desktop::Pointer pointer_;
};

TEST_F(Table, HasAllItsPicturesDecodedOnceItIsLoaded) {
  NoEvents events(frame);
  desktop::qt::PictureStore store;
  const desktop::qt::FormView view(table, events, store, nullptr);
  // Pixmaps are numbered in the order of their making.
  const auto later = QPixmap::fromImage(QImage(1, 1, QImage::Format_RGB32)).cacheKey();
  using namespace thistle::pictures;
  std::vector<const desktop::Picture*> needed{&TenPound, &FivePound, &OnePound, &CupCentre,
                                              &CupLeft,  &CupRight,  &CupThrow};
  for (const auto& frames : Anidice) needed.push_back(&frames);
  for (const auto* picture : needed) EXPECT_LT(store.At(*picture, Ratio()).cacheKey(), later) << picture->name;
}

TEST(Pictures, AreCarriedAtTheirSizesForBothDensities) {
  desktop::qt::PictureStore store;
  for (const desktop::Picture* picture : thistle::AllPictures()) {
    const QString file = ":/pictures/" + QString::fromUtf8(picture->name.data(), picture->name.size());
    const QSize size(picture->width, picture->height);
    for (const int ratio : {1, 2}) {
      QImage image(file + (ratio == 1 ? ".png" : "@2x.png"));
      image.setDevicePixelRatio(1);
      ASSERT_EQ(image.size(), ratio * size) << picture->name;
      constexpr auto kFormat = QImage::Format_ARGB32_Premultiplied;
      EXPECT_EQ(store.At(*picture, ratio).toImage().convertedTo(kFormat), image.convertedTo(kFormat)) << picture->name;
    }
    EXPECT_EQ(store.At(*picture, 1.5).size(), QSize(qRound(1.5 * size.width()), qRound(1.5 * size.height())));
  }
}

}  // namespace
