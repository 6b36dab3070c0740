// Owners of what Windows hands out.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace desktop::win32 {

struct DeleteGdiObject {
  void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
struct DeleteContext {
  void operator()(HDC context) const { DeleteDC(context); }
};
struct CloseKernelHandle {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
struct CloseRegistryKey {
  void operator()(HKEY key) const { RegCloseKey(key); }
};
struct ReleaseObject {
  template <typename Interface>
  void operator()(Interface* object) const {
    object->Release();
  }
};

using Type = std::unique_ptr<std::remove_pointer_t<HFONT>, DeleteGdiObject>;
using Bitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteGdiObject>;
using Context = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteContext>;
using KernelHandle = std::unique_ptr<void, CloseKernelHandle>;
using RegistryKey = std::unique_ptr<std::remove_pointer_t<HKEY>, CloseRegistryKey>;
template <typename Interface>
using Com = std::unique_ptr<Interface, ReleaseObject>;

/// A call of `make` that fills in the address of a new object, as an owner of that. Empty where the call fails.
template <typename Interface, typename Make>
Com<Interface> Made(const Make& make) {
  Interface* object = nullptr;
  return SUCCEEDED(make(&object)) ? Com<Interface>(object) : nullptr;
}

}  // namespace desktop::win32
