#include "desktop/win32/news_window.h"

#include <commctrl.h>

#include "desktop/win32/annotation.h"

namespace desktop::win32 {

// Without a size it shows nothing, but is not hidden: readers pass over what is.
NewsWindow::NewsWindow(HWND parent)
    : window_(CreateWindowExW(0, WC_STATICW, nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, parent, nullptr,
                              GetModuleHandleW(nullptr), nullptr)) {
  AnnotateAsNews(window_);
}

void NewsWindow::Say(const std::wstring& news) const {
  SetWindowTextW(window_, news.c_str());
  NotifyWinEvent(EVENT_OBJECT_LIVEREGIONCHANGED, window_, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace desktop::win32
