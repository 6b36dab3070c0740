// The windows of a frame with one form, unseen.
#include <gtest/gtest.h>
#include <windows.h>

// After windows.h, without which it cannot be read.
#include <oleacc.h>

#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "desktop/building_blocks.h"
#include "desktop/units.h"
#include "desktop/win32/handles.h"
#include "desktop/win32/text.h"
#include "desktop/win32/win32_desktop.h"
#include "tests/common/bench_form.h"

namespace desktop::win32 {

namespace {

constexpr ButtonLook kLook{};

/// A button, a pile of one that a hand can take and put back, a sum, a cup, and a word beside them.
class OneButton : public Form {
 public:
  explicit OneButton(Frame& frame) : Form("OneButton"), frame_(frame) {}

  void Form_Load() override {
    AccessibleName = "The form";
    Left = 10;
    Width = 100;
    Height = 60;
    Border = 2;
    Add(pile_ = LaidLabel("Pile", {}, {900, 300, 300, 150}, Align::Left, "9"));
    pile_.SaidByStop = true;
    Add(word_ = LaidLabel("Word", {}, {150, 600, 300, 150}, Align::Left, "\r\nA\r\nword"));
    Add(button_ = LaidButton("Button", {150, 300, 600, 150}, "\r\nIts\r\nname\r\n", kLook));
    frame_.Show(*this);
  }

  void MouseDown(Element& element, int, float, float) override { held = &element == &pile_; }
  void MouseUp(Element&, int, float x, float y) override {
    if (x == 0 && y == 300) left = 1 - left;
  }

  std::vector<Stop> Stops() const override {
    ++asked;
    std::vector<Stop> stops(4);
    stops[0].Control = &button_;
    stops[1].Name = "Pile";
    stops[1].Value = std::to_string(left);
    stops[1].Left = 60;
    stops[1].Top = 20;
    stops[1].Width = 20;
    stops[1].Height = 10;
    stops[1].Deeds.push_back({{Key::One}, left > 0 ? "Take it" : "Put it back", {60, 20, 60, 40}});
    stops[2].Name = "Sum";
    stops[2].Value = "7";
    stops[2].Visible = false;
    stops[2].OnlyRead = true;
    stops[3].Name = "Cup";
    return stops;
  }

  std::vector<Sentence> Sentences() const override {
    ++asked;
    return {{"One button."}, {"Left: " + std::to_string(left) + "."}};
  }

  mutable int asked = 0;
  bool held = false;
  int left = 1;

 private:
  Frame& frame_;
  Element button_;
  Element pile_;
  Element word_;
};

/// In pixels of the parent's inside.
RECT PlaceOf(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
  return place;
}

bool operator==(const RECT& a, const RECT& b) { return EqualRect(&a, &b) != FALSE; }

std::string TextOf(HWND window) {
  wchar_t text[64] = {};
  GetWindowTextW(window, text, 64);
  return Narrow(text);
}

VARIANT Number(LONG number) {
  VARIANT variant{};
  variant.vt = VT_I4;
  variant.lVal = number;
  return variant;
}

using Said = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);

/// With this before it, if there is any.
std::string After(const char* before, IAccessible& form, Said said, LONG number) {
  BSTR words = nullptr;
  (form.*said)(Number(number), &words);
  const std::string text = words ? before + Narrow(words) : std::string();
  SysFreeString(words);
  return text;
}

constexpr std::pair<LONG, const char*> kRoles[] = {
    {ROLE_SYSTEM_DIALOG, "dialog"}, {ROLE_SYSTEM_PUSHBUTTON, "button"}, {ROLE_SYSTEM_STATICTEXT, "text"}};
constexpr std::pair<LONG, const char*> kStates[] = {{STATE_SYSTEM_FOCUSABLE, "focusable"},
                                                    {STATE_SYSTEM_FOCUSED, "focused"},
                                                    {STATE_SYSTEM_READONLY, "read only"},
                                                    {STATE_SYSTEM_UNAVAILABLE, "unavailable"},
                                                    {STATE_SYSTEM_INVISIBLE, "invisible"}};

/// All that a reader gets to know of a form, or of what it finds there by its number.
std::string Read(IAccessible& form, LONG number) {
  VARIANT role{};
  form.get_accRole(Number(number), &role);
  VARIANT state{};
  form.get_accState(Number(number), &state);
  std::string read = After("", form, &IAccessible::get_accName, number);
  read += After(" = ", form, &IAccessible::get_accValue, number);
  for (const auto& [value, name] : kRoles)
    if (role.lVal == value) read += std::string(", ") + name;
  for (const auto& [bit, name] : kStates)
    if (state.lVal & bit) read += std::string(", ") + name;
  read += After(": ", form, &IAccessible::get_accDescription, number);
  return read + After("; ", form, &IAccessible::get_accDefaultAction, number);
}

/// Events that the program sent out, and of what, by its number.
std::vector<std::pair<DWORD, LONG>> told;

void CALLBACK Note(HWINEVENTHOOK, DWORD event, HWND, LONG, LONG number, DWORD, DWORD) {
  const bool isSystems = event == EVENT_OBJECT_FOCUS && number == CHILDID_SELF;
  if (!isSystems) told.emplace_back(event, number);
}

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

