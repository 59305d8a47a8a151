#include "tests/tour/desk.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "platform/files.h"
#include "platform/handles.h"

namespace tessaline::desk {
namespace {

std::wstring pictureFolder;

void SendMouse(DWORD flags, POINT place, DWORD data = 0) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    // Absolute places count in 65,536ths of the screen.
    input.mi.dx = MulDiv(place.x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1;
    input.mi.dy = MulDiv(place.y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1;
    input.mi.mouseData = data;
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | flags;
    SendInput(1, &input, sizeof(input));
}

void SendKey(WORD key, wchar_t character, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = character;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
}

POINT Centre(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

// Lets the program's thread work off what was sent: an answer to a message comes after all of it.
void Settle(HWND window) {
    Sleep(30);
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, 5000, &answer);
}

struct Search {
    int id;
    int left;
    HWND found;
};

BOOL CALLBACK MatchControl(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    if (GetDlgCtrlID(window) != search.id || !IsWindowVisible(window)) return TRUE;
    if (search.left-- > 0) return TRUE;
    search.found = window;
    return FALSE;
}

}  // namespace

void SetPictureFolder(const std::wstring& folder) {
    pictureFolder = folder;
}

void WaitFor(const char* what, const std::function<bool()>& holds) {
    const ULONGLONG start = GetTickCount64();
    while (!holds()) {
        if (GetTickCount64() - start > 10'000) {
            TakePicture(L"lost");
            std::printf("The tour waited in vain for: %s\n", what);
            std::fflush(stdout);
            std::exit(1);
        }
        Sleep(20);
    }
}

HWND WaitForWindow(const wchar_t* className, const wchar_t* title) {
    HWND window = nullptr;
    std::string what(64, '\0');
    std::snprintf(what.data(), what.size(), "a window of class %ls", className);
    WaitFor(what.c_str(), [&] {
        window = FindWindowW(className, title);
        return window != nullptr && IsWindowVisible(window) && IsWindowEnabled(window);
    });
    Settle(window);
    return window;
}

void WaitUntilGone(HWND window) {
    WaitFor("a window to close", [&] { return !IsWindow(window); });
    Sleep(50);
}

HWND Control(HWND window, int id, int which) {
    Search search{id, which, nullptr};
    EnumChildWindows(window, MatchControl, reinterpret_cast<LPARAM>(&search));
    WaitFor("a control", [&] { return search.found != nullptr; });
    return search.found;
}

void Click(HWND control) {
    const POINT place = Centre(control);
    SendMouse(0, place);
    SendMouse(MOUSEEVENTF_LEFTDOWN, place);
    SendMouse(MOUSEEVENTF_LEFTUP, place);
    Settle(control);
}

void DoubleClick(POINT place) {
    for (int click = 0; click < 2; ++click) {
        SendMouse(MOUSEEVENTF_LEFTDOWN, place);
        SendMouse(MOUSEEVENTF_LEFTUP, place);
    }
    Sleep(50);
}

void Wheel(HWND over, int notches) {
    // Wine's edits keep the wheel to themselves where Windows' pass it on, so it is turned beside
    // them.
    RECT rect{};
    GetWindowRect(over, &rect);
    const POINT place{rect.left + 20, rect.top + 20};
    SendMouse(MOUSEEVENTF_WHEEL, place, static_cast<DWORD>(notches * WHEEL_DELTA));
    Settle(over);
}

void Type(const std::wstring& text) {
    for (const wchar_t character : text) {
        SendKey(0, character, KEYEVENTF_UNICODE);
        SendKey(0, character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
    }
    Sleep(30);
}

void Press(WORD key, WORD modifier) {
    if (modifier != 0) SendKey(modifier, 0, 0);
    SendKey(key, 0, 0);
    SendKey(key, 0, KEYEVENTF_KEYUP);
    if (modifier != 0) SendKey(modifier, 0, KEYEVENTF_KEYUP);
    Sleep(50);
}

void Retype(HWND edit, const std::wstring& text) {
    Click(edit);
    Press(VK_HOME);
    Press(VK_END, VK_SHIFT);
    Type(text);
    Settle(edit);
}

void TakePicture(const wchar_t* name) {
    Sleep(400);
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    const WindowDeviceContext screen(nullptr);
    const DeviceContextOwner memory(CreateCompatibleDC(screen.Get()));
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, height, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    void* pixels = nullptr;
    const BitmapOwner bitmap(
        CreateDIBSection(memory.Get(), &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    {
        const SelectGuard selected(memory.Get(), bitmap.Get());
        BitBlt(memory.Get(), 0, 0, width, height, screen.Get(), 0, 0, SRCCOPY);
        GdiFlush();
    }
    const auto size = static_cast<DWORD>((width * 3 + 3) / 4 * 4 * height);
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42;  // "BM"
    header.bfOffBits = sizeof(header) + sizeof(info.bmiHeader);
    header.bfSize = header.bfOffBits + size;
    Bytes file(header.bfSize);
    std::memcpy(file.data(), &header, sizeof(header));
    std::memcpy(file.data() + sizeof(header), &info.bmiHeader, sizeof(info.bmiHeader));
    std::memcpy(file.data() + header.bfOffBits, pixels, size);
    if (!WriteFileBytes(pictureFolder + L"\\" + name + L".bmp", file)) std::exit(2);
}

}  // namespace tessaline::desk
