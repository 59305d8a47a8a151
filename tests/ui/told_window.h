// Windows and lists in words.
#pragma once

#include <windows.h>

#include <string>

namespace tessaline {

[[nodiscard]] std::wstring ClassOf(HWND window);

/// A window's left, top, width and height in its parent; for an owned window, left and top count
/// from where it is in the middle of its owner.
[[nodiscard]] RECT PlaceOf(HWND window);

/// Checks a window, if it is a dialog, and every child that it has, in the order of creation,
/// against a section of tests/data/ui/windows.txt.
void CheckWindow(HWND window, const std::wstring& section, int dpi = 96);

/// The texts of a list, joined by bars, with a semicolon after each row.
[[nodiscard]] std::wstring Cells(HWND list);

}  // namespace tessaline
