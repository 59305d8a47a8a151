#include "platform/modal.h"

#include <optional>

#include "platform/window.h"

namespace tessaline {
namespace {

// Runs until the window is done. Returns the exit code of a quit message that came in between.
std::optional<int> PumpMessages(const ModalState& modal) {
    MSG message{};
    while (!modal.Done && IsWindow(modal.window)) {
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got == 0) return static_cast<int>(message.wParam);
        if (got < 0) return std::nullopt;
        if (IsDialogMessageW(modal.window, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return std::nullopt;
}

}  // namespace

bool RunModal(ModalState& modal) {
    const HWND focusBefore = GetFocus();
    modal.ownerWasEnabled = IsWindowEnabled(modal.owner) != FALSE;
    if (modal.ownerWasEnabled) EnableWindow(modal.owner, FALSE);
    ShowWindow(modal.window, SW_SHOW);
    CentreWindow(modal.window, modal.owner);
    SetFocus(GetNextDlgTabItem(modal.window, nullptr, FALSE));
    const std::optional<int> quitCode = PumpMessages(modal);
    if (!modal.Done) EndModal(modal, false);
    SetForegroundWindow(modal.owner);
    if (IsChild(modal.owner, focusBefore)) SetFocus(focusBefore);
    if (quitCode) PostQuitMessage(*quitCode);
    return modal.Accepted;
}

void EndModal(ModalState& modal, bool accepted) {
    modal.Done = true;
    modal.Accepted = accepted;
    if (modal.ownerWasEnabled) EnableWindow(modal.owner, TRUE);
    if (IsWindow(modal.window)) DestroyWindow(modal.window);
}

}  // namespace tessaline
