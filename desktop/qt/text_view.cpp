#include "desktop/qt/text_view.h"

#include <QEvent>
#include <QScrollBar>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextImageFormat>
#include <QToolTip>
#include <QUrl>
#include <utility>

#include "desktop/common/ground.h"
#include "desktop/common/scale.h"
#include "desktop/qt/canvas.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

namespace {

QColor Ground() {
  const QColor tooltip = QToolTip::palette().color(QPalette::ToolTipBase);
  return ToQt(common::TextGround({tooltip.rgb() & 0xFFFFFF}));
}

QTextCharFormat Format(const TextStyle& style) {
  QTextCharFormat format;
  format.setFont(ToQt(style.Font));
  format.setForeground(ToQt(style.ForeColor));
  return format;
}

}  // namespace

TextView::TextView(PictureStore& pictures, QWidget* parent, std::function<void()> pressed)
    : QTextEdit(parent), pictures_(pictures), pressed_(std::move(pressed)) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  // Which control has the keyboard stands in the records.
  setFocusPolicy(Qt::NoFocus);
  setFrameShape(QFrame::NoFrame);
  QPalette colours = palette();
  colours.setColor(QPalette::Base, Ground());
  setPalette(colours);
  viewport()->installEventFilter(this);
  verticalScrollBar()->installEventFilter(this);
}

bool TextView::eventFilter(QObject* part, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) pressed_();
  return QTextEdit::eventFilter(part, event);
}

void TextView::Follow(const Element& record) {
  if (record.Text == shown_ || !record.Text) return;
  shown_ = record.Text;
  setAccessibleName(Text(record.AccessibleName));
  LoadPictures();
  Write();
}

void TextView::ScrollBy(common::Scroll scroll) {
  using common::Scroll;
  struct Step {
    Scroll scroll;
    QAbstractSlider::SliderAction action;
  };
  constexpr Step kSteps[] = {
      {Scroll::LineUp, QAbstractSlider::SliderSingleStepSub}, {Scroll::LineDown, QAbstractSlider::SliderSingleStepAdd},
      {Scroll::PageUp, QAbstractSlider::SliderPageStepSub},   {Scroll::PageDown, QAbstractSlider::SliderPageStepAdd},
      {Scroll::ToStart, QAbstractSlider::SliderToMinimum},    {Scroll::ToEnd, QAbstractSlider::SliderToMaximum}};
  for (const auto& [step, action] : kSteps)
    if (step == scroll) verticalScrollBar()->triggerAction(action);
}

void TextView::paintEvent(QPaintEvent* event) {
  // The window may have come to a screen of another density.
  if (shown_ && ratio_ != devicePixelRatioF()) LoadPictures();
  QTextEdit::paintEvent(event);
}

void TextView::LoadPictures() {
  ratio_ = devicePixelRatioF();
  const common::Scale scale(ratio_);
  for (const Paragraph& paragraph : shown_->Paragraphs)
    for (const Run& run : paragraph.Runs) {
      if (!run.Picture) continue;
      QPixmap pixmap = pictures_.Sized(*run.Picture, scale.Device(*run.Picture));
      pixmap.setDevicePixelRatio(ratio_);
      document()->addResource(QTextDocument::ImageResource, QUrl(Text(run.Picture->name)), pixmap);
    }
}

void TextView::Write() {
  QTextCursor cursor(document());
  bool first = true;
  for (const Paragraph& paragraph : shown_->Paragraphs) {
    QTextBlockFormat block;
    block.setAlignment(paragraph.Alignment == Align::Centre ? Qt::AlignHCenter : Qt::AlignLeft);
    if (first)
      cursor.setBlockFormat(block);
    else
      cursor.insertBlock(block);
    first = false;
    for (const Run& run : paragraph.Runs) {
      if (run.Picture)
        WritePicture(cursor, run);
      else
        cursor.insertText(QString::fromStdString(run.Text), Format(*run.Style));
      // An empty line is as high as its style.
      if (!run.Picture && run.Text.empty()) cursor.setBlockCharFormat(Format(*run.Style));
    }
  }
  QTextOption option = document()->defaultTextOption();
  option.setTabStopDistance(shown_->TabDistance);
  document()->setDefaultTextOption(option);
  moveCursor(QTextCursor::Start);
}

void TextView::WritePicture(QTextCursor& cursor, const Run& run) {
  QTextImageFormat format;
  format.setName(Text(run.Picture->name));
  format.setWidth(run.Picture->width);
  format.setHeight(run.Picture->height);
  format.setToolTip(QString::fromStdString(run.Meaning));
  cursor.insertImage(format);
}

}  // namespace desktop::qt
