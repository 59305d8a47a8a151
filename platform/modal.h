// The one loop that runs every modal window. Timers and other windows go on living under it.
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
};

/// Shows `modal.window` centred over `modal.owner`, which takes no input meanwhile, until
/// `EndModal`. Tab, Enter and Escape work as in any dialog. A quit message ends the window too,
/// and is posted again for the loop outside. Returns `modal.Accepted`.
bool RunModal(ModalState& modal);

/// Ends a modal window from inside its procedure: the owner is enabled first, since Windows would
/// otherwise bring another program to the front, then the window is destroyed.
void EndModal(ModalState& modal, bool accepted);

}  // namespace tessaline
