// The forms around the table: each control, picture, word and colour at its place.
#include <QAccessible>
#include <QDesktopServices>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTextBlock>
#include <QTextEdit>
#include <QToolTip>
#include <map>
#include <set>

#include "Graphics/catalogue.h"
#include "desktop/qt/question_box.h"
#include "tests/qt/desk.h"
#include "tests/qt/sheet.h"

namespace {

using namespace on_screen;

constexpr QRgb kGround = 0xFFFF80;
constexpr QRgb kOrange = 0xE08800;
constexpr QRgb kRed = 0xFF0000;
constexpr Qt::Alignment kLeft = Qt::AlignLeft;
constexpr Qt::Alignment kCentre = Qt::AlignHCenter;

class Forms : public OnDesk {
 protected:
  /// The form looks like the sheet, with these controls on it.
  void ExpectLook(const desktop::Form& form, Sheet sheet, const std::vector<std::pair<const char*, QRect>>& controls) {
    desktop::qt::FormView& view = *ViewOf(form);
    const int border = form.Border;
    for (const auto& [name, place] : controls) {
      QWidget* control = Control(form, name);
      ASSERT_TRUE(control && control->isVisible()) << name;
      EXPECT_EQ(control->geometry(), place.translated(border, border)) << name;
      if (qobject_cast<QPushButton*>(control)) {
        EXPECT_TRUE(IsWooden(Shown(*control))) << name;
      }
      sheet.LeaveOut(place);
    }
    EXPECT_TRUE(sheet.IsShownBy(Shown(view, view.rect().adjusted(border, border, -border, -border)))) << form.Name;
  }
  QColor Pixel(const desktop::Form& form, QPoint at) {
    return Shown(*ViewOf(form)).pixelColor(Device(at.x()), Device(at.y()));
  }
  QTextEdit& Text() { return *ViewOf(frame.Help)->findChild<QTextEdit*>(); }
};

TEST_F(Forms, Opening) {
  Sheet sheet({632, 406}, kGround);
  for (const QRect& groove : {QRect(8, 0, 615, 3), QRect(8, 0, 3, 297), QRect(8, 294, 615, 3), QRect(620, 0, 3, 297)})
    sheet.LeaveOut(groove);
  for (const QPoint groove : {QPoint(300, 0), QPoint(8, 150), QPoint(300, 296), QPoint(622, 150)})
    EXPECT_NE(Pixel(frame.Splash, groove), QColor(kGround)) << groove.x() << ", " << groove.y();
  sheet.Picture("ThistleAndLantern128", {16, 24});
  sheet.Words({144, 24, 468, 36}, kCentre, "Quenby Software", {24});
  sheet.Words({144, 80, 468, 45}, kCentre, "presents", {24, true, true});
  sheet.Words({144, 128, 468, 63}, kCentre, "Thistle and Lantern", {42, true, true, false, kOrange});
  ExpectLook(frame.Splash, sheet,
             {{"Instructions", {8, 312, 150, 81}},
              {"Options", {163, 312, 150, 81}},
              {"Play Game", {318, 312, 150, 81}},
              {"Exit", {473, 312, 150, 81}}});
}

TEST_F(Forms, Options) {
  Menu("Options");
  Sheet sheet({632, 406}, kGround);
  for (const int left : {8, 496}) sheet.Picture("ThistleAndLantern128", {left, 16});
  sheet.Words({168, 32, 296, 56}, kCentre, "Options", {36, true, true, false, kOrange});
  sheet.Words({280, 152, 129, 33}, kLeft, "Sounds Off", {18, true, true});
  sheet.Words({280, 208, 129, 25}, kLeft, "Sounds On", {18, true, true, false, kRed});
  ExpectLook(frame.Options, sheet,
             {{"Sounds Off", {232, 152, 17, 25}}, {"Sounds On", {232, 208, 17, 25}}, {"OK", {266, 312, 100, 26}}});

  const auto expectOn = [&](bool on, const char* why) {
    for (const auto& [name, set] : {std::pair{"Sounds Off", !on}, {"Sounds On", on}})
      EXPECT_EQ(qobject_cast<QAbstractButton*>(Control(frame.Options, name))->isChecked(), set) << why;
    EXPECT_EQ(frame.module1.SoundOn, on) << why;
  };
  Click(frame.Options, {300, 165});
  expectOn(true, "the words beside a mark have no click of their own");
  Key(Qt::Key_Tab);
  expectOn(true, "passing by chooses nothing");
  Key(Qt::Key_Space);
  expectOn(false, "by key");
  Click(frame.Options, {300, 325});
  Menu("Options");
  expectOn(false, "opened once more");
  Click(frame.Options, {240, 220});
  expectOn(true, "by mouse");
}

TEST_F(Forms, About) {
  StartGame();
  Menu("About");
  EXPECT_EQ(ViewOf(frame.About)->geometry(), QRect(151, 112, 330, 182));
  Sheet sheet({324, 176}, 0xFFFFC0);
  sheet.Fill({8, 128, 308, 2}, 0x808080);
  sheet.Fill({8, 130, 308, 2}, 0xFFFFFF);
  for (const QRect& line : {QRect(0, 0, 320, 3), QRect(0, 0, 3, 174), QRect(0, 173, 320, 3), QRect(321, 0, 3, 176)})
    sheet.Fill(line, 0xC0C000);
  sheet.Picture("ThistleLantern32", {16, 16});
  sheet.Words({64, 16, 240, 32}, kLeft, "Thistle and Lantern", {21.75, true, true, false, kOrange});
  sheet.Words({120, 64, 112, 23}, kLeft, "Version 1.0.0", {14.25, false});
  sheet.Words({72, 96, 224, 30}, kLeft, "from Quenby Software", {15.75});
  ExpectLook(frame.About, sheet, {{"OK", {218, 140, 98, 26}}});
}

TEST_F(Forms, TheOneShownOrPressedLastLiesOnTop) {
  // About is there before the table is.
  Menu("About");
  Click(frame.Splash, {390, 395});
  StartGame();
  Menu("About");
  const auto isOnTop = [&](const desktop::Form& form) {
    const QWidget* there = desktop.window().area().childAt(170, 130);
    return there == ViewOf(form) || ViewOf(form)->isAncestorOf(there);
  };
  const QPoint bare(620, 10), getChange(500, 385);
  for (const QPoint press : {bare, getChange}) {
    EXPECT_TRUE(isOnTop(frame.About)) << press.x();
    Press(table, press);
    EXPECT_TRUE(isOnTop(table)) << press.x();
    Release(table, bare);  // no click comes of it
    Menu("About");
  }
}

TEST_F(Forms, KeepTheirRoomWhenTheUsersFontGrows) {
  QMenuBar& menu = *desktop.window().findChild<QMenuBar*>();
  const int before = menu.height();
  for (const int points : {24, 11}) {
    QFont font = menu.font();
    font.setPointSize(points);
    QApplication::setFont(font);
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();  // one tells the next
    EXPECT_TRUE(points == 11 || menu.height() > before + 5);
    EXPECT_EQ(desktop.window().area().geometry(), QRect(0, menu.height(), 632, 406)) << points;
    EXPECT_EQ(desktop.window().height(), menu.height() + 406) << points;
  }
  QApplication::setFont(QFont());
}

TEST(Pictures, EachOneLoadsInEveryScaleInWhichItIsCarried) {
  for (const desktop::Picture* picture : thistle::AllPictures())
    for (const char* scale : {"", "@1.25x", "@1.5x", "@1.75x", "@2x"}) {
      const QString name = QString(":/pictures/%1%2.png").arg(picture->name.data(), scale);
      const bool needed = *scale == '\0' || QString(scale) == "@2x";
      if (!needed && !QFile::exists(name)) continue;
      QImage image(name);
      image.setDevicePixelRatio(1);
      const double ratio = *scale == '\0' ? 1 : QString(scale).mid(1).chopped(1).toDouble();
      EXPECT_EQ(image.size(), QSize(qCeil(picture->width * ratio), qCeil(picture->height * ratio)))
          << name.toStdString();
    }
}

/// Takes the place of the user's mail program and browser.
class Outside : public QObject {
  Q_OBJECT

