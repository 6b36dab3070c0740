#include "desktop/qt/control.h"

#include "desktop/qt/link_label.h"
#include "desktop/qt/option_mark.h"
#include "desktop/qt/text_view.h"
#include "desktop/qt/wood_button.h"

namespace desktop::qt {

namespace {

template <typename Button>
Control* Connected(Button* button, const ControlEvents& events) {
  // Which control has the keyboard stands in the records.
  button->setFocusPolicy(Qt::NoFocus);
  QObject::connect(button, &QAbstractButton::pressed, button, events.pressed);
  QObject::connect(button, &QAbstractButton::clicked, button, events.clicked);
  return button;
}

}  // namespace

Control* MakeControl(const Element& record, const ControlEvents& events, PictureStore& pictures, QWidget* parent) {
  switch (record.Kind) {
    case Kind::OptionButton:
      return Connected(new OptionMark(parent), events);
    case Kind::Link:
      return Connected(new LinkLabel(pictures, parent), events);
    case Kind::TextView:
      return new TextView(pictures, parent);
    default:
      return Connected(new WoodButton(pictures, parent), events);
  }
}

}  // namespace desktop::qt
