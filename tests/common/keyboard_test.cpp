// What a key means on the form in front.
#include "desktop/common/keyboard.h"

#include <gtest/gtest.h>

#include "tests/common/bench_form.h"

namespace {

using namespace desktop::common;
using desktop::Key;

class Keyboard : public testing::Test {
 protected:
  std::string Clicked(Key key, bool held = false) {
    const auto* pressed = MeaningOf(form, key, held).click;
    return pressed ? pressed->Caption : "";
  }
  /// Where the keyboard goes by so many keys, as first letters.
  std::string Walk(Key key, int keys) {
    std::string walk;
    for (; keys > 0; --keys)
      if ((form.Focus = MeaningOf(form, key, keys % 2 == 0).focus)) walk += form.Focus->Caption.substr(0, 2) + " ";
    return walk;
  }

  bench::Form form{"form"};
};

TEST_F(Keyboard, TabVisitsInOrderWhatCanTakeTheKeyboard) {
  EXPECT_EQ(Walk(Key::Tab, 6), "te pl cl of on te ") << "no link, and round";
  EXPECT_EQ(Walk(Key::BackTab, 2), "on of ");
  form.plain.Visible = false;
  form.closing.Enabled = false;
  form.Focus = &form.text;
  EXPECT_EQ(Walk(Key::Tab, 2), "of on ");
  for (auto* control : {&form.text, &form.off, &form.on}) control->Enabled = false;
  EXPECT_EQ(MeaningOf(form, Key::Tab, false).focus, nullptr);
}

TEST_F(Keyboard, EnterSpaceAndEscPressByFocusAndByRole) {
  for (const auto& [focus, enter, space] : {std::tuple{static_cast<desktop::Element*>(nullptr), "closing", ""},
                                            {&form.plain, "plain", "plain"},
                                            {&form.closing, "closing", "closing"},
                                            {&form.off, "closing", "off"},
                                            {&form.text, "closing", ""}}) {
    form.Focus = focus;
    EXPECT_EQ(Clicked(Key::Enter), enter);
    EXPECT_EQ(Clicked(Key::Space), space);
    EXPECT_EQ(Clicked(Key::Escape), "closing");
    for (const Key key : {Key::Enter, Key::Space, Key::Escape}) EXPECT_EQ(Clicked(key, true), "") << "held down";
  }
  form.Focus = &form.plain;
  form.plain.Visible = false;
  EXPECT_EQ(Clicked(Key::Space), "") << "it has gone";
  EXPECT_EQ(Clicked(Key::Enter), "closing");
  form.closing.Enabled = false;
  EXPECT_EQ(Clicked(Key::Enter) + Clicked(Key::Escape), "") << "it is dead";
}

TEST_F(Keyboard, ArrowsChooseAmongOptionsAndScrollElsewhere) {
  form.Focus = &form.off;
  for (const Key key : {Key::Down, Key::Right}) EXPECT_EQ(Clicked(key), "on");
  for (const Key key : {Key::Up, Key::Left}) EXPECT_EQ(Clicked(key), "");
  form.Focus = &form.on;
  EXPECT_EQ(Clicked(Key::Up) + Clicked(Key::Down), "off");
  form.Focus = &form.closing;
  const std::pair<Key, Scroll> rows[] = {{Key::Up, Scroll::LineUp},     {Key::Down, Scroll::LineDown},
                                         {Key::PageUp, Scroll::PageUp}, {Key::PageDown, Scroll::PageDown},
                                         {Key::Home, Scroll::ToStart},  {Key::End, Scroll::ToEnd},
                                         {Key::Left, Scroll::None},     {Key::Tab, Scroll::None}};
  for (const auto& [key, scroll] : rows) EXPECT_EQ(MeaningOf(form, key, true).scroll, scroll);
}

TEST_F(Keyboard, AFormInFrontGivesItToWhatHadItLastOrToItsDefault) {
  TakeKeyboard(form);
  EXPECT_EQ(form.Focus, &form.closing);
  form.Focus = &form.on;
  TakeKeyboard(form);
  EXPECT_EQ(FocusOf(form), &form.on);
  form.on.Enabled = false;
  EXPECT_EQ(FocusOf(form), nullptr);
  TakeKeyboard(form);
  EXPECT_EQ(FocusOf(form), &form.closing);
  EXPECT_TRUE(TakesFocusByMouse(form.plain));
  EXPECT_FALSE(TakesFocusByMouse(form.text) || TakesFocusByMouse(form.link));
}

}  // namespace
