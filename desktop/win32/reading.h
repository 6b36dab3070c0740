// What all that a screen reader can ask of has in common.
#pragma once

#include <windows.h>

// After windows.h, without which it cannot be read.
#include <oleacc.h>

namespace desktop::win32 {

/// Lives until its last owner lets it go, and begins with one. It has none of what can be left out.
class Reading : public IAccessible {
 public:
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;

  // --- IUnknown
  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;

  // --- IDispatch: no reader calls by name
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    return E_NOTIMPL;
  }

  // --- IAccessible
  STDMETHODIMP get_accHelp(VARIANT, BSTR*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP get_accHelpTopic(BSTR*, VARIANT, LONG*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP get_accKeyboardShortcut(VARIANT, BSTR*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP get_accSelection(VARIANT*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP accSelect(LONG, VARIANT) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
  STDMETHODIMP put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

 protected:
  Reading() = default;
  virtual ~Reading() = default;

 private:
  LONG owners_ = 1;
};

}  // namespace desktop::win32
