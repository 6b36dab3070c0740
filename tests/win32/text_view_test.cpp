// The view of the instructions, on a window of its own.
#include "desktop/win32/text_view.h"

#include <gtest/gtest.h>

namespace desktop::win32 {

namespace {

/// In pixels of the screen, from the top of the document.
int ScrolledTo(const TextView& view) { return GetScrollPos(view.window(), SB_VERT); }

TEST(TextViewTest, WhatIsReadStaysInViewOnAScreenOfAnotherScale) {
  const HWND parent = CreateWindowW(L"Static", L"", WS_OVERLAPPED, 0, 0, 400, 400, nullptr, nullptr, nullptr, nullptr);
  Materials materials;
  {
    TextView view({}, materials, parent);
    const TextStyle style;
    Document document;
    for (int line = 0; line < 60; ++line)
      document.Paragraphs.push_back({Align::Left, {{"A line", &style, nullptr, {}}}});
    Element record;
    record.Kind = Kind::TextView;
    record.Text = &document;
    view.Follow(record);
    const auto show = [&](int scale) {
      materials.SetScale(common::Scale(scale));
      SetWindowPos(view.window(), nullptr, 0, 0, 300 * scale, 100 * scale, SWP_NOZORDER | SWP_NOACTIVATE);
      view.Rescale();
    };
    show(1);
    for (int line = 0; line < 10; ++line) view.ScrollBy(common::Scroll::LineDown);
    const int before = ScrolledTo(view);
    EXPECT_GT(before, 100);
    show(2);
    EXPECT_EQ(ScrolledTo(view), 2 * before);
    show(1);
    EXPECT_EQ(ScrolledTo(view), before);
  }
  DestroyWindow(parent);
}

}  // namespace

}  // namespace desktop::win32
