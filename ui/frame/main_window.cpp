#include "ui/frame/main_window.h"

#include <algorithm>

#include "model/new_estimate.h"
#include "platform/scale.h"
#include "platform/theme.h"
#include "platform/window.h"
#include "ui/app_state.h"
#include "ui/commands/commands.h"
#include "ui/commands/save_command.h"
#include "ui/form/binding.h"
#include "ui/form/canvas.h"
#include "ui/form/form.h"
#include "ui/form/scroll_container.h"
#include "ui/frame/bar.h"
#include "ui/frame/header.h"
#include "ui/frame/window_names.h"
#include "ui/resource_ids.h"

namespace tessaline {
namespace {

constexpr UINT_PTR kAutoSaveTimer = 1;
constexpr UINT kAutoSavePeriod = 45'000;  // milliseconds

constexpr int kHeaderHeight = 160;
constexpr int kBarHeight = 82;
constexpr int kBarMargin = 18;
constexpr int kBarGap = 12;  // above the bar, and again below it

LRESULT HandleMainMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

void RegisterClasses() {
    const HBRUSH page = CurrentTheme().pageBrush.Get();
    const HBRUSH white = CurrentTheme().whiteBrush.Get();
    const HICON icon = LoadIconW(ProgramInstance(), MAKEINTRESOURCEW(IDI_PROGRAM));
    const HBRUSH systemWindow = reinterpret_cast<HBRUSH>(INT_PTR{COLOR_WINDOW + 1});
    RegisterWindowClass({kMainClass, GuardedProcedure<HandleMainMessage>, page, icon});
    RegisterWindowClass({kHeaderClass, GuardedProcedure<HandleHeaderMessage>, white});
    RegisterWindowClass({kScrollClass, GuardedProcedure<HandleScrollMessage>, page});
    RegisterWindowClass({kCanvasClass, GuardedProcedure<HandleCanvasMessage>, page});
    RegisterWindowClass({kBarClass, GuardedProcedure<HandleBarMessage>, white});
    RegisterWindowClass({kTotalClass, GuardedProcedure<HandleTotalMessage>, systemWindow});
}

// A part of the frame, without a size: the first WM_SIZE places it.
HWND MakePart(HWND parent, const wchar_t* className, DWORD style, DWORD extendedStyle = 0) {
    return CreateWindowExW(extendedStyle, className, L"", WS_CHILD | WS_VISIBLE | style, 0, 0, 0,
                           0, parent, nullptr, ProgramInstance(), nullptr);
}

void LayOutMainWindow(HWND window) {
    const AppState& app = *App();
    RECT client{};
    GetClientRect(window, &client);
    const int header = Scale(kHeaderHeight);
    const int bar = Scale(kBarHeight);
    const int gap = Scale(kBarGap);
    const int gaps = Scale(2 * kBarGap);
    MoveWindow(app.headerWindow, 0, 0, client.right, header, TRUE);
    // Its right-hand texts and its stretched picture move with its width.
    InvalidateRect(app.headerWindow, nullptr, FALSE);
    MoveWindow(app.barWindow, Scale(kBarMargin), header + gap,
               client.right - Scale(2 * kBarMargin), bar, TRUE);
    LayOutBar(app.barWindow);
    MoveWindow(app.scrollWindow, 0, header + bar + gaps, client.right,
               client.bottom - gaps - bar - header, TRUE);
    // Windows sends WM_SIZE only when the size changed; the scroll range depends on more.
    SendMessageW(app.scrollWindow, WM_SIZE, 0, 0);
}

void BuildMainWindow(HWND window) {
    AppState& app = *App();
    app.mainWindow = window;
    app.headerWindow = MakePart(window, kHeaderClass, 0);
    app.barWindow = MakePart(window, kBarClass, 0, WS_EX_CLIENTEDGE);
    BuildBar(app.barWindow);
    app.scrollWindow = MakePart(window, kScrollClass, WS_CLIPCHILDREN | WS_VSCROLL);
    app.canvasWindow = MakePart(app.scrollWindow, kCanvasClass, 0);
    BuildForm(app.canvasWindow);
    BindToForm(NewEstimate());
    // Also now: before the window is shown, moving the parts draws nothing.
    LayOutMainWindow(window);
    SetTimer(window, kAutoSaveTimer, kAutoSavePeriod, nullptr);
    InvalidateRect(app.headerWindow, nullptr, TRUE);
}

// The messages that the user and the timer cause.
LRESULT RouteMainMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            if (RunCommand(LOWORD(wParam), HIWORD(wParam))) return 0;
            break;
        case WM_NOTIFY:
            if (RunListNotification(*reinterpret_cast<const NMHDR*>(lParam))) return 0;
            break;
        case WM_TIMER:
            if (wParam == kAutoSaveTimer) AutoSave();
            return 0;
        case WM_MOUSEWHEEL:
            return SendMessageW(App()->scrollWindow, message, wParam, lParam);
        case WM_CLOSE:
            if (MayClose()) DestroyWindow(window);
            return 0;
        case WM_QUERYENDSESSION:
            // Windows ends the session with or without us; a question would only hold it up.
            AutoSave();
            return TRUE;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            break;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

LRESULT HandleMainMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (App() == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    if (KeepFocus(window, message, wParam)) return 0;
    switch (message) {
        case WM_CREATE:
            BuildMainWindow(window);
            return 0;
        case WM_SIZE:
            LayOutMainWindow(window);
            return 0;
        case WM_GETMINMAXINFO:
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {Scale(1040), Scale(650)};
            return 0;
        default:
            return RouteMainMessage(window, message, wParam, lParam);
    }
}

}  // namespace

HWND CreateMainWindow() {
    RegisterClasses();
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const int width = std::min<int>(work.right - work.left - Scale(24), Scale(1320));
    const int height = std::min<int>(work.bottom - work.top - Scale(24), Scale(920));
    return CreateWindowExW(0, kMainClass, L"Tessaline | No Surprises Act",
                           WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT,
                           width, height, nullptr, nullptr, ProgramInstance(), nullptr);
}

}  // namespace tessaline
