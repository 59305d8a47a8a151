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

// Moves a child whose left edge is already in pixels of the screen; the rest counts at 96 DPI.
void PlaceAt(HWND child, int left, int y, int width, int height) {
    MoveWindow(child, left, Scale(y), Scale(width), Scale(height), TRUE);
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
        // Made here, since Tab and screen readers follow the order of creation.
        if (row.id == kSaveButton) {
            app.statusLine =
                MakeLabel(bar, L"Draft not saved yet", {14, 59, 250, 18}, theme.smallFont.Get());
        }
    }
    app.statusCombo = BuildField(bar, StatusField(), theme.smallFont.Get());
    BuildTotalPanel(bar);
}

void LayOutBar(HWND bar) {
    RECT client{};
    GetClientRect(bar, &client);
    // Every distance is scaled by itself, as the widths of the controls are.
    const int status = client.right - Scale(202) - Scale(130);
    const int about = status - Scale(87);
    const HWND totalPanel = FindWindowExW(bar, nullptr, kTotalClass, nullptr);
    const HWND statusLabel = FindWindowExW(bar, nullptr, L"STATIC", StatusField().label);
    PlaceAt(totalPanel, client.right - Scale(190), 8, 190, 59);
    PlaceAt(App()->statusCombo, status, 25, 130, kChoiceHeight);
    PlaceAt(statusLabel, status, 8, 130, 16);
    PlaceAt(ControlById(kAboutButton), about, 12, 78, 38);
    PlaceAt(ControlById(kSampleButton), about - Scale(204), 12, 76, 38);
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
