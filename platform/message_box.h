// Message boxes as the program uses them.
#pragma once

#include <windows.h>

#include <string>

namespace tessaline {

void ShowInformation(HWND owner, const std::wstring& text, const wchar_t* caption);
void ShowWarning(HWND owner, const std::wstring& text, const wchar_t* caption);
void ShowError(HWND owner, const std::wstring& text, const wchar_t* caption);

/// A question with the buttons Yes and No; true for Yes.
[[nodiscard]] bool AskYesNo(HWND owner, const std::wstring& text, const wchar_t* caption);

}  // namespace tessaline
