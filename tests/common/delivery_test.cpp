// What every desktop does before and after a handler.
#include "desktop/common/delivery.h"

#include <gtest/gtest.h>

#include "tests/common/bench_form.h"

namespace {

using namespace desktop::common;
using desktop::Key;
using desktop::kLeftButton;
using desktop::WindowState;

class Bench : public testing::Test, protected Screen {
 protected:
  void SetUp() override {
    frame.Show(back);
    frame.Show(form);
  }
  void Follow() override { form.told += "| "; }
  /// What has been told since the last call.
  std::string Told() { return std::exchange(form.told, {}) + std::exchange(frame.told, {}); }

  bench::Frame frame;
  bench::Form back{"back"};
  bench::Form form{"form"};
  Waits waits;
  Delivery delivery{frame, *this, waits};
};

TEST_F(Bench, TheScreenFollowsEachEvent) {
  delivery.Press(form, kLeftButton, 52, 53);
  EXPECT_EQ(Told(), "down c 1 at 30,45; | ");
  EXPECT_EQ(delivery.Holder(), &form.boxes[2]);
  delivery.Move(kLeftButton, 60, 60);
  EXPECT_EQ(Told(), "move c 1 at 150,150; | ");
  delivery.Release(kLeftButton, 51, 51);
  EXPECT_EQ(Told(), "up c 1 at 15,15; click c; | ");
  delivery.Move(kLeftButton, 60, 60);
  delivery.Release(kLeftButton, 60, 60);
  EXPECT_EQ(Told(), "") << "nothing holds the mouse";
}

TEST_F(Bench, PointsCountFromInsideTheBorder) {
  form.Border = 3;
  delivery.Press(form, kLeftButton, 53, 53);
  delivery.Move(kLeftButton, 54, 53);
  delivery.Release(kLeftButton, 54, 55);
  EXPECT_EQ(Told(), "down c 1 at 0,0; | move c 1 at 15,0; | up c 1 at 15,30; click c; | ");
}

TEST_F(Bench, WhateverTakesTheMouseTellsTheOneThatHoldsIt) {
  const std::tuple<const char*, std::function<void()>, const char*> takers[] = {
      {"a menu opens", [&] { delivery.OpenMenu(); }, "lost a; | "},
      {"an entry is chosen", [&] { delivery.ChooseMenu("About"); }, "lost a; | menu About; "},
      {"the window hides", [&] { delivery.Hide(); }, "lost a; | "},
      {"it is minimised", [&] { delivery.Resize(WindowState::Minimised); }, "lost a; | resize 1; "},
      {"it is maximised", [&] { delivery.Resize(WindowState::Maximised); }, "| resize 2; "},
      {"a question", [&] { delivery.Ask([] { return true; }); }, "lost a; | "},
      {"a handler", [&] { delivery.ReleaseMouse(); }, "lost a; "},
      {"a release that was lost", [&] { delivery.Move(0, 1, 1); }, "lost a; | "},
      {"a second press", [&] { delivery.Press(form, kLeftButton, 52, 52); }, "lost a; down c 1 at 30,30; | "}};
  for (const auto& [name, take, told] : takers) {
    delivery.Press(form, kLeftButton, 1, 1);
    Told();
    take();
    EXPECT_EQ(Told(), told) << name;
    delivery.ReleaseMouse();
    Told();
  }
  delivery.Close();
  EXPECT_EQ(Told(), "| close; ");
}

TEST_F(Bench, APressBringsItsFormToTheFrontAndAClickReachesALiveControl) {
  delivery.PressControl(back, back.plain);
  EXPECT_EQ(frame.Children().back(), &back);
  EXPECT_EQ(back.Focus, &back.plain);
  delivery.PressControl(back, back.text);
  EXPECT_EQ(back.Focus, &back.plain) << "a text is read, not typed into";
  delivery.Press(form, kLeftButton, 99, 1);
  EXPECT_EQ(frame.Children().back(), &form) << "on its bare ground, too";
  Told();
  delivery.ClickControl(form, form.plain);
  EXPECT_EQ(Told(), "click plain; | ");
  form.plain.Enabled = false;
  delivery.ClickControl(form, form.plain);
  EXPECT_EQ(Told(), "| ");
}

TEST_F(Bench, KeysReachTheFormInFrontAlone) {
  EXPECT_EQ(delivery.PressKey(Key::PageDown, false), Scroll::PageDown);
  EXPECT_EQ(Told(), "") << "the view's own business";
  delivery.PressKey(Key::Tab, false);
  EXPECT_EQ(form.Focus, &form.text);
  delivery.PressKey(Key::Escape, false);
  EXPECT_EQ(Told(), "| click closing; | ");
  form.Focus = &form.off;
  delivery.PressKey(Key::Down, false);
  EXPECT_EQ(Told(), "click on; | ");
  EXPECT_EQ(form.Focus, &form.on);
  EXPECT_EQ(back.told, "");
  frame.Unload(form);
  frame.Unload(back);
  EXPECT_EQ(delivery.PressKey(Key::Down, false), Scroll::None) << "no form at all";
  delivery.SetFocus(form, form.plain);
  EXPECT_EQ(form.Focus, &form.plain);
}

TEST_F(Bench, AHoldEndsWithTheFormThatItIsOn) {
  delivery.Press(form, kLeftButton, 52, 53);
  form.clicked = [&] { frame.Unload(form); };
  delivery.PressKey(Key::Escape, false);
  EXPECT_EQ(delivery.HeldOn(), nullptr);
  form.clicked = [] {};
  EXPECT_EQ(Told(), "down c 1 at 30,45; | click closing; lost c; | ");
}

TEST_F(Bench, AHandDoesWhatThePlayersOwnCouldDoNow) {
  const desktop::Hand hand{52, 53, 51, 55};
  delivery.MoveHand(form, hand);
  EXPECT_EQ(Told(), "down c 1 at 30,45; | move c 1 at 15,75; | up c 1 at 15,75; click c; | ");
  delivery.MoveHand(form, {99, 1, 52, 53});
  EXPECT_EQ(Told(), "| ") << "it has taken hold of nothing";
  const auto inVain = [&] {
    delivery.MoveHand(form, hand);
    delivery.PressKey(Key::Escape, false);
    delivery.ClickControl(form, form.plain);
    delivery.ChooseMenu("About");
    return Told();
  };
  delivery.Ask([&] {
    Told();
    EXPECT_EQ(inVain(), "") << "a question is open";
    return true;
  });
  delivery.MoveHand(back, hand);
  EXPECT_EQ(back.told, "") << "another form is in front";
  frame.State = WindowState::Minimised;
  delivery.MoveHand(form, hand);
  EXPECT_EQ(Told(), "");
  frame.State = WindowState::Normal;
  delivery.Press(form, kLeftButton, 1, 1);
  Told();
  delivery.MoveHand(form, hand);
  EXPECT_EQ(Told(), "") << "the mouse is held";
}

/// Runs what a test wants within a rest, and counts how often it is ended.
class ScriptedRest : public Rest {
 public:
  explicit ScriptedRest(std::function<void()> within) : within_(std::move(within)) {}
  void Run() override { within_(); }
  void End() override { ++ended; }
  int ended = 0;

 private:
  std::function<void()> within_;
};

TEST_F(Bench, AnEventHasTheInnermostWaitLookUpAndNoOther) {
  ScriptedRest inner([&] {
    EXPECT_EQ(waits.Depth(), 2);
    delivery.Hide();
  });
  ScriptedRest broken([] { throw 1; });
  ScriptedRest outer([&] {
    form.clicked = [&] { waits.Run(inner); };
    delivery.ClickControl(form, form.plain);
    EXPECT_THROW(waits.Run(broken), int);
    EXPECT_EQ(waits.Depth(), 1);
    delivery.Hide();
  });
  waits.Run(outer);
  EXPECT_EQ(inner.ended, 1);
  EXPECT_EQ(outer.ended, 2) << "after the click that waited, and after the rest that was left by force";
  EXPECT_EQ(waits.Depth(), 0);
  delivery.Hide();
  EXPECT_EQ(outer.ended, 2) << "nobody waits";
}

}  // namespace
