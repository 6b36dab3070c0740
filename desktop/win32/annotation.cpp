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

}  // namespace

void AnnotateAsLink(HWND window) {
  const auto notes = Notes();
  if (!notes) return;
  VARIANT role{};
  role.vt = VT_I4;
  role.lVal = ROLE_SYSTEM_LINK;
  notes->SetHwndProp(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_ROLE, role);
}

void Describe(HWND window, const std::wstring& words) {
  // As its text, too: not everyone who reads a window reads the notes about it.
  SetWindowTextW(window, words.c_str());
  const auto notes = Notes();
  if (!notes) return;
  notes->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_DESCRIPTION, words.c_str());
  NotifyWinEvent(EVENT_OBJECT_DESCRIPTIONCHANGE, window, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace desktop::win32
