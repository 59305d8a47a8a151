// bare_windows FILE: the least that a program must do to show the form. It makes the windows in a
// file by bare calls, with Windows' own procedures behind them.
#include <windows.h>

#include <commctrl.h>

#include "tests/bench/bare_window.h"

namespace {

constexpr int kMost = 500;
tessaline::bench::BareWindow rows[kMost];
HWND windows[kMost];
HFONT fonts[kMost];

void MakeWindow(int index) {
    const auto& row = rows[index];
    const HWND parent = row.parent < 0 ? nullptr : windows[row.parent];
    windows[index] = CreateWindowExW(row.extendedStyle, row.className, row.text, row.style,
                                     row.box.left, row.box.top, row.box.right, row.box.bottom,
                                     parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (row.fontOf < 0) return;
    if (row.fontOf == index) fonts[index] = CreateFontIndirectW(&row.font);
    SendMessageW(windows[index], WM_SETFONT, reinterpret_cast<WPARAM>(fonts[row.fontOf]), FALSE);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR path, int showState) {
    InitCommonControls();
    WNDCLASSW bare{};
    bare.lpfnWndProc = DefWindowProcW;
    bare.hInstance = instance;
    bare.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    bare.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    bare.lpszClassName = L"BARE";
    RegisterClassW(&bare);
    const HANDLE file =
        CreateFileW(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD size = 0;
    if (!ReadFile(file, rows, sizeof(rows), &size, nullptr)) return 1;
    for (int index = 0; index < static_cast<int>(size / sizeof(rows[0])); ++index) {
        MakeWindow(index);
    }
    ShowWindow(windows[0], showState);
    UpdateWindow(windows[0]);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return 0;
}
