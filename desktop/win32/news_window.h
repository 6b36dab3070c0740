// A window that nobody sees, for those who listen: what it says is news.
#pragma once

#include <windows.h>

#include <string>

namespace desktop::win32 {

class NewsWindow {
 public:
  explicit NewsWindow(HWND parent);
  ~NewsWindow() { DestroyWindow(window_); }
  NewsWindow(const NewsWindow&) = delete;
  NewsWindow& operator=(const NewsWindow&) = delete;

  /// A screen reader speaks this once it has said what it is saying.
  void Say(const std::wstring& news) const;

 private:
  HWND window_;
};

}  // namespace desktop::win32
