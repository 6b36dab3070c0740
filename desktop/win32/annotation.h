// What a screen reader is told beside what it finds out by itself.
#pragma once

#include <windows.h>

namespace desktop::win32 {

/// The window is a link and no button.
void AnnotateAsLink(HWND window);

/// What the window says is spoken when it changes, once the reader has said what it is saying.
void AnnotateAsNews(HWND window);

}  // namespace desktop::win32
