// A form: a list of elements with an order of stacking, and the handlers of its events.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "desktop/element.h"
#include "desktop/stop.h"

namespace desktop {

enum class PointerShape { Default, NoDrop };

/// Mouse buttons as the handlers of an element get them: one of them at a press or release, their
/// sum at a move.
inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;
inline constexpr int kMiddleButton = 4;

/// Of a form, in words.
struct Sentence {
  std::string Words;
  int Times = 0;  ///< it has come true: told again when it does so again
  bool operator==(const Sentence&) const = default;
};

class Form {
 public:
  explicit Form(std::string_view name) : Name(name) {}
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  std::string_view Name;
  std::string AccessibleName;  ///< what a screen reader calls it
  bool Loaded = false;
  float Left = 0;        ///< pixels, in the frame's client area
  float Top = 0;         ///< pixels, in the frame's client area
  float NormalLeft = 0;  ///< pixels; the place in a frame that is not maximised
  float NormalTop = 0;   ///< pixels
  int Width = 0;         ///< pixels, with the border
  int Height = 0;        ///< pixels, with the border
  int Border = 0;        ///< pixels on each side; elements count from inside it
  Colour BackColor;
  PointerShape MousePointer = PointerShape::Default;
  Element* Focus = nullptr;  ///< the control that has the keyboard while the form is in front; written by the desktop
  int AtStop = kNoStop;      ///< where the keyboard stands, of the form's stops; written by the desktop
  bool ShowsStop = false;    ///< keys are in use, so a ring shows where; written by the desktop
  /// Pictures that handlers give to elements while the form is on show: to be ready by then.
  std::vector<const Picture*> PicturesToCome;

  /// Shapes, images and labels, back to front.
  const std::vector<Element*>& Graphics() const { return graphics_; }
  /// Buttons, option buttons, links and views in the order in which Tab visits them. They lie in front of
  /// all images and labels.
  const std::vector<Element*>& Controls() const { return controls_; }

  void BringToFront(const Element& element);

  /// The frontmost visible and enabled image or label under a point, or nullptr.
  Element* ElementAt(float x, float y) const;

  /// Runs when the form is opened: lays it out, fills it in and shows it.
  virtual void Form_Load() = 0;

  /// Presses on this element and clicks of it are passed over for now, as if they did not reach the
  /// form.
  virtual bool HoldsBack(const Element&) const { return false; }
  virtual void MouseDown(Element&, int /*Button*/, float /*X*/, float /*Y*/) {}
  virtual void MouseMove(Element&, int /*Button*/, float /*X*/, float /*Y*/) {}
  virtual void MouseUp(Element&, int /*Button*/, float /*X*/, float /*Y*/) {}
  /// The mouse was taken away between a left press on the element and its release; no release
  /// follows.
  virtual void MouseLost(Element&) {}
  virtual void Click(Element&) {}

  /// All that keys and screen readers find on the form beside its texts, in the order of Tab: always as many. None: its
  /// controls are all there is.
  virtual std::vector<Stop> Stops() const { return {}; }
  /// What keys do wherever on the form the keyboard is.
  virtual std::vector<Deed> DeedsAnywhere() const { return {}; }
  /// What a screen reader is told of the pictures on the form: always as many sentences, of which some may be empty.
  /// One that changes is told when it does.
  virtual std::vector<Sentence> Sentences() const { return {}; }

 protected:
  /// Puts an element on the form, in front of those before it.
  void Add(Element& element);
  /// Takes all elements off, for a new load.
  void Clear();

 private:
  std::vector<Element*> graphics_;
  std::vector<Element*> controls_;
};

}  // namespace desktop
