// The windows of a frame with one form, unseen.
#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <thread>

#include "desktop/building_blocks.h"
#include "desktop/win32/win32_desktop.h"
#include "tests/common/bench_form.h"

namespace desktop::win32 {

namespace {

constexpr ButtonLook kLook{};

class OneButton : public Form {
 public:
  explicit OneButton(Frame& frame) : Form("OneButton"), frame_(frame) {}

  void Form_Load() override {
    Left = 10;
    Width = 100;
    Height = 60;
    Border = 2;
    Add(button_ = LaidButton("Button", {150, 300, 600, 150}, "\r\nIts\r\nname\r\n", kLook));
    frame_.Show(*this);
  }

  std::vector<Sentence> Sentences() const override {
    ++described;
    return {{"One button."}};
  }

  mutable int described = 0;

 private:
  Frame& frame_;
  Element button_;
};

/// In pixels of the parent's inside.
RECT PlaceOf(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
  return place;
}

bool operator==(const RECT& a, const RECT& b) { return EqualRect(&a, &b) != FALSE; }

class Win32DesktopTest : public testing::Test {
 protected:
  void SetUp() override {
    frame_.Caption = "A Frame of the Test";
    frame_.ClientWidth = 300;
    frame_.ClientHeight = 200;
    frame_.Menu = {{"Entry", "Entry", {}}};
    desktop_.ShowFrame(frame_);
    frame_.Open(form_);
    Settle();
    window_ = FindWindowW(nullptr, L"A Frame of the Test");
    ASSERT_TRUE(window_);
    view_ = GetWindow(window_, GW_CHILD);
  }

  void Settle() { desktop_.RunEventsUntil(desktop_.Clock() + 0.01); }

  bench::Frame frame_;
  OneButton form_{frame_};
  Win32Desktop desktop_;
  HWND window_ = nullptr;
  HWND view_ = nullptr;
};

TEST_F(Win32DesktopTest, AScreenReaderIsToldWhatItAsksFor) {
  EXPECT_EQ(form_.described, 0) << "nobody listens";
  SendMessageW(view_, WM_GETOBJECT, 0, OBJID_CLIENT);
  wchar_t words[32] = {};
  GetWindowTextW(view_, words, 32);
  EXPECT_STREQ(words, L"One button.");
  GetWindowTextW(GetWindow(view_, GW_CHILD), words, 32);
  EXPECT_STREQ(words, L"Its name");
}

TEST_F(Win32DesktopTest, ATitleBarThatIsHeldHoldsUpAWaitAndNoMore) {
  static constexpr double kHeld = 0.3;
  std::thread player([this] {
    std::this_thread::sleep_for(std::chrono::duration<double>(kHeld));
    PostMessageW(window_, WM_COMMAND, 100, 0);
    PostMessageW(window_, WM_KEYDOWN, VK_ESCAPE, 0);
  });
  PostMessageW(window_, WM_SYSCOMMAND, SC_MOVE, 0);
  const double start = desktop_.Clock();
  desktop_.RunEventsUntil(start + kHeld / 10);
  const double took = desktop_.Clock() - start;
  player.join();
  EXPECT_NE(frame_.told.find("menu Entry; "), std::string::npos) << "what came meanwhile is not lost";
  EXPECT_GE(took, kHeld) << "was it held?";
  EXPECT_LT(took, 2 * kHeld);
  const double next = desktop_.Clock();
  while (desktop_.Clock() < next + kHeld) desktop_.RunEventsUntil(next + kHeld);
  EXPECT_LT(desktop_.Clock(), next + 2 * kHeld) << "the next wait is as long as ever";
}

TEST_F(Win32DesktopTest, SizesAndPlacesFollowTheScreen) {
  const HWND button = GetWindow(view_, GW_CHILD);
  EXPECT_TRUE(PlaceOf(button) == (RECT{12, 22, 52, 32}));
  for (const int dpi : {144, 120, 192, 96}) {
    RECT suggested{40, 50, 41, 51};
    SendMessageW(window_, WM_DPICHANGED, static_cast<WPARAM>(MAKELONG(dpi, dpi)), reinterpret_cast<LPARAM>(&suggested));
    Settle();
    RECT inside{};
    GetClientRect(window_, &inside);
    EXPECT_EQ(inside.right, 300 * dpi / 96);
    EXPECT_EQ(inside.bottom, 200 * dpi / 96);
    RECT outside{};
    GetWindowRect(window_, &outside);
    EXPECT_EQ(outside.left, 40);
    EXPECT_EQ(outside.top, 50);
    const auto device = [dpi](int length) { return static_cast<LONG>((length * dpi + 48) / 96); };
    const LONG border = device(2);
    EXPECT_TRUE(PlaceOf(view_) == (RECT{device(10), 0, device(10) + device(100), device(60)})) << dpi;
    EXPECT_TRUE(PlaceOf(button) == (RECT{border + device(10), border + device(20), border + device(10) + device(40),
                                         border + device(20) + device(10)}))
        << dpi;
  }
}

}  // namespace

}  // namespace desktop::win32
