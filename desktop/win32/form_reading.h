// A form as a screen reader asks for it.
#pragma once

#include <optional>
#include <queue>
#include <string>

#include "desktop/stop.h"
#include "desktop/win32/finding.h"
#include "desktop/win32/reading.h"

namespace desktop::win32 {

/// Comes to the view's window when a reader has wished for something.
inline constexpr UINT kWishMessage = WM_APP;

/// The form, and what is found on it by its number, from 1. A reader may keep it for longer than the view is there.
class FormReading final : public Reading {
 public:
  explicit FormReading(FormView& view) : view_(&view) {}

  /// The view is about to go: from now on nothing is answered.
  void Disconnect() { view_ = nullptr; }
  /// The hand that does what a reader has wished for, the first such. None where it can no longer be done.
  std::optional<Hand> TakeWish();

  // --- IAccessible
  STDMETHODIMP get_accParent(IDispatch** parent) override;
  STDMETHODIMP get_accChildCount(LONG* count) override;
  STDMETHODIMP get_accChild(VARIANT which, IDispatch** child) override;
  STDMETHODIMP get_accName(VARIANT which, BSTR* name) override { return Say(which, &Finding::name, name); }
  STDMETHODIMP get_accValue(VARIANT which, BSTR* value) override { return Say(which, &Finding::value, value); }
  STDMETHODIMP get_accDescription(VARIANT which, BSTR* words) override {
    return Say(which, &Finding::description, words);
  }
  STDMETHODIMP get_accRole(VARIANT which, VARIANT* role) override { return Say(which, &Finding::role, role); }
  STDMETHODIMP get_accState(VARIANT which, VARIANT* state) override { return Say(which, &Finding::state, state); }
  STDMETHODIMP get_accFocus(VARIANT* focus) override;
  STDMETHODIMP get_accDefaultAction(VARIANT which, BSTR* action) override {
    return Say(which, &Finding::action, action);
  }
  STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT which) override;
  STDMETHODIMP accNavigate(LONG direction, VARIANT start, VARIANT* end) override;
  STDMETHODIMP accHitTest(LONG left, LONG top, VARIANT* hit) override;
  STDMETHODIMP accDoDefaultAction(VARIANT which) override;

 private:
  struct Wish {
    LONG stop;
    std::wstring action;
  };

  HRESULT Find(const VARIANT& which, Finding& found) const;
  HRESULT Say(const VARIANT& which, std::wstring Finding::*words, BSTR* said) const;
  HRESULT Say(const VARIANT& which, LONG Finding::*number, VARIANT* said) const;

  FormView* view_;
  std::queue<Wish> wishes_;
};

}  // namespace desktop::win32
