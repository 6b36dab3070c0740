#include "desktop/win32/annotation.h"

// The names of properties are constants that this header makes.
#include <initguid.h>
#include <oleacc.h>

#include "desktop/win32/handles.h"

namespace desktop::win32 {

namespace {

/// Nothing where the system keeps no such notes.
Com<IAccPropServices> Notes() {
  return Made<IAccPropServices>([](IAccPropServices** made) {
    return CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                            reinterpret_cast<void**>(made));
  });
}

void Annotate(HWND window, const MSAAPROPID& property, LONG value) {
  const auto notes = Notes();
  if (!notes) return;
  VARIANT note{};
  note.vt = VT_I4;
  note.lVal = value;
  notes->SetHwndProp(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, property, note);
}

// The system's name for how news are spoken, and one of its ways.
constexpr GUID kLiveSetting{0xc12bcd8e, 0x2a8e, 0x4950, {0x8a, 0xe7, 0x36, 0x25, 0x11, 0x1d, 0x58, 0xeb}};
constexpr LONG kPolite = 1;

}  // namespace

void AnnotateAsLink(HWND window) { Annotate(window, PROPID_ACC_ROLE, ROLE_SYSTEM_LINK); }

void AnnotateAsNews(HWND window) { Annotate(window, kLiveSetting, kPolite); }

}  // namespace desktop::win32
