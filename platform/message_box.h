// Message boxes as the program uses them.
#pragma once

#include <windows.h>

namespace tessaline {

void ShowInformation(HWND owner, const wchar_t* text, const wchar_t* caption);
void ShowWarning(HWND owner, const wchar_t* text, const wchar_t* caption);
void ShowError(HWND owner, const wchar_t* text, const wchar_t* caption);

/// A question with the buttons Yes and No; true for Yes.
[[nodiscard]] bool AskYesNo(HWND owner, const wchar_t* text, const wchar_t* caption);

/// Says that something could not be done for want of memory, and takes none of the program's own.
/// Nothing while the box is open already.
void ShowOutOfMemory(HWND owner) noexcept;

}  // namespace tessaline
