// What a screen reader is told beside what it finds out by itself.
#pragma once

#include <windows.h>

#include <string>

namespace desktop::win32 {

/// The window is a link and no button.
void AnnotateAsLink(HWND window);

/// The window shows this, in words. Tells whoever listens that it has changed.
void Describe(HWND window, const std::wstring& words);

}  // namespace desktop::win32
