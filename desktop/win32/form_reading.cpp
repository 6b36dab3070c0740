#include "desktop/win32/form_reading.h"

#include <utility>
#include <vector>

#include "desktop/win32/form_view.h"
#include "desktop/win32/text.h"

namespace desktop::win32 {

namespace {

HRESULT Give(HWND window, IDispatch** object) {
  return AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_WINDOW), __uuidof(IDispatch),
                                    reinterpret_cast<void**>(object));
}

HRESULT Give(LONG number, VARIANT* given) {
  given->vt = VT_I4;
  given->lVal = number;
  return S_OK;
}

/// By its number, or by the object of its window.
HRESULT Give(std::size_t index, const Finding& found, VARIANT* given) {
  if (!found.window) return Give(static_cast<LONG>(index) + 1, given);
  const HRESULT made = Give(found.window, &given->pdispVal);
  if (SUCCEEDED(made)) given->vt = VT_DISPATCH;
  return made;
}

}  // namespace

HRESULT FormReading::Find(const VARIANT& which, Finding& found) const {
  if (!view_) return CO_E_OBJNOTCONNECTED;
  if (which.vt != VT_I4 || which.lVal < 0) return E_INVALIDARG;
  if (which.lVal == CHILDID_SELF) {
    found = FormItself(*view_);
    return S_OK;
  }
  std::vector<Finding> findings = FindingsOn(*view_);
  const auto number = static_cast<std::size_t>(which.lVal);
  if (number > findings.size()) return E_INVALIDARG;
  found = std::move(findings[number - 1]);
  return S_OK;
}

HRESULT FormReading::Say(const VARIANT& which, std::wstring Finding::*words, BSTR* said) const {
  if (!said) return E_POINTER;
  *said = nullptr;
  Finding found;
  const HRESULT result = Find(which, found);
  if (FAILED(result)) return result;
  if ((found.*words).empty()) return S_FALSE;
  *said = SysAllocString((found.*words).c_str());
  return *said ? S_OK : E_OUTOFMEMORY;
}

HRESULT FormReading::Say(const VARIANT& which, LONG Finding::*number, VARIANT* said) const {
  if (!said) return E_POINTER;
  said->vt = VT_EMPTY;
  Finding found;
  const HRESULT result = Find(which, found);
  return FAILED(result) ? result : Give(found.*number, said);
}

STDMETHODIMP FormReading::get_accParent(IDispatch** parent) {
  if (!parent) return E_POINTER;
  *parent = nullptr;
  return view_ ? Give(view_->handle(), parent) : CO_E_OBJNOTCONNECTED;
}

STDMETHODIMP FormReading::get_accChildCount(LONG* count) {
  if (!count) return E_POINTER;
  *count = 0;
  if (!view_) return CO_E_OBJNOTCONNECTED;
  *count = static_cast<LONG>(FindingsOn(*view_).size());
  return S_OK;
}

STDMETHODIMP FormReading::get_accChild(VARIANT which, IDispatch** child) {
  if (!child) return E_POINTER;
  *child = nullptr;
  Finding found;
  const HRESULT result = Find(which, found);
  if (FAILED(result)) return result;
  return found.window ? Give(found.window, child) : S_FALSE;
}

STDMETHODIMP FormReading::get_accFocus(VARIANT* focus) {
  if (!focus) return E_POINTER;
  focus->vt = VT_EMPTY;
  if (!view_) return CO_E_OBJNOTCONNECTED;
  const std::vector<Finding> findings = FindingsOn(*view_);
  for (std::size_t i = 0; i < findings.size(); ++i)
    if (findings[i].state & STATE_SYSTEM_FOCUSED) return Give(i, findings[i], focus);
  return GetFocus() == view_->handle() ? Give(CHILDID_SELF, focus) : S_FALSE;
}

STDMETHODIMP FormReading::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT which) {
  if (!left || !top || !width || !height) return E_POINTER;
  *left = *top = *width = *height = 0;
  Finding found;
  const HRESULT result = Find(which, found);
  if (FAILED(result)) return result;
  POINT corner{found.place.left, found.place.top};
  ClientToScreen(view_->handle(), &corner);
  *left = corner.x;
  *top = corner.y;
  *width = found.place.width;
  *height = found.place.height;
  return S_OK;
}

STDMETHODIMP FormReading::accNavigate(LONG direction, VARIANT start, VARIANT* end) {
  if (!end) return E_POINTER;
  end->vt = VT_EMPTY;
  Finding found;
  const HRESULT result = Find(start, found);
  if (FAILED(result)) return result;
  const std::vector<Finding> findings = FindingsOn(*view_);
  const LONG to = NumberBeside(start.lVal, direction, static_cast<LONG>(findings.size()));
  if (to == CHILDID_SELF) return S_FALSE;
  const auto index = static_cast<std::size_t>(to - 1);
  return Give(index, findings[index], end);
}

STDMETHODIMP FormReading::accHitTest(LONG left, LONG top, VARIANT* hit) {
  if (!hit) return E_POINTER;
  hit->vt = VT_EMPTY;
  if (!view_) return CO_E_OBJNOTCONNECTED;
  POINT point{left, top};
  ScreenToClient(view_->handle(), &point);
  if (!Covers(FormItself(*view_), point)) return S_FALSE;
  const std::vector<Finding> findings = FindingsOn(*view_);
  // A stop may have a text within.
  for (std::size_t i = findings.size(); i-- > 0;)
    if (Covers(findings[i], point)) return Give(i, findings[i], hit);
  return Give(CHILDID_SELF, hit);
}

STDMETHODIMP FormReading::accDoDefaultAction(VARIANT which) {
  Finding found;
  const HRESULT result = Find(which, found);
  if (FAILED(result)) return result;
  if (found.action.empty()) return DISP_E_MEMBERNOTFOUND;
  // Later: what is done may take seconds, and the reader waits for this call to end.
  wishes_.push({which.lVal - 1, found.action});
  PostMessageW(view_->handle(), kWishMessage, 0, 0);
  return S_OK;
}

std::optional<Hand> FormReading::TakeWish() {
  if (wishes_.empty()) return std::nullopt;
  const Wish wish = std::move(wishes_.front());
  wishes_.pop();
  const std::vector<Stop> stops = view_->form().Stops();
  for (const Deed& deed : stops.at(static_cast<std::size_t>(wish.stop)).Deeds)
    if (Wide(deed.Name) == wish.action) return deed.Hand;
  return std::nullopt;
}

}  // namespace desktop::win32
