// What every window of the program needs: a class, state that lives as long as the window, and a
// procedure that no exception leaves.
#pragma once

#include <windows.h>

#include <memory>

namespace tessaline {

/// The module that all windows and resources belong to.
[[nodiscard]] HINSTANCE ProgramInstance();

/// A window class with the arrow cursor and class style 0.
struct WindowClass {
    const wchar_t* name;
    WNDPROC procedure;
    /// Borrowed for the life of the process; a system colour index + 1 will do.
    HBRUSH background;
    HICON icon = nullptr;
};

/// Makes the class known to Windows. A class that is there already stays as it is, so a dialog may
/// call this each time it opens.
void RegisterWindowClass(const WindowClass& windowClass);

/// Centres a window over `reference`, or in the work area of its monitor where that is minimised,
/// null or no window. No title bar leaves the work area: a window that does not fit there begins
/// at its left or top edge. Size, Z order and activation stay; a minimised or maximised window
/// stays where it is.
void CentreWindow(HWND window, HWND reference);

/// The state of a window: the creation parameter, remembered with WM_NCCREATE. Null for the
/// messages that come before that one.
template <typename State>
[[nodiscard]] State* WindowState(HWND window, UINT message, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA,
                          reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
    }
    return reinterpret_cast<State*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

/// The state of a window that owns it. The creation parameter is the `unique_ptr` that holds the
/// state so far. From WM_NCCREATE on the window owns it, also when its creation fails later.
/// `TakeWindowState` takes it back.
template <typename State>
[[nodiscard]] State* OwnedWindowState(HWND window, UINT message, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        auto* holder = static_cast<std::unique_ptr<State>*>(creation->lpCreateParams);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(holder->release()));
    }
    return reinterpret_cast<State*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

/// Takes the state back from a window that owned it: call it once, in WM_NCDESTROY, the last
/// message.
template <typename State>
[[nodiscard]] std::unique_ptr<State> TakeWindowState(HWND window) {
    return std::unique_ptr<State>(
        reinterpret_cast<State*>(SetWindowLongPtrW(window, GWLP_USERDATA, 0)));
}

/// Keeps the focus on the same control while the user is in another program: Windows would give it
/// to the window itself, where typing is lost. Call it first for every message; true when it was
/// handled.
[[nodiscard]] bool KeepFocus(HWND window, UINT message, WPARAM wParam);

/// Handles a message whose own handling ran out of memory: creation fails, closing does nothing,
/// and anything else goes to the default procedure. After commands the user is told in a message
/// box.
LRESULT AnswerAfterException(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

using MessageHandler = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);

/// A window procedure around `Handle`. Windows' own code lies between our frames, and no exception
/// may cross it.
template <MessageHandler Handle>
LRESULT CALLBACK GuardedProcedure(HWND window, UINT message, WPARAM wParam,
                                  LPARAM lParam) noexcept {
    try {
        return Handle(window, message, wParam, lParam);
    } catch (...) {
        return AnswerAfterException(window, message, wParam, lParam);
    }
}

}  // namespace tessaline
