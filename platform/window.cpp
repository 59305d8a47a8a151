#include "platform/window.h"

#include <algorithm>

#include "platform/message_box.h"

namespace tessaline {
namespace {

constexpr wchar_t kFocusProperty[] = L"Tessaline.Focus";

// The part of a window's monitor that the task bar leaves free; for null, the main monitor's.
RECT WorkAreaAround(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(window, window == nullptr ? MONITOR_DEFAULTTOPRIMARY
                                                                : MONITOR_DEFAULTTONEAREST),
                    &monitor);
    return monitor.rcWork;
}

// Where a side of the given length begins so that it lies in the middle of another one, but inside
// the work area. Where it is longer than the work area, the far end is cut off.
int CentredStart(int length, int start, int end, int areaStart, int areaEnd) {
    const int centred = start + ((end - start) - length) / 2;
    return std::max(areaStart, std::min(centred, areaEnd - length));
}

// The owner of the message box that reports a message given up; null for messages that the user
// did not cause, which end silently.
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
    // The place of a minimised window is not one on the screen, a maximised one has its own.
    if (IsIconic(window) || IsZoomed(window)) return;
    const bool isThere = reference != nullptr && IsWindow(reference);
    const RECT area = WorkAreaAround(isThere ? reference : nullptr);
    RECT around = area;
    if (isThere && !IsIconic(reference)) GetWindowRect(reference, &around);
    RECT own{};
    GetWindowRect(window, &own);
    const int left =
        CentredStart(own.right - own.left, around.left, around.right, area.left, area.right);
    const int top =
        CentredStart(own.bottom - own.top, around.top, around.bottom, area.top, area.bottom);
    SetWindowPos(window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
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
