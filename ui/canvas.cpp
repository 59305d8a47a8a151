#include "ui/canvas.h"

#include <algorithm>
#include <iterator>

#include "platform/theme.h"
#include "ui/app_state.h"

namespace tessaline {
namespace {

HBRUSH ColourEdit(HDC context, HWND edit) {
    const bool invalid = App()->invalidControls.contains(edit);
    SetTextColor(context, kInkColour);
    SetBkColor(context, invalid ? kErrorFillColour : kWhiteColour);
    return invalid ? CurrentTheme().errorFillBrush.Get() : CurrentTheme().whiteBrush.Get();
}

HBRUSH ColourLabel(HDC context, HWND label) {
    const auto& lines = App()->sectionMessage;
    const bool message = std::find(std::begin(lines), std::end(lines), label) != std::end(lines);
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, message ? kErrorTextColour : kInkColour);
    return static_cast<HBRUSH>(GetStockObject(HOLLOW_BRUSH));
}

}  // namespace

LRESULT HandleCanvasMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (App() == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
            if (App()->mainWindow == nullptr) return 0;
            return SendMessageW(App()->mainWindow, message, wParam, lParam);
        case WM_CTLCOLOREDIT:
            return reinterpret_cast<LRESULT>(
                ColourEdit(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)));
        case WM_CTLCOLORSTATIC:
            return reinterpret_cast<LRESULT>(
                ColourLabel(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)));
        case WM_MOUSEWHEEL:
            return SendMessageW(App()->scrollWindow, message, wParam, lParam);
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

}  // namespace tessaline
