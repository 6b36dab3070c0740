// A form for tests of what desktops do with one, and type of which every letter is 10 wide.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "desktop/common/text_box.h"
#include "desktop/frame.h"

namespace bench {

using desktop::Element;
using desktop::Kind;

/// Lines 20 high, 24 apart.
class Type : public desktop::common::TextMeasure {
 public:
  double Advance(std::string_view text, const desktop::Font&) const override {
    return 10 * static_cast<double>(text.size());
  }
  double Height(const desktop::Font&) const override { return 20; }
  double Spacing(const desktop::Font&) const override { return 24; }
};

inline Element Laid(Kind kind, float left, float top, float width, float height, std::string caption = {}) {
  Element element;
  element.Kind = kind;
  element.Left = left;
  element.Top = top;
  element.Width = width;
  element.Height = height;
  element.Caption = std::move(caption);
  return element;
}

/// Three boxes that overlap, a text, and one control of each kind. Writes down what reaches its handlers.
class Form : public desktop::Form {
 public:
  explicit Form(std::string_view name) : desktop::Form(name) {
    Width = 100;
    Height = 100;
    for (Element& box : boxes) Add(box);
    Add(label);
    for (Element* control : {&text, &link, &plain, &closing, &off, &on}) Add(*control);
    closing.Default = closing.Cancel = true;
  }

  void Form_Load() override {}
  void MouseDown(Element& element, int Button, float X, float Y) override { Note("down", element, Button, X, Y); }
  void MouseMove(Element& element, int Button, float X, float Y) override { Note("move", element, Button, X, Y); }
  void MouseUp(Element& element, int Button, float X, float Y) override { Note("up", element, Button, X, Y); }
  void MouseLost(Element& element) override { told += "lost " + element.Caption + "; "; }
  void Click(Element& element) override {
    told += "click " + element.Caption + "; ";
    clicked();
  }
  std::vector<desktop::Stop> Stops() const override { return stops; }
  void ToFront(const Element& element) { BringToFront(element); }

  std::array<Element, 3> boxes{Laid(Kind::Image, 0, 0, 10, 10, "a"), Laid(Kind::Image, 5, 0, 10, 10, "b"),
                               Laid(Kind::Image, 50, 50, 10, 10, "c")};
  Element label = Laid(Kind::Label, 20, 60, 30, 20, "one two");
  Element text = Laid(Kind::TextView, 0, 80, 10, 10, "text");
  Element link = Laid(Kind::Link, 10, 80, 10, 10, "link");
  Element plain = Laid(Kind::Button, 20, 80, 10, 10, "plain");
  Element closing = Laid(Kind::Button, 30, 80, 10, 10, "closing");
  Element off = Laid(Kind::OptionButton, 40, 80, 10, 10, "off");
  Element on = Laid(Kind::OptionButton, 50, 80, 10, 10, "on");

  std::vector<desktop::Stop> stops;
  std::string told;
  std::function<void()> clicked = [] {};

 private:
  void Note(const char* what, const Element& element, int button, float x, float y) {
    told += std::string(what) + " " + element.Caption + " " + std::to_string(button) + " at " +
            std::to_string(static_cast<int>(x)) + "," + std::to_string(static_cast<int>(y)) + "; ";
  }
};

class Frame : public desktop::Frame {
 public:
  void MenuClick(std::string_view name) override { told += "menu " + std::string(name) + "; "; }
  void Resize() override { told += "resize " + std::to_string(static_cast<int>(State)) + "; "; }
  void Close() override { told += "close; "; }

  std::string told;
};

}  // namespace bench
