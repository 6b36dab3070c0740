// A window that comes to a screen of another scale.
#include <gtest/gtest.h>
#include <windows.h>

#include "desktop/building_blocks.h"
#include "desktop/win32/win32_desktop.h"

namespace desktop::win32 {

namespace {

constexpr auto kTitle = "A Frame of the Test";
constexpr ButtonLook kLook{};

class OneButton : public Form {
 public:
  explicit OneButton(Frame& frame) : Form("OneButton"), frame_(frame) {}

  void Form_Load() override {
    Left = 10;
    Width = 100;
    Height = 60;
    Border = 2;
    Add(button_ = LaidButton("Button", {150, 300, 600, 150}, "Button", kLook));
    frame_.Show(*this);
  }

 private:
  Frame& frame_;
  Element button_;
};

class PlainFrame : public Frame {
 public:
  PlainFrame() {
    Caption = kTitle;
    ClientWidth = 300;
    ClientHeight = 200;
    Menu = {{"Entry", "Entry", {}}};
  }
  void MenuClick(std::string_view) override {}
  void Resize() override {}
  void Close() override {}
};

/// In pixels of the parent's inside.
RECT PlaceOf(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
  return place;
}

bool operator==(const RECT& a, const RECT& b) { return EqualRect(&a, &b) != FALSE; }

TEST(RescaleTest, SizesAndPlacesFollowTheScreen) {
  PlainFrame frame;
  OneButton form(frame);
  Win32Desktop desktop;
  desktop.ShowFrame(frame);
  frame.Open(form);
  const auto settle = [&] { desktop.RunEventsUntil(desktop.Clock() + 0.01); };
  settle();
  const HWND window = FindWindowW(nullptr, L"A Frame of the Test");
  ASSERT_TRUE(window);
  const HWND view = GetWindow(window, GW_CHILD);
  const HWND button = GetWindow(view, GW_CHILD);
  EXPECT_TRUE(PlaceOf(button) == (RECT{12, 22, 52, 32}));
  for (const int dpi : {144, 120, 192, 96}) {
    RECT suggested{40, 50, 41, 51};
    SendMessageW(window, WM_DPICHANGED, static_cast<WPARAM>(MAKELONG(dpi, dpi)), reinterpret_cast<LPARAM>(&suggested));
    settle();
    RECT inside{};
    GetClientRect(window, &inside);
    EXPECT_EQ(inside.right, 300 * dpi / 96);
    EXPECT_EQ(inside.bottom, 200 * dpi / 96);
    RECT outside{};
    GetWindowRect(window, &outside);
    EXPECT_EQ(outside.left, 40);
    EXPECT_EQ(outside.top, 50);
    const auto device = [dpi](int length) { return static_cast<LONG>((length * dpi + 48) / 96); };
    const LONG border = device(2);
    EXPECT_TRUE(PlaceOf(view) == (RECT{device(10), 0, device(10) + device(100), device(60)})) << dpi;
    EXPECT_TRUE(PlaceOf(button) == (RECT{border + device(10), border + device(20), border + device(10) + device(40),
                                         border + device(20) + device(10)}))
        << dpi;
  }
}

}  // namespace

}  // namespace desktop::win32
