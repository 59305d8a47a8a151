#include "platform/window.h"

#include "platform/message_box.h"

namespace tessaline {
namespace {

constexpr wchar_t kFocusProperty[] = L"Tessaline.Focus";

RECT WorkArea() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

// Whose box tells the user that a message was given up; null where nobody waits for its outcome.
HWND OwnerOfBox(HWND window, UINT message) {
    switch (message) {
        case WM_CREATE:
            // A dialog that does not open. The main window has no owner.
            return GetWindow(window, GW_OWNER);
        case WM_COMMAND:
        case WM_NOTIFY:
        case WM_CLOSE:
            return GetAncestor(window, GA_ROOT);
        default:
            // A box would make Windows ask for painting again, and the automatic save is silent.
            return nullptr;
    }
}

}  // namespace

HINSTANCE ProgramInstance() {
    return GetModuleHandleW(nullptr);
}

void RegisterWindowClass(const WindowClass& windowClass) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof(description);
    description.lpfnWndProc = windowClass.procedure;
    description.hInstance = ProgramInstance();
    description.hIcon = windowClass.icon;
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = windowClass.background;
    description.lpszClassName = windowClass.name;
    RegisterClassExW(&description);
}

void CentreWindow(HWND window, HWND reference) {
    RECT own{};
    GetWindowRect(window, &own);
    RECT around = WorkArea();
    if (reference != nullptr && IsWindow(reference)) GetWindowRect(reference, &around);
    const int left = around.left + ((around.right - around.left) - (own.right - own.left)) / 2;
    const int top = around.top + ((around.bottom - around.top) - (own.bottom - own.top)) / 2;
    SetWindowPos(window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

bool KeepFocus(HWND window, UINT message, WPARAM wParam) {
    if (message == WM_NCDESTROY) RemovePropW(window, kFocusProperty);
    if (message != WM_ACTIVATE) return false;
    if (LOWORD(wParam) == WA_INACTIVE) {
        const HWND focus = GetFocus();
        if (IsChild(window, focus)) SetPropW(window, kFocusProperty, focus);
        return false;
    }
    const bool isMinimized = HIWORD(wParam) != 0;
    const HWND focus = static_cast<HWND>(GetPropW(window, kFocusProperty));
    if (isMinimized || focus == nullptr || !IsChild(window, focus)) return false;
    SetFocus(focus);
    return true;
}

LRESULT AnswerAfterException(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (const HWND owner = OwnerOfBox(window, message)) ShowOutOfMemory(owner);
    switch (message) {
        case WM_NCCREATE:
            return FALSE;
        case WM_CREATE:
            return -1;
        case WM_CLOSE:
            // The default would destroy the window, and with it what is not saved.
            return 0;
        default:
            // Also ends a half-done painting, which Windows would ask for again without end.
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

}  // namespace tessaline
