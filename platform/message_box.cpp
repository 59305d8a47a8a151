#include "platform/message_box.h"

namespace tessaline {

void ShowInformation(HWND owner, const std::wstring& text, const wchar_t* caption) {
    MessageBoxW(owner, text.c_str(), caption, MB_OK | MB_ICONINFORMATION);
}

void ShowWarning(HWND owner, const std::wstring& text, const wchar_t* caption) {
    MessageBoxW(owner, text.c_str(), caption, MB_OK | MB_ICONWARNING);
}

void ShowError(HWND owner, const std::wstring& text, const wchar_t* caption) {
    MessageBoxW(owner, text.c_str(), caption, MB_OK | MB_ICONERROR);
}

bool AskYesNo(HWND owner, const std::wstring& text, const wchar_t* caption) {
    return MessageBoxW(owner, text.c_str(), caption, MB_YESNO | MB_ICONQUESTION) == IDYES;
}

}  // namespace tessaline
