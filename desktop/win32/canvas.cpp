#include "desktop/win32/canvas.h"

#include <string>
#include <vector>

#include "desktop/win32/text.h"

namespace desktop::win32 {

namespace {

/// How far each letter of a text stands from the one before, the text being no wider than `most`. Told outright: what
/// the system draws by itself may have other widths than it measures.
std::vector<INT> StepsOf(HDC context, const std::wstring& text, int most) {
  std::vector<INT> ends(text.size());
  SIZE size{};
  GetTextExtentExPointW(context, text.data(), static_cast<int>(text.size()), 0, nullptr, ends.data(), &size);
  std::vector<INT> steps;
  int before = 0;
  for (const INT end : ends) {
    const int now = size.cx > most ? MulDiv(end, most, size.cx) : end;
    steps.push_back(now - before);
    before = now;
  }
  return steps;
}

}  // namespace

WindowCanvas::WindowCanvas(HWND window, Materials& materials) : window_(window), materials_(materials) {
  const HDC screen = BeginPaint(window, &paint_);
  const common::Rect area = Damaged();
  context_.reset(CreateCompatibleDC(screen));
  source_.reset(CreateCompatibleDC(screen));
  picture_ = MakeDib({std::max(1, area.width), std::max(1, area.height)});
  pixel_ = MakeDib({1, 1});
  SelectObject(context_.get(), picture_.bitmap.get());
  SetBkMode(context_.get(), TRANSPARENT);
  BeginAt(0, 0);
}

WindowCanvas::~WindowCanvas() {
  const common::Rect area = Damaged();
  BeginAt(0, 0);
  BitBlt(paint_.hdc, area.left, area.top, area.width, area.height, context_.get(), area.left, area.top, SRCCOPY);
  EndPaint(window_, &paint_);
}

void WindowCanvas::BeginAt(int x, int y) {
  SetViewportOrgEx(context_.get(), x - paint_.rcPaint.left, y - paint_.rcPaint.top, nullptr);
}

void WindowCanvas::Blend(HBITMAP bitmap, common::Size size, const common::Rect& place, BLENDFUNCTION how) {
  const HGDIOBJ before = SelectObject(source_.get(), bitmap);
  AlphaBlend(context_.get(), place.left, place.top, place.width, place.height, source_.get(), 0, 0, size.width,
             size.height, how);
  // A bitmap can be in one context only.
  SelectObject(source_.get(), before);
}

void WindowCanvas::Fill(const common::Rect& place, const Tint& tint) {
  if (place.IsEmpty() || tint.Strength == 0) return;
  if (tint.Strength == 255) {
    const RECT rect = ToWindows(place);
    SetDCBrushColor(context_.get(), ToWindows(tint.Over));
    FillRect(context_.get(), &rect, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    return;
  }
  GdiFlush();
  *pixel_.pixels = tint.Over.rgb;
  Blend(pixel_.bitmap.get(), {1, 1}, place, {AC_SRC_OVER, 0, static_cast<BYTE>(tint.Strength), 0});
}

void WindowCanvas::Show(const Picture& picture, const common::Rect& place) {
  const common::Size size{place.width, place.height};
  Blend(materials_.pictures.Sized(picture, size), size, place, {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA});
}

void WindowCanvas::Write(const common::TextLine& line, const Font& font, Colour colour) {
  const common::Scale& scale = materials_.scale;
  const std::wstring text = Wide(line.text);
  SelectObject(context_.get(), materials_.fonts.At(font));
  SetTextColor(context_.get(), ToWindows(colour));
  const std::vector<INT> steps = StepsOf(context_.get(), text, scale.Device(line.width));
  ExtTextOutW(context_.get(), scale.Device(line.left), scale.Device(line.top), 0, nullptr, text.data(),
              static_cast<UINT>(text.size()), steps.data());
}

}  // namespace desktop::win32