 public:
  Q_INVOKABLE void Take(const QUrl& url) { opened += url.toString(QUrl::FullyEncoded); }
  QStringList opened;
};

TEST_F(Forms, Support) {
  Menu("Support");
  Sheet sheet({632, 406}, kGround);
  for (const int left : {8, 496}) sheet.Picture("ThistleAndLantern128", {left, 16});
  sheet.Words({91, 8, 450, 49}, kCentre, "Support", {27.75, true, false, false, kOrange});
  for (const auto& [top, words] :
       {std::pair{80, "For All Support Questions"}, {120, "Email Us at"}, {208, "Or Visit Our Web Site at"}})
    sheet.Words({91, top, 450, 33}, kCentre, words, {18, true, false, false, kRed});
  Outside outside;
  for (const char* scheme : {"mailto", "https"}) QDesktopServices::setUrlHandler(scheme, &outside, "Take");
  for (const auto& [top, address] :
       {std::pair{160, "support@quenby-software.example"}, {248, "https://quenby-software.example"}}) {
    const QRect place(91, top, 450, 33);
    sheet.Words(place, kCentre, address, {18, true, false, true, 0x0000FF});
    if (!IsWhole()) sheet.LeaveOut(place);
    QWidget* link = Control(frame.Support, address);
    EXPECT_EQ(link->geometry(), place);
    EXPECT_EQ(link->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(link)->role(), QAccessible::Link);
    Click(frame.Support, place.center());
  }
  EXPECT_EQ(outside.opened, (QStringList{"mailto:support@quenby-software.example", "https://quenby-software.example"}));
  for (const char* scheme : {"mailto", "https"}) QDesktopServices::unsetUrlHandler(scheme);
  EXPECT_EQ(Focus(), "Return") << "the only control that can have it";
  ExpectLook(frame.Support, sheet, {{"Return", {266, 312, 100, 26}}});
}

TEST_F(Forms, InstructionsCannotBeTypedInto) {
  Menu("Instructions");
  Sheet sheet({632, 406}, kGround);
  for (const int left : {0, 600}) sheet.Picture("ThistleLantern32", {left, 374});
  ExpectLook(frame.Help, sheet, {{"Instructions", {0, 0, 633, 374}}, {"Return", {266, 376, 100, 26}}});

  const QString text = Text().toPlainText();
  Text().setFocus();
  QTest::keyClicks(&Text(), "typed");
  EXPECT_EQ(Text().toPlainText(), text);
}

TEST_F(Forms, InstructionsSayWhatTheyShouldInTheirTypes) {
  Menu("Instructions");
  const QTextDocument& document = *Text().document();
  EXPECT_EQ(document.defaultTextOption().tabStopDistance(), 48);
  EXPECT_EQ(document.begin().blockFormat().alignment(), kCentre);
  QString text;
  std::set<QString> types;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextCharFormat format = at.fragment().charFormat();
      if (format.isImageFormat()) {
        const QTextImageFormat image = format.toImageFormat();
        EXPECT_EQ(QSizeF(image.width(), image.height()), QImage(":/pictures/" + image.name() + ".png").size());
        const auto pixels = document.resource(QTextDocument::ImageResource, image.name()).value<QPixmap>();
        EXPECT_EQ(pixels.size(), Carried(image.name()).size()) << "sharp: " << image.name().toStdString();
        text += '[' + image.name() + ']';
      } else {
        const QFont font = format.font();
        types.insert(QFontInfo(font).family() + ' ' + QString::number(font.pixelSize()) + (font.bold() ? "b" : "") +
                     (font.italic() ? "i" : "") + (font.underline() ? "u" : "") + format.foreground().color().name());
        text += at.fragment().text();
      }
    }
    text += '\n';
  }
  QFile wanted(QFINDTESTDATA("instructions.txt"));
  ASSERT_TRUE(wanted.open(QFile::ReadOnly));
  EXPECT_EQ(text.toStdString(), wanted.readAll().toStdString());
  // 16, 14 and 12 points are 21, 19 and 16 pixels.
  EXPECT_EQ(types, (std::set<QString>{"Liberation Serif 21biu#cc9900", "Liberation Serif 19biu#008000",
                                      "Liberation Serif 16#000000", "Liberation Serif 16u#0000ff"}));
}

