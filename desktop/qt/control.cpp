#include "desktop/qt/control.h"

#include "desktop/common/scale.h"
#include "desktop/qt/canvas.h"
#include "desktop/qt/link_label.h"
#include "desktop/qt/option_mark.h"
#include "desktop/qt/text_view.h"
#include "desktop/qt/wood_button.h"

namespace desktop::qt {

void Controls::Follow() {
  for (Element* record : form_.Controls()) {
    Control& control = ControlOf(*record);
    control.widget().setGeometry(ToQt(common::BoxOf(*record).Moved(form_.Border, form_.Border)));
    control.widget().setEnabled(record->Enabled);
    control.widget().setVisible(record->Visible);
    control.Follow(*record);
  }
}

Control& Controls::ControlOf(Element& record) {
  Control*& control = made_[&record];
  if (control) return *control;
  control = Make(record);
  control->widget().installEventFilter(&view_);
  return *control;
}

Control* Controls::Make(Element& record) {
  switch (record.Kind) {
    case Kind::OptionButton:
      return Connected(new OptionMark(&view_), record);
    case Kind::Link:
      return Connected(new LinkLabel(pictures_, &view_), record);
    case Kind::TextView:
      return new TextView(pictures_, &view_, [this, &record] { delivery_.PressControl(form_, record); });
    default:
      return Connected(new WoodButton(pictures_, &view_), record);
  }
}

template <typename Button>
Control* Controls::Connected(Button* button, Element& record) {
  // Which control has the keyboard stands in the records.
  button->setFocusPolicy(Qt::NoFocus);
  QObject::connect(button, &QAbstractButton::pressed, button,
                   [this, &record] { delivery_.PressControl(form_, record); });
  QObject::connect(button, &QAbstractButton::clicked, button,
                   [this, &record] { delivery_.ClickControl(form_, record); });
  return button;
}

}  // namespace desktop::qt
