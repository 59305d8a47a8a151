#include "platform/modal.h"

#include <optional>

#include "platform/controls.h"
#include "platform/scale.h"
#include "platform/theme.h"
#include "platform/window.h"

namespace tessaline {
namespace {

// Runs until the window is done. Returns the exit code when a quit message ended it.
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

HWND MakeModalWindow(const ModalWindow& description, HWND owner, void* state) {
    RegisterWindowClass({description.className, description.procedure, description.background});
    return CreateWindowExW(WS_EX_DLGMODALFRAME, description.className, description.title,
                           WS_CAPTION | WS_SYSMENU | description.extraStyle, CW_USEDEFAULT,
                           CW_USEDEFAULT, Scale(description.width), Scale(description.height),
                           owner, nullptr, ProgramInstance(), state);
}

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

LRESULT HandleModalMessage(ModalState& modal, HWND window, UINT message, WPARAM wParam,
                           LPARAM lParam) {
    if (KeepFocus(window, message, wParam)) return 0;
    switch (message) {
        case WM_CTLCOLORBTN:
            return ColourButton(modal.background);
        case WM_CTLCOLORSTATIC:
            return ColourLabel(wParam, kInkColour, modal.background);
        case WM_CLOSE:
            EndModal(modal, false);
            return 0;
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

void EndModal(ModalState& modal, bool accepted) {
    modal.Done = true;
    modal.Accepted = accepted;
    if (modal.ownerWasEnabled) EnableWindow(modal.owner, TRUE);
    if (IsWindow(modal.window)) DestroyWindow(modal.window);
}

}  // namespace tessaline
