#include "ui/form/canvas.h"

#include <algorithm>
#include <iterator>

#include "platform/controls.h"
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

bool IsMessageLine(HWND label) {
    const auto& lines = App()->sectionMessage;
    return std::find(std::begin(lines), std::end(lines), label) != std::end(lines);
}

}  // namespace

LRESULT HandleCanvasMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (App() == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
            return SendMessageW(App()->mainWindow, message, wParam, lParam);
        case WM_CTLCOLOREDIT:
            return reinterpret_cast<LRESULT>(
                ColourEdit(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)));
        case WM_CTLCOLORSTATIC:
            return ColourLabel(
                wParam,
                IsMessageLine(reinterpret_cast<HWND>(lParam)) ? kErrorTextColour : kInkColour,
                static_cast<HBRUSH>(GetStockObject(HOLLOW_BRUSH)));
        case WM_CTLCOLORBTN:
            return ColourButton(CurrentTheme().pageBrush.Get());
        case WM_MOUSEWHEEL:
            return SendMessageW(App()->scrollWindow, message, wParam, lParam);
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

}  // namespace tessaline
