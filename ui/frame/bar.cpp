#include "ui/frame/bar.h"

#include <algorithm>

#include "platform/scale.h"
#include "platform/theme.h"
#include "platform/window.h"
#include "ui/app_state.h"
#include "ui/control_ids.h"
#include "ui/form/form.h"
#include "ui/frame/window_names.h"

namespace tessaline {
namespace {

// At the bar's right end, where the layout puts it.
constexpr Box kTotalBox = {0, 8, 190, 59};

// Between the controls at the right end, in pixels at 96 DPI.
constexpr int kBeforeTotal = 12;
constexpr int kBeforeStatus = 9;
constexpr int kBeforeAbout = 128;

void BuildTotalPanel(HWND bar) {
    const HWND panel =
        CreateWindowExW(WS_EX_CLIENTEDGE, kTotalClass, L"", WS_CHILD | WS_VISIBLE,
                        Scale(kTotalBox.x), Scale(kTotalBox.y), Scale(kTotalBox.width),
                        Scale(kTotalBox.height), bar, nullptr, ProgramInstance(), nullptr);
    const Theme& theme = CurrentTheme();
    MakeLabel(panel, L"TOTAL ESTIMATED CHARGES", {10, 6, 170, 16}, theme.smallFont.Get());
    App()->totalAmount = MakeLabel(panel, L"$0.00", {10, 22, 170, 32}, theme.totalFont.Get());
}

// Moves a child to a left edge in pixels of the screen. The rest is as its row has it.
void PlaceAt(HWND child, int left, const Box& box) {
    MoveWindow(child, left, Scale(box.y), Scale(box.width), Scale(box.height), TRUE);
}

const Box& ButtonBox(int id) {
    const auto rows = BarButtons();
    return std::find_if(rows.begin(), rows.end(),
                        [id](const ButtonRow& row) { return row.id == id; })
        ->box;
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
        // Made here, because screen readers follow the order of creation.
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
    const FieldRow& status = StatusField();
    const Box& about = ButtonBox(kAboutButton);
    const Box& sample = ButtonBox(kSampleButton);
    // From right to left. A width is scaled together with the gap beside it, so that it is rounded
    // once.
    const int statusLeft =
        client.right - Scale(kTotalBox.width + kBeforeTotal) - Scale(status.fieldBox.width);
    const int aboutLeft = statusLeft - Scale(about.width + kBeforeStatus);
    PlaceAt(FindWindowExW(bar, nullptr, kTotalClass, nullptr),
            client.right - Scale(kTotalBox.width), kTotalBox);
    PlaceAt(App()->statusCombo, statusLeft, status.fieldBox);
    PlaceAt(FindWindowExW(bar, nullptr, L"STATIC", status.label), statusLeft, status.labelBox);
    PlaceAt(ControlById(kAboutButton), aboutLeft, about);
    PlaceAt(ControlById(kSampleButton), aboutLeft - Scale(sample.width + kBeforeAbout), sample);
}

LRESULT HandleBarMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
            return SendMessageW(App()->mainWindow, message, wParam, lParam);
        case WM_CTLCOLORBTN:
            return ColourButton(CurrentTheme().whiteBrush.Get());
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