  Com<IAccessible> Asked() const {
    return Made<IAccessible>([this](IAccessible** form) {
      return AccessibleObjectFromWindow(view_, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                        reinterpret_cast<void**>(form));
    });
  }

  void Settle() {
    desktop_.RunEventsUntil(desktop_.Clock() + 0.01);
    // An event ends that wait, with others to come.
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }

  /// Lets what is due come, until the frame stands there with its size.
  bool ComesTo(LONG left, LONG top) {
    for (int look = 0; look < 100; ++look) {
      RECT outside{};
      RECT inside{};
      GetWindowRect(window_, &outside);
      GetClientRect(window_, &inside);
      if (outside.left == left && outside.top == top && inside.right == 300 && inside.bottom == 200) return true;
      desktop_.RunEventsUntil(desktop_.Clock() + 0.05);
    }
    return false;
  }

  void Put(int left, int top, int more) {
    RECT outside{};
    GetWindowRect(window_, &outside);
    SetWindowPos(window_, nullptr, left, top, outside.right - outside.left + more, outside.bottom - outside.top + more,
                 SWP_NOZORDER | SWP_NOACTIVATE);
  }

  bench::Frame frame_;
  OneButton form_{frame_};
  Win32Desktop desktop_;
  HWND window_ = nullptr;
  HWND view_ = nullptr;
};

TEST_F(Win32DesktopTest, AScreenReaderFindsStopsTextsAndControls) {
  EXPECT_EQ(form_.asked, 0) << "nobody listens";
  const auto form = Asked();
  ASSERT_TRUE(form);
  EXPECT_EQ(Read(*form, CHILDID_SELF), "The form, dialog, focusable, focused: One button. Left: 1.");
  LONG count = 0;
  form->get_accChildCount(&count);
  EXPECT_EQ(count, 5);
  const auto button = Made<IDispatch>([&](IDispatch** child) { return form->get_accChild(Number(1), child); });
  HWND window = nullptr;
  ASSERT_TRUE(button);
  WindowFromAccessibleObject(static_cast<IAccessible*>(button.get()), &window);
  EXPECT_EQ(TextOf(window), "Its name") << "a stop with a window speaks for itself";
  EXPECT_EQ(Read(*form, 2), "Pile = 1, button, focusable: 1; Take it");
  EXPECT_EQ(Read(*form, 3), "Sum = 7, text, read only, invisible: 7");
  EXPECT_EQ(Read(*form, 4), "Cup, button, unavailable");
  EXPECT_EQ(Read(*form, 5), "A word, text, read only");
  VARIANT beside{};
  form->accNavigate(NAVDIR_NEXT, Number(4), &beside);
  EXPECT_EQ(beside.lVal, 5);
  EXPECT_EQ(form->accNavigate(NAVDIR_NEXT, Number(5), &beside), S_FALSE);
}

