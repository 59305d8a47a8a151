// Windows and lists in words.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tessaline {

[[nodiscard]] std::wstring ClassOf(HWND window);

/// A window's left, top, width and height in its parent; for an owned window, left and top count
/// from where it is in the middle of its owner.
[[nodiscard]] RECT PlaceOf(HWND window);

/// A section of tests/data/ui/windows.txt, single blanks between the words.
[[nodiscard]] std::wstring Section(const std::wstring& name);

/// A window, if it is a dialog, and every child that it has, in the order of creation, as the
/// lines of such a section.
[[nodiscard]] std::vector<std::wstring> ToldWindow(HWND window);

/// The texts of a list, joined by bars, with a semicolon after each row.
[[nodiscard]] std::wstring Cells(HWND list);

}  // namespace tessaline
