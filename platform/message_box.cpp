#include "platform/message_box.h"

namespace tessaline {

void ShowInformation(HWND owner, const wchar_t* text, const wchar_t* caption) {
    MessageBoxW(owner, text, caption, MB_OK | MB_ICONINFORMATION);
}

void ShowWarning(HWND owner, const wchar_t* text, const wchar_t* caption) {
    MessageBoxW(owner, text, caption, MB_OK | MB_ICONWARNING);
}

void ShowError(HWND owner, const wchar_t* text, const wchar_t* caption) {
    MessageBoxW(owner, text, caption, MB_OK | MB_ICONERROR);
}

bool AskYesNo(HWND owner, const wchar_t* text, const wchar_t* caption) {
    return MessageBoxW(owner, text, caption, MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void ShowOutOfMemory(HWND owner) noexcept {
    static bool isOpen = false;
    if (isOpen) return;
    isOpen = true;
    MessageBoxW(owner,
                L"There is not enough memory to do this. What you entered is kept. "
                L"Close other programs and try again.",
                L"Good Faith Estimate", MB_OK | MB_ICONERROR);
    isOpen = false;
}

}  // namespace tessaline
