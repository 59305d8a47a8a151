// The entry point: prepares the process, runs the main window and cleans up.
#include <windows.h>

#include <commctrl.h>

#include <clocale>

#include "platform/local_store.h"
#include "platform/scale.h"
#include "platform/theme.h"
#include "platform/window.h"
#include "ui/app_state.h"
#include "ui/frame/header.h"
#include "ui/frame/main_window.h"

namespace tessaline {
namespace {

void InitialiseCommonControls() {
    INITCOMMONCONTROLSEX controls{};
    controls.dwSize = sizeof(controls);
    controls.dwICC = ICC_LISTVIEW_CLASSES | ICC_STANDARD_CLASSES;
    InitCommonControlsEx(&controls);
}

// Without IsDialogMessageW, so Tab does not move between the form's fields. It would take Tab and
// Enter from the notes, which are free text, and turn Enter and Escape anywhere in the form into
// commands that the main window does not have.
int RunMessageLoop() {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

int RunMainWindow(int showState) {
    const HWND window = CreateMainWindow();
    if (window == nullptr) return 1;
    ShowWindow(window, showState);
    UpdateWindow(window);
    CentreWindow(window, nullptr);
    const int exitCode = RunMessageLoop();
    // A quit message can also come from outside, while the window is still there.
    if (IsWindow(window)) DestroyWindow(window);
    return exitCode;
}

int RunProgram(HINSTANCE instance, int showState) {
    // Libraries that are loaded from here on come from the system folder alone.
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    // Upper and lower case follow the user's language; numbers and dates stay as in "C".
    std::setlocale(LC_CTYPE, "");
    InitialiseCommonControls();
    SetScreenDpi(ReadScreenDpi());
    CreateTheme();
    LoadHeaderBanner();
    AppState state;
    state.instance = instance;
    state.store = PrepareDataFolders();
    PublishAppState(&state);
    const int exitCode = RunMainWindow(showState);
    PublishAppState(nullptr);
    ReleaseHeaderBanner();
    ReleaseTheme();
    return exitCode;
}

}  // namespace
}  // namespace tessaline

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int showState) {
    try {
        return tessaline::RunProgram(instance, showState);
    } catch (...) {
        return 1;  // no memory to start with
    }
}
