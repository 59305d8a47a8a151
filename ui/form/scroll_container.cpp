#include "ui/form/scroll_container.h"

#include <algorithm>

#include "platform/scale.h"
#include "ui/app_state.h"
#include "ui/form/form_rows.h"

namespace tessaline {
namespace {

constexpr int kLineHeight = 28;

int scrollPosition = 0;

void PlaceCanvas(HWND container) {
    if (App() == nullptr || App()->canvasWindow == nullptr) return;
    RECT client{};
    GetClientRect(container, &client);
    const int left = std::max<int>(0, (client.right - Scale(kCanvasWidth)) / 2);
    SetWindowPos(App()->canvasWindow, nullptr, left, -scrollPosition, Scale(kCanvasWidth),
                 Scale(CanvasHeight()), SWP_NOZORDER);
}

SCROLLINFO ReadScrollInfo(HWND container) {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    GetScrollInfo(container, SB_VERT, &info);
    return info;
}

void AdjustRange(HWND container) {
    RECT client{};
    GetClientRect(container, &client);
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = Scale(CanvasHeight());
    info.nPage = static_cast<UINT>(client.bottom);
    info.nPos = scrollPosition;
    SetScrollInfo(container, SB_VERT, &info, TRUE);
    // Windows clamps the position where a taller window leaves less to scroll.
    scrollPosition = ReadScrollInfo(container).nPos;
    PlaceCanvas(container);
}

int RequestedPosition(const SCROLLINFO& info, int request) {
    switch (request) {
        case SB_LINEUP:
            return info.nPos - Scale(kLineHeight);
        case SB_LINEDOWN:
            return info.nPos + Scale(kLineHeight);
        case SB_PAGEUP:
            return info.nPos - static_cast<int>(info.nPage);
        case SB_PAGEDOWN:
            return info.nPos + static_cast<int>(info.nPage);
        case SB_THUMBTRACK:
            // The message itself carries only 16 bits of the position.
            return info.nTrackPos;
        case SB_TOP:
            return info.nMin;
        case SB_BOTTOM:
            return info.nMax;
        default:
            return info.nPos;
    }
}

void ScrollTo(HWND container, int request) {
    SCROLLINFO info = ReadScrollInfo(container);
    info.nPos = RequestedPosition(info, request);
    info.fMask = SIF_POS;
    SetScrollInfo(container, SB_VERT, &info, TRUE);
    const int reached = ReadScrollInfo(container).nPos;
    if (reached == scrollPosition) return;
    scrollPosition = reached;
    PlaceCanvas(container);
    UpdateWindow(container);
}

}  // namespace

LRESULT HandleScrollMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            scrollPosition = 0;
            break;
        case WM_SIZE:
            AdjustRange(window);
            return 0;
        case WM_VSCROLL:
            ScrollTo(window, LOWORD(wParam));
            return 0;
        case WM_MOUSEWHEEL: {
            // Two lines of 28 pixels for each message: a notch passes one row of fields, which are
            // 48 apart. The wheel's own setting in Windows is not used.
            const WPARAM request = GET_WHEEL_DELTA_WPARAM(wParam) >= 1 ? SB_LINEUP : SB_LINEDOWN;
            SendMessageW(window, WM_VSCROLL, request, 0);
            SendMessageW(window, WM_VSCROLL, request, 0);
            return 0;
        }
        default:
            break;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace tessaline
