// bare_windows FILE: the least that a program must do to show the form. It makes the windows in a
// file by bare calls, with Windows' own procedures behind them.
#include <windows.h>

#include <commctrl.h>

#include "tests/bench/bare_window.h"

namespace {

using tessaline::bench::BareWindow;
using tessaline::bench::kMostBareWindows;

BareWindow description[kMostBareWindows];
HWND windows[kMostBareWindows];
HFONT fonts[kMostBareWindows];

int ReadDescriptions(const wchar_t* path) {
    const HANDLE file =
        CreateFileW(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD size = 0;
    if (!ReadFile(file, description, sizeof(description), &size, nullptr)) return 0;
    CloseHandle(file);
    return static_cast<int>(size / sizeof(BareWindow));
}

void MakeWindow(int index) {
    const BareWindow& row = description[index];
    const HWND parent = row.parent < 0 ? nullptr : windows[row.parent];
    windows[index] = CreateWindowExW(row.extendedStyle, row.className, row.text, row.style,
                                     row.box.left, row.box.top, row.box.right, row.box.bottom,
                                     parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (row.fontOf < 0) return;
    if (row.fontOf == index) fonts[index] = CreateFontIndirectW(&row.font);
    const auto font = reinterpret_cast<WPARAM>(fonts[row.fontOf]);
    SendMessageW(windows[index], WM_SETFONT, font, FALSE);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR commandLine, int showState) {
    const INITCOMMONCONTROLSEX controls{sizeof(controls),
                                        ICC_LISTVIEW_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
    WNDCLASSW bare{};
    bare.lpfnWndProc = DefWindowProcW;
    bare.hInstance = instance;
    bare.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    bare.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    bare.lpszClassName = L"BARE";
    RegisterClassW(&bare);
    const int count = ReadDescriptions(commandLine);
    for (int index = 0; index < count; ++index) MakeWindow(index);
    ShowWindow(windows[0], showState);
    UpdateWindow(windows[0]);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return 0;
}
