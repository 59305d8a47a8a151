#include "document/preview.h"

#include <array>
#include <cwchar>
#include <memory>

#include "document/estimate_pages.h"
#include "document/page_colours.h"
#include "document/page_drawing.h"
#include "platform/handles.h"
#include "platform/window.h"

namespace tessaline {
namespace {

constexpr wchar_t kPreviewClass[] = L"GFE_Native_Preview";
constexpr int kPreviousButton = 1;
constexpr int kNextButton = 2;

struct PreviewState {
    Estimate estimate;
    int pageIndex = 0;
    HWND pageLabel = nullptr;
};

// Places are in pixels of the screen. The page takes whatever the window leaves and is scaled by
// that alone; `PreviewTransform` keeps a strip of 55 pixels free above it, for which these places
// are made. So nothing here is scaled by the screen's DPI.
HWND MakeChild(HWND parent, const wchar_t* windowClass, const wchar_t* text, int id,
               const RECT& place, DWORD style) {
    return CreateWindowExW(0, windowClass, text, WS_CHILD | WS_VISIBLE | style, place.left,
                           place.top, place.right - place.left, place.bottom - place.top, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ProgramInstance(),
                           nullptr);
}

void MakeChildren(HWND window, PreviewState& state) {
    MakeChild(window, L"BUTTON", L"< Previous", kPreviousButton, {18, 12, 110, 40}, BS_PUSHBUTTON);
    MakeChild(window, L"BUTTON", L"Next >", kNextButton, {116, 12, 196, 40}, BS_PUSHBUTTON);
    state.pageLabel = MakeChild(window, L"STATIC", L"", 0, {210, 18, 390, 38}, SS_CENTER);
}

void ShowPosition(const PreviewState& state) {
    std::array<wchar_t, 40> position{};
    std::swprintf(position.data(), position.size(), L"Page %d of %d", state.pageIndex + 1,
                  PageCount(state.estimate));
    SetWindowTextW(state.pageLabel, position.data());
}

void TurnPage(HWND window, PreviewState& state, int command) {
    if (command == kPreviousButton && state.pageIndex > 0) --state.pageIndex;
    if (command == kNextButton && state.pageIndex + 1 < PageCount(state.estimate)) {
        ++state.pageIndex;
    }
    ShowPosition(state);
    InvalidateRect(window, nullptr, TRUE);
}

void PaintPreview(HWND window, const PreviewState& state) {
    const PaintScope paint(window);
    RECT client{};
    GetClientRect(window, &client);
    const PageTransform transform = PreviewTransform(client.right, client.bottom);
    const RECT page = PageArea(transform);

    // Marks the sheet's place until the page is drawn, which takes a moment on a remote screen.
    // The page then covers both with its own white, so the sheet ends where its white does.
    const BrushOwner white(CreateSolidBrush(kPageBackground));
    FillRect(paint.Get(), &page, white.Get());
    FrameDeviceRect(paint.Get(), page, kPreviewOutline, 1);
    DrawEstimatePage(paint.Get(), transform, state.estimate, state.pageIndex, false);
}

LRESULT HandlePreview(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const state = OwnedWindowState<PreviewState>(window, message, lParam);
    if (state == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    switch (message) {
        case WM_CREATE:
            MakeChildren(window, *state);
            return 0;
        case WM_SIZE:
            // The page is scaled to the window, but Windows asks only for the new part of it.
            InvalidateRect(window, nullptr, TRUE);
            return 0;
        case WM_COMMAND:
            TurnPage(window, *state, LOWORD(wParam));
            return 0;
        case WM_PAINT:
            PaintPreview(window, *state);
            return 0;
        case WM_NCDESTROY: {
            const auto finished = TakeWindowState<PreviewState>(window);
            return DefWindowProcW(window, message, wParam, lParam);
        }
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

}  // namespace

void ShowPrintPreview(HWND owner, const Estimate& estimate) {
    RegisterWindowClass({kPreviewClass, GuardedProcedure<HandlePreview>,
                         reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1))});
    auto holder = std::make_unique<PreviewState>(PreviewState{estimate});
    PreviewState* state = holder.get();
    HWND window = CreateWindowExW(WS_EX_APPWINDOW, kPreviewClass,
                                  L"Print Preview \u2014 Good Faith Estimate",
                                  WS_OVERLAPPEDWINDOW | WS_VISIBLE, CW_USEDEFAULT, CW_USEDEFAULT,
                                  900, 980, owner, nullptr, ProgramInstance(), &holder);
    if (window == nullptr) return;
    CentreWindow(window, owner);
    ShowPosition(*state);
}

}  // namespace tessaline
