// What a screen reader finds on a form, one thing after the other.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "desktop/common/rect.h"

namespace desktop::win32 {

class FormView;

/// In the system's words for roles and states.
struct Finding {
  std::wstring name;
  std::wstring value;        ///< what there is to say of it now
  std::wstring description;  ///< the same, and of the form all that there is to say
  std::wstring action;       ///< the first that can be done there; empty where nothing can
  LONG role = 0;
  LONG state = 0;
  common::Rect place;     ///< from the view's corner, in device pixels
  HWND window = nullptr;  ///< its own, which speaks for itself
};

Finding FormItself(const FormView& view);

/// The form's stops by their numbers, the other texts that are painted there, and the other controls, in front of all.
std::vector<Finding> FindingsOn(const FormView& view);

/// Whether it shows at a point, in device pixels from the view's corner.
bool Covers(const Finding& found, POINT point);

/// Where a reader comes that goes from a finding, or from the form itself, in one of the system's directions, by their
/// numbers from 1. CHILDID_SELF, which is the form, where nothing is found that way.
LONG NumberBeside(LONG start, LONG direction, LONG count);

}  // namespace desktop::win32
