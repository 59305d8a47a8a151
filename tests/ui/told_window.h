// Windows and lists in words, and what holds for every window.
#pragma once

#include <windows.h>

#include <string>

namespace tessaline {

[[nodiscard]] std::wstring ClassOf(HWND window);

/// A window's left, top, width and height in its parent; for an owned window, left and top count
/// from where it is in the middle of its owner.
[[nodiscard]] RECT PlaceOf(HWND window);

/// A section of tests/data/pictures.txt. An unknown name fails the test.
[[nodiscard]] std::wstring Picture(const std::wstring& name);

/// Checks a window and its children against a picture, and against what holds for all windows:
/// whole pixels at 96 DPI, nothing outside the window or the section that it stands in, nothing
/// over another thing, every text within its control.
void CheckPicture(HWND window, const std::wstring& name);

/// Whether a label's or button's text fits the control.
[[nodiscard]] bool FitsIts(HWND control);

/// The texts of a list, joined by bars, with a semicolon after each row.
[[nodiscard]] std::wstring Cells(HWND list);

}  // namespace tessaline
