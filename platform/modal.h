// How every modal window is made and run, in one loop. Timers and other windows go on under it.
#pragma once

#include <windows.h>

namespace tessaline {

/// What a modal window and its loop share. It lives with the caller for the time of `RunModal`.
struct ModalState {
    HWND window = nullptr;
    HWND owner = nullptr;
    bool Done = false;
    bool Accepted = false;
    bool ownerWasEnabled = false;
    HBRUSH background = nullptr;  ///< borrowed: the window's own, which its controls stand on
};

/// What sets a modal window apart when it is made.
struct ModalWindow {
    const wchar_t* className;
    WNDPROC procedure;
    HBRUSH background;  ///< borrowed for the life of the process
    const wchar_t* title;
    int width;  ///< in pixels at 96 DPI, with the frame, as the height
    int height;
    DWORD extraStyle = 0;
};

/// Makes a hidden window over `owner`, with `state` as the parameter of its creation. Null when it
/// cannot be made.
[[nodiscard]] HWND MakeModalWindow(const ModalWindow& description, HWND owner, void* state);

/// Shows `modal.window` centred over `modal.owner`, which takes no input meanwhile, until
/// `EndModal`. Tab, Enter and Escape work as in any dialog. A quit message ends the window too,
/// and is posted again for the loop outside. Returns `modal.Accepted`.
bool RunModal(ModalState& modal);

/// Makes a window over `state.owner` and runs it. The window's procedure finds `state` with
/// `WindowState<State>` and sets its `window` in WM_CREATE. False also when it cannot be made.
template <typename State>
bool ShowModal(const ModalWindow& description, State& state) {
    state.background = description.background;
    return MakeModalWindow(description, state.owner, &state) != nullptr && RunModal(state);
}

/// What all modal windows do alike, for every message that the window's own procedure leaves
/// alone: the focus is kept, labels and buttons stand on the background, the close box gives up.
LRESULT HandleModalMessage(ModalState& modal, HWND window, UINT message, WPARAM wParam,
                           LPARAM lParam);

/// Ends a modal window from inside its procedure: the owner is enabled first, since Windows would
/// otherwise bring another program to the front, then the window is destroyed.
void EndModal(ModalState& modal, bool accepted);

}  // namespace tessaline