using TwoScreens = OnDesk;

TEST_F(TwoScreens, TheInstructionsPicturesAreSharpOnTheOneTheyAreSeenOn) {
  Menu("Instructions");
  auto& text = *ViewOf(frame.Help)->findChild<QTextEdit*>();
  for (const QScreen* screen : {QGuiApplication::screens().last(), QGuiApplication::screens().first()}) {
    desktop.window().move(screen->geometry().topLeft() + QPoint(40, 40));
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
    const auto pixels = text.document()->resource(QTextDocument::ImageResource, QUrl("FaceHeart")).value<QPixmap>();
    EXPECT_EQ(pixels.width(), 32 * screen->devicePixelRatio()) << screen->name().toStdString();
  }
}

TEST_F(Forms, HaveColoursOfTheirOwnUnderAnyTheme) {
  // The theme's ground and its tooltips', and the instructions': the tooltips' where black can be read on it.
  constexpr std::array<QRgb, 3> kRows[] = {{0xF0F0F0, 0xFFFFE1, 0xFFFFE1}, {0x202020, 0xFFFFE1, 0xFFFFE1},
                                           {0x202020, 0x202020, 0xFFFFE1}, {0x202020, 0x0000A0, 0xFFFFE1},
                                           {0x202020, 0x603000, 0xFFFFE1}, {0x202020, 0x80C0F0, 0x80C0F0}};
  std::map<std::pair<QString, QRgb>, QImage> first;
  for (const auto& [ground, tooltip, paper] : kRows) {
    QPalette theme(QColor::fromRgb(ground));  // the rest goes with these
    QApplication::setPalette(theme);
    theme.setColor(QPalette::ToolTipBase, QColor(tooltip));
    QToolTip::setPalette(theme);
    for (const char* name : {"Options", "Support", "About", "Instructions"}) {
      Menu(name);
      const desktop::Form& form = *frame.Children().back();
      const QImage now = Shown(*ViewOf(form));
      EXPECT_TRUE(Same(now, first.try_emplace({name, paper}, now).first->second)) << name;
      EXPECT_TRUE(&form != &frame.Help || Pixel(form, {2, 300}) == QColor(paper)) << std::hex << tooltip;
      Key(Qt::Key_Return);
    }
    // Menu and questions are the user's own.
    EXPECT_EQ(desktop.window().findChild<QMenuBar*>()->palette().color(QPalette::Window), QColor(ground));
    EXPECT_EQ(desktop::qt::QuestionBox("", "", &desktop.window()).palette().color(QPalette::Text),
              theme.color(QPalette::Text));
  }
  QApplication::setPalette(QPalette());
  QToolTip::setPalette(QApplication::palette("QTipLabel"));
}

}  // namespace

#include "forms_test.moc"
