#include "desktop/win32/reading.h"

namespace desktop::win32 {

STDMETHODIMP Reading::QueryInterface(REFIID id, void** object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (id != __uuidof(IUnknown) && id != __uuidof(IDispatch) && id != __uuidof(IAccessible)) return E_NOINTERFACE;
  *object = static_cast<IAccessible*>(this);
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) Reading::AddRef() { return static_cast<ULONG>(InterlockedIncrement(&owners_)); }

STDMETHODIMP_(ULONG) Reading::Release() {
  const LONG left = InterlockedDecrement(&owners_);
  if (left == 0) delete this;
  return static_cast<ULONG>(left);
}

STDMETHODIMP Reading::GetTypeInfoCount(UINT* count) {
  if (!count) return E_POINTER;
  *count = 0;
  return S_OK;
}

}  // namespace desktop::win32