TEST_F(Win32DesktopTest, AScreenReaderActsAndIsToldWhatComesOfIt) {
  const auto form = Asked();
  ASSERT_TRUE(form);
  const HWND news = FindWindowExW(view_, nullptr, L"Static", nullptr);
  Settle();
  EXPECT_EQ(TextOf(news), "One button. Left: 1.");
  const DWORD process = GetCurrentProcessId();
  const auto hook = [process](DWORD event) {
    SetWinEventHook(event, event, nullptr, Note, process, 0, WINEVENT_OUTOFCONTEXT);
  };
  for (const DWORD event : {EVENT_OBJECT_FOCUS, EVENT_OBJECT_VALUECHANGE, EVENT_OBJECT_LIVEREGIONCHANGED}) hook(event);
  EXPECT_EQ(form->accDoDefaultAction(Number(2)), S_OK);
  EXPECT_EQ(form->accDoDefaultAction(Number(2)), S_OK) << "too late by then";
  EXPECT_FALSE(form_.held) << "the reader does not wait for it";
  Settle();
  EXPECT_TRUE(form_.held);
  EXPECT_EQ(form_.left, 0);
  EXPECT_EQ(TextOf(news), "Left: 0.");
  EXPECT_EQ(Read(*form, 2), "Pile = 0, button, focusable: 0; Put it back");
  EXPECT_EQ(form->accDoDefaultAction(Number(4)), DISP_E_MEMBERNOTFOUND);
  form_.left = 1;
  SetFocus(view_);
  SendMessageW(view_, WM_KEYDOWN, VK_TAB, 0);
  SendMessageW(view_, WM_KEYDOWN, VK_TAB, 0);
  Settle();
  VARIANT focus{};
  form->get_accFocus(&focus);
  EXPECT_EQ(focus.lVal, 2);
  const std::vector<std::pair<DWORD, LONG>> expected{{EVENT_OBJECT_VALUECHANGE, 2},
                                                     {EVENT_OBJECT_LIVEREGIONCHANGED, 0},
                                                     {EVENT_OBJECT_VALUECHANGE, 2},
                                                     {EVENT_OBJECT_FOCUS, 2},
                                                     {EVENT_OBJECT_LIVEREGIONCHANGED, 0}};
  EXPECT_EQ(told, expected);
  frame_.Unload(form_);
  Settle();
  EXPECT_EQ(form->get_accFocus(&focus), CO_E_OBJNOTCONNECTED);
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

TEST_F(Win32DesktopTest, ASnapAtTheEndOfADragLeavesTheFrameWhereItWasTakenUp) {
  Put(120, 90, 0);
  ASSERT_TRUE(ComesTo(120, 90));
  SendMessageW(window_, WM_ENTERSIZEMOVE, 0, 0);
  Put(-150, 40, 0);
  Put(0, 0, 70);
  SendMessageW(window_, WM_EXITSIZEMOVE, 0, 0);
  EXPECT_TRUE(ComesTo(120, 90));
  SendMessageW(window_, WM_ENTERSIZEMOVE, 0, 0);
  Put(60, 70, 0);
  SendMessageW(window_, WM_EXITSIZEMOVE, 0, 0);
  Settle();
  frame_.Left = frame_.Top = 0;
  for (int look = 0; frame_.Left == 0 && look < 100; ++look) desktop_.RunEventsUntil(desktop_.Clock() + 0.05);
  EXPECT_EQ(frame_.Left, 60 * kTwipsPerPixel) << "where the player has put it";
}

TEST_F(Win32DesktopTest, AFrameWhosePlaceIsNoMoreOnItsScreenStaysWhereItIsSeen) {
  Put(-5000, -5000, 0);
  ASSERT_TRUE(ComesTo(-5000, -5000));
  Put(40, 30, 70);
  EXPECT_TRUE(ComesTo(40, 30));
}

TEST_F(Win32DesktopTest, TheLeastSizeFollowsTheScreenInEveryState) {
  const auto least = [this] {
    MINMAXINFO limits{};
    SendMessageW(window_, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    return limits.ptMinTrackSize;
  };
  const POINT before = least();
  for (const int state : {SW_MAXIMIZE, SW_MINIMIZE}) {
    ShowWindow(window_, state);
    RECT suggested{0, 0, 500, 400};
    SendMessageW(window_, WM_DPICHANGED, MAKELONG(192, 192), reinterpret_cast<LPARAM>(&suggested));
    EXPECT_GE(least().x, 2 * 300);
    EXPECT_LT(least().x, 2 * before.x + 20) << "an unseen window's size counts for nothing";
    SendMessageW(window_, WM_DPICHANGED, MAKELONG(96, 96), reinterpret_cast<LPARAM>(&suggested));
    EXPECT_EQ(least().x, before.x);
  }
}

TEST_F(Win32DesktopTest, SizesAndPlacesFollowTheScreen) {
  const auto form = Asked();
  ASSERT_TRUE(form);
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
    RECT pile{};
    form->accLocation(&pile.left, &pile.top, &pile.right, &pile.bottom, Number(2));
    VARIANT hit{};
    form->accHitTest(pile.left, pile.top, &hit);
    EXPECT_EQ(hit.lVal, 2);
    form->accHitTest(pile.left - 1, pile.top, &hit);
    EXPECT_EQ(hit.lVal, CHILDID_SELF);
    MapWindowPoints(nullptr, view_, reinterpret_cast<POINT*>(&pile), 1);
    EXPECT_TRUE(pile == (RECT{border + device(60), border + device(20), device(20), device(10)})) << dpi;
    EXPECT_TRUE(PlaceOf(button) == (RECT{border + device(10), border + device(20), border + device(10) + device(40),
                                         border + device(20) + device(10)}))
        << dpi;
  }
}

}  // namespace

}  // namespace desktop::win32
