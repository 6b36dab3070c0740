// The forms around the table: each control, picture, word and colour at its place.
#include <QDesktopServices>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QToolTip>
#include <map>
#include <set>

#include "desktop/qt/question_box.h"
#include "tests/qt/desk.h"
#include "tests/qt/sheet.h"

namespace {

using namespace on_screen;

constexpr QRgb kGround = 0xFFFF80;
constexpr QRgb kOrange = 0xE08800;
constexpr QRgb kRed = 0xFF0000;
constexpr QRgb kBlue = 0x0000FF;
constexpr Qt::Alignment kLeft = Qt::AlignLeft;
constexpr Qt::Alignment kCentre = Qt::AlignHCenter;

struct Placed {
  const char* name;
  QRect place;
};

class Forms : public OnDesk {
 protected:
  /// The form looks like the sheet, with these controls on it.
  void ExpectLook(const desktop::Form& form, Sheet sheet, const std::vector<Placed>& controls) {
    desktop::qt::FormView& view = *ViewOf(form);
    const int border = form.Border;
    for (const auto& [name, place] : controls) {
      QWidget* control = Control(form, name);
      ASSERT_TRUE(control && control->isVisible()) << name;
      EXPECT_EQ(control->geometry(), place.translated(border, border)) << name;
      EXPECT_TRUE(!qobject_cast<QPushButton*>(control) || IsWooden(Shown(*control))) << name;
      sheet.LeaveOut(place);
    }
    EXPECT_TRUE(sheet.IsShownBy(Shown(view, view.rect().adjusted(border, border, -border, -border)))) << form.Name;
  }
  QColor Pixel(const desktop::Form& form, QPoint at) {
    return Shown(*ViewOf(form)).pixelColor(Device(at.x()), Device(at.y()));
  }
};

TEST_F(Forms, Opening) {
  Sheet sheet({632, 406}, kGround);
  for (const QRect& groove : {QRect(8, 0, 615, 3), QRect(8, 0, 3, 297), QRect(8, 294, 615, 3), QRect(620, 0, 3, 297)})
    sheet.LeaveOut(groove);
  sheet.Picture("ThistleAndLantern128", {16, 24});
  sheet.Words({144, 24, 468, 36}, kCentre, "Quenby Software", {24});
  sheet.Words({144, 80, 468, 45}, kCentre, "presents", {24, true, true});
  sheet.Words({144, 128, 468, 63}, kCentre, "Thistle and Lantern", {42, true, true, false, kOrange});
  ExpectLook(frame.Splash, sheet,
             {{"Instructions", {8, 312, 150, 81}},
              {"Options", {163, 312, 150, 81}},
              {"Play Game", {318, 312, 150, 81}},
              {"Exit", {473, 312, 150, 81}}});
  for (const QPoint border : {QPoint(300, 0), QPoint(8, 150), QPoint(300, 296), QPoint(622, 150)})
    EXPECT_NE(Pixel(frame.Splash, border), QColor(kGround)) << border.x() << ", " << border.y();
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

  const auto isOff = [&] {
    const auto set = [&](const char* name) {
      return qobject_cast<QAbstractButton*>(Control(frame.Options, name))->isChecked();
    };
    EXPECT_NE(set("Sounds Off"), set("Sounds On"));
    EXPECT_NE(set("Sounds Off"), frame.module1.SoundOn);
    return set("Sounds Off");
  };
  Click(frame.Options, {300, 165});
  EXPECT_FALSE(isOff()) << "the words beside a mark have no click of their own";
  Click(frame.Options, {240, 165});
  EXPECT_TRUE(isOff());
  Click(frame.Options, {300, 325});
  EXPECT_FALSE(frame.Options.Loaded);
  Menu("Options");
  EXPECT_TRUE(isOff());
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

/// Takes the place of the user's mail program and browser.
class Outside : public QObject {
  Q_OBJECT

 public:
  Outside() {
    for (const char* scheme : {"mailto", "https"}) QDesktopServices::setUrlHandler(scheme, this, "Take");
  }
  ~Outside() override {
    for (const char* scheme : {"mailto", "https"}) QDesktopServices::unsetUrlHandler(scheme);
  }
  QStringList opened;

 public slots:
  void Take(const QUrl& url) { opened += url.toString(QUrl::FullyEncoded); }
};

TEST_F(Forms, Support) {
  Menu("Support");
  Sheet sheet({632, 406}, kGround);
  for (const int left : {8, 496}) sheet.Picture("ThistleAndLantern128", {left, 16});
  const QStringList addresses{"support@quenby-software.example", "https://quenby-software.example"};
  const auto row = [&](int top, const QString& words, const Type& type) {
    sheet.Words({91, top, 450, 49}, kCentre, words, type);
  };
  row(8, "Support", {27.75, true, false, false, kOrange});
  row(80, "For All Support Questions", {18, true, false, false, kRed});
  row(120, "Email Us at", {18, true, false, false, kRed});
  row(160, addresses[0], {18, true, false, true, kBlue});
  row(208, "Or Visit Our Web Site at", {18, true, false, false, kRed});
  row(248, addresses[1], {18, true, false, true, kBlue});
  for (const int top : {160, 248})
    if (!IsWhole()) sheet.LeaveOut({91, top, 450, 33});
  ExpectLook(frame.Support, sheet, {{"Return", {266, 312, 100, 26}}});
  EXPECT_EQ(Focus(), "Return") << "the only control that can have it";

  Outside outside;
  for (int i = 0; i < 2; ++i) {
    const QWidget& link = *Control(frame.Support, addresses[i]);
    EXPECT_EQ(link.geometry(), QRect(91, i == 0 ? 160 : 248, 450, 33));
    EXPECT_EQ(link.cursor().shape(), Qt::PointingHandCursor);
    Click(frame.Support, link.geometry().center());
  }
  EXPECT_EQ(outside.opened, (QStringList{"mailto:" + addresses[0], addresses[1]}));
  EXPECT_TRUE(frame.Support.Loaded && Focus() == "Return");
}

class Instructions : public Forms {
 protected:
  void SetUp() override {
    Forms::SetUp();
    Menu("Instructions");
  }
  QTextEdit& Text() { return *ViewOf(frame.Help)->findChild<QTextEdit*>(); }
};

TEST_F(Instructions, StandInAViewThatScrollsAndCannotBeTypedInto) {
  Sheet sheet({632, 406}, kGround);
  for (const int left : {0, 600}) sheet.Picture("ThistleLantern32", {left, 374});
  ExpectLook(frame.Help, sheet, {{"Instructions", {0, 0, 633, 374}}, {"Return", {266, 376, 100, 26}}});

  QScrollBar& bar = *Text().verticalScrollBar();
  EXPECT_EQ(bar.value(), 0);
  Key(Qt::Key_PageDown);
  EXPECT_GT(bar.value(), 200);
  Key(Qt::Key_End);
  EXPECT_EQ(bar.value(), bar.maximum());
  Key(Qt::Key_PageUp);
  EXPECT_LT(bar.value(), bar.maximum());
  EXPECT_EQ(Focus(), "Return");

  const QString text = Text().toPlainText();
  Text().setFocus();
  QTest::keyClicks(&Text(), "typed");
  QTest::keyClick(&Text(), Qt::Key_Delete);
  EXPECT_EQ(Text().toPlainText(), text);
  QTest::keyClick(&Text(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Text().textCursor().selectedText().size(), text.size()) << "but it can be selected";
}

TEST_F(Instructions, SayWhatTheyShould) {
  struct Wanted {
    QString begin;
    QString end;
    int words;
  };
  const auto whole = [](const QString& text) {
    return Wanted{text, text, static_cast<int>(text.simplified().split(' ').size())};
  };
  const Wanted none{"", "", 1};
  // An asterisk is a picture.
  const Wanted paragraphs[] = {
      whole("Instructions for Thistle & Lantern"),
      none,
      whole("Object of the Game"),
      whole("Thistle & Lantern is a simple betting game.   The object of the game is win money."),
      none,
      whole("Game Summary"),
      {"",
       ".   The game is played using three special dice with the faces marked with a heart, a club, a spade, a "
       "diamond, a thistle, and a lantern, and a betting mat with six places, each having one of the six dice "
       "symbols.",
       0},
      whole("The Dice Faces:\t*\t*\t*\t*\t*\t*"),
      whole("The Betting Mat:\t         *"),
      {"Each player puts a wager on one or more of",
       ".   If all three dice show your symbol, the banker pays you "
       "three times your bet.",
       97},
      none,
      whole("Game Play"),
      whole("You start with a total £200, £130 in £10 notes, £60 in £5 notes, and £10 in £1 coins."),
      whole("£10 Note:    *\t£5 Note:    *\t£1 Coin:    *"),
      {"Drag and drop notes or coins onto the betting mat in the center of the screen.   You may",
       "they are not "
       "shown, they will reappear when there is space for them.",
       115},
      none,
      whole("Dragging and Dropping"),
      {"Position the mouse over the note or coin to be dragged.   Press and hold",
       "the cursor will show the no-drop "
       "symbol (*).   If you drop while the no-drop symbol is displayed, the note or coin will return to your pile.",
       116},
      none,
      whole("Getting Change"),
      {"If you run short of the lower denominations, use the \"Get Change\" button",
       "on the betting mat, and you "
       "have less than 20 £5 notes or less than 20 £1 coins.",
       50},
      none,
      whole("Running Out of Money"),
      whole("When you have no money left, a dialogue box will appear, inviting you to accept a further £200.   If you "
            "refuse, the game will end."),
      none,
      whole("Money From Previous Games"),
      {"If there is any money left from your last game, it will be remembered,",
       "asking if you wish to play with "
       "this amount.   If you refuse, you will start with the normal £200.",
       46},
      none,
      whole("Options"),
      whole("Sounds may be turned on and off in the Options menu."),
      none,
      whole("Support"),
      whole("Email us at support@quenby-software.example"),
      none,
      whole("WebSite"),
      whole("Visit us at https://quenby-software.example")};
  QTextBlock block = Text().document()->begin();
  for (const auto& [begin, end, words] : paragraphs) {
    const QString text = block.text().replace(QChar::ObjectReplacementCharacter, '*');
    EXPECT_TRUE(text.startsWith(begin) && text.endsWith(end)) << text.toStdString();
    if (words > 0) {
      EXPECT_EQ(text.simplified().split(' ').size(), words) << text.toStdString();
    }
    block = block.next();
  }
  EXPECT_FALSE(block.isValid());
}

TEST_F(Instructions, HaveTheirTypesAndPictures) {
  const QTextDocument& document = *Text().document();
  EXPECT_EQ(document.defaultTextOption().tabStopDistance(), 48);
  std::vector<QSize> pictures;
  std::set<QString> types;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    EXPECT_EQ(block.blockFormat().alignment().testFlag(Qt::AlignHCenter), block.blockNumber() == 0);
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextCharFormat format = at.fragment().charFormat();
      const QFont font = format.font();
      if (!format.isImageFormat()) {
        types.insert(QFontInfo(font).family() + ' ' + QString::number(font.pixelSize()) + (font.bold() ? "b" : "") +
                     (font.italic() ? "i" : "") + (font.underline() ? "u" : "") + format.foreground().color().name());
        continue;
      }
      const QTextImageFormat image = format.toImageFormat();
      const QSize size(static_cast<int>(image.width()), static_cast<int>(image.height()));
      const auto pixels = document.resource(QTextDocument::ImageResource, image.name()).value<QPixmap>();
      EXPECT_EQ(pixels.size(), Device(QRect({}, size)).size()) << "sharp: " << image.name().toStdString();
      pictures.insert(pictures.end(), static_cast<std::size_t>(at.fragment().length()), size);
    }
  }
  // 16, 14 and 12 points are 21, 19 and 16 pixels.
  EXPECT_EQ(types, (std::set<QString>{"Liberation Serif 21biu#cc9900", "Liberation Serif 19biu#008000",
                                      "Liberation Serif 16#000000", "Liberation Serif 16u#0000ff"}));
  std::vector<QSize> wanted(6, QSize(32, 32));
  for (const QSize size : {QSize(200, 37), QSize(84, 44), QSize(79, 40), QSize(27, 27), QSize(15, 15)})
    wanted.push_back(size);
  EXPECT_EQ(pictures, wanted);
}

/// The user's theme, for as long as it lives.
class Theme {
 public:
  Theme(QRgb ground, QRgb words, QRgb tooltip) {
    QPalette colours;
    for (int role = 0; role < QPalette::NColorRoles; ++role)
      colours.setColor(static_cast<QPalette::ColorRole>(role), QColor(ground));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
      colours.setColor(role, QColor(words));
    QApplication::setPalette(colours);
    colours.setColor(QPalette::ToolTipBase, QColor(tooltip));
    QToolTip::setPalette(colours);
  }
  ~Theme() {
    QApplication::setPalette(QPalette());
    QToolTip::setPalette(QApplication::palette("QTipLabel"));
  }
};

TEST_F(Forms, AreTheirOwnUnderAnyTheme) {
  std::map<QString, QImage> light;
  const std::pair<const char*, desktop::Form*> forms[] = {
      {"Options", &frame.Options}, {"Support", &frame.Support}, {"Instructions", &frame.Help}, {"About", &frame.About}};
  for (const auto& [ground, words] : {std::pair<QRgb, QRgb>{0xF0F0F0, 0x000000}, {0x202020, 0xE0E0E0}}) {
    const Theme theme(ground, words, 0xFFFFDC);
    for (const auto& [name, form] : forms) {
      Menu(name);
      const QImage now = Shown(*ViewOf(*form));
      EXPECT_TRUE(Same(now, light.try_emplace(name, now).first->second)) << name;
      Key(Qt::Key_Return);
    }
    // Menu and questions are the user's own.
    EXPECT_EQ(desktop.window().findChild<QMenuBar*>()->palette().color(QPalette::Window), QColor(ground));
    const desktop::qt::QuestionBox box("", "", &desktop.window());
    EXPECT_EQ(box.palette().color(QPalette::WindowText), QColor(words));
  }
}

TEST_F(Forms, InstructionsHaveTheTooltipsGroundIfBlackCanBeReadOnIt) {
  const auto ground = [&](QRgb tooltip) {
    const Theme theme(0x202020, 0xE0E0E0, tooltip);
    Menu("Instructions");
    const QColor shown = Pixel(frame.Help, {2, 300});
    Key(Qt::Key_Return);
    return shown;
  };
  for (const QRgb light : {0xFFFFDCU, 0x80C0F0U}) EXPECT_EQ(ground(light), QColor(light));
  for (const QRgb dark : {0x000000U, 0x202020U, 0x0000A0U, 0x603000U}) EXPECT_GT(ground(dark).lightness(), 220) << dark;
}

}  // namespace

#include "forms_test.moc"
