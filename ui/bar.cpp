#include "ui/bar.h"

#include "platform/scale.h"
#include "platform/theme.h"
#include "platform/window.h"
#include "ui/app_state.h"
#include "ui/control_ids.h"
#include "ui/form.h"
#include "ui/window_names.h"

namespace tessaline {
namespace {

void BuildTotalPanel(HWND bar) {
    const HWND panel =
        CreateWindowExW(WS_EX_CLIENTEDGE, kTotalClass, L"", WS_CHILD | WS_VISIBLE, Scale(1024),
                        Scale(8), Scale(190), Scale(59), bar, nullptr, ProgramInstance(), nullptr);
    const Theme& theme = CurrentTheme();
    MakeLabel(panel, L"TOTAL ESTIMATED CHARGES", {10, 6, 170, 16}, theme.smallFont.Get());
    App()->totalAmount = MakeLabel(panel, L"$0.00", {10, 22, 170, 32}, theme.totalFont.Get());
}

// Moves a child; x counts from the bar's right edge, all in pixels at 96 DPI.
void PlaceFromRight(HWND bar, HWND child, const Box& box) {
    RECT client{};
    GetClientRect(bar, &client);
    MoveWindow(child, client.right - Scale(box.x), Scale(box.y), Scale(box.width),
               Scale(box.height), TRUE);
}

LRESULT PaintTotalBackground(HWND panel, HDC context) {
    RECT client{};
    GetClientRect(panel, &client);
    const BrushOwner brush(CreateSolidBrush(kTotalFillColour));
    FillRect(context, &client, brush.Get());
    return 1;
}

LRESULT ColourTotalText(WPARAM context) {
    // Lives as long as the process; Windows only borrows it.
    static const BrushOwner brush(CreateSolidBrush(kTotalFillColour));
    return ColourLabel(context, kNavyColour, brush.Get());
}

}  // namespace

void BuildBar(HWND bar) {
    const Theme& theme = CurrentTheme();
    AppState& app = *App();
    for (const ButtonRow& row : BarButtons()) {
        BuildButton(bar, row);
        if (row.id == kSaveButton) {
            app.statusLine =
                MakeLabel(bar, L"Draft not saved yet", {14, 59, 250, 18}, theme.smallFont.Get());
        }
    }
    app.statusCombo = BuildField(bar, StatusField(), theme.smallFont.Get());
    BuildTotalPanel(bar);
}

void LayOutBar(HWND bar) {
    constexpr int kStatus = 202 + 130;
    constexpr int kAbout = kStatus + 87;
    const HWND totalPanel = FindWindowExW(bar, nullptr, kTotalClass, nullptr);
    const HWND statusLabel = FindWindowExW(bar, nullptr, L"STATIC", StatusField().label);
    PlaceFromRight(bar, totalPanel, {190, 8, 190, 59});
    PlaceFromRight(bar, App()->statusCombo, {kStatus, 25, 130, kChoiceHeight});
    PlaceFromRight(bar, statusLabel, {kStatus, 8, 130, 16});
    PlaceFromRight(bar, ControlById(kAboutButton), {kAbout, 12, 78, 38});
    PlaceFromRight(bar, ControlById(kSampleButton), {kAbout + 204, 12, 76, 38});
}

LRESULT HandleBarMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
            if (App() == nullptr || App()->mainWindow == nullptr) return 0;
            return SendMessageW(App()->mainWindow, message, wParam, lParam);
        case WM_CTLCOLORSTATIC:
            return ColourLabel(wParam, kInkColour, CurrentTheme().whiteBrush.Get());
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

LRESULT HandleTotalMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) {
        return PaintTotalBackground(window, reinterpret_cast<HDC>(wParam));
    }
    if (message == WM_CTLCOLORSTATIC) return ColourTotalText(wParam);
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace tessaline
