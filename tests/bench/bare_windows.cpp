// The least that a program must do to show the form: the windows that its rows describe, made by
// bare calls at 96 DPI, with Windows' own procedures behind them.
#include <windows.h>

#include <commctrl.h>

#include "ui/form_rows.h"

using namespace tessaline;

namespace {

HFONT MakeFont(int points, int weight) {
    return CreateFontW(-MulDiv(points, 96, 72), 0, 0, 0, weight, FALSE, FALSE, FALSE,
                       DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                       DEFAULT_PITCH | FF_DONTCARE, L"Segoe UI");
}

HFONT plain, small, strong, title;

HWND Make(HWND parent, const wchar_t* className, const wchar_t* text, const Box& box,
          HFONT font = nullptr, DWORD style = 0, DWORD extendedStyle = 0) {
    const HWND window = CreateWindowExW(
        extendedStyle, className, text, (parent ? WS_CHILD | WS_VISIBLE : 0) | style, box.x, box.y,
        box.width, box.height, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (font) SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return window;
}

void MakeButtons(HWND parent, std::span<const ButtonRow> rows) {
    for (const ButtonRow& row : rows) {
        Make(parent, L"BUTTON", row.text, row.box, row.emphasised ? strong : plain, WS_TABSTOP);
    }
}

// By FieldKind.
constexpr struct {
    const wchar_t* className;
    DWORD style, extendedStyle;
} kKinds[] = {{L"EDIT", ES_AUTOHSCROLL, WS_EX_CLIENTEDGE},
              {L"COMBOBOX", CBS_DROPDOWNLIST, WS_EX_CLIENTEDGE},
              {L"BUTTON", BS_AUTOCHECKBOX, 0},
              {L"EDIT", ES_MULTILINE | WS_VSCROLL, WS_EX_CLIENTEDGE}};

void MakeField(HWND parent, const FieldRow& row) {
    if (row.labelBox.height > 0) Make(parent, L"STATIC", row.label, row.labelBox, small);
    const auto& kind = kKinds[static_cast<int>(row.kind)];
    const wchar_t* text = row.flag != nullptr ? row.label : L"";
    const HWND field =
        Make(parent, kind.className, text, row.fieldBox, plain, kind.style, kind.extendedStyle);
    for (const wchar_t* entry : row.entries) {
        SendMessageW(field, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
    }
}

void MakeSection(HWND canvas, const SectionRow& row) {
    Make(canvas, L"BUTTON", L"", {10, row.top, 910, row.height}, plain, BS_GROUPBOX);
    Make(canvas, L"STATIC", row.title, {28, row.top + 12, 520, 24}, title);
    Make(canvas, L"STATIC", row.subtitle, {28, row.top + 35, 740, 18}, small);
    MakeButtons(canvas, row.lookup);
    for (const FieldRow& field : row.fields) MakeField(canvas, field);
    if (row.list != nullptr) {
        const HWND list =
            Make(canvas, WC_LISTVIEWW, L"", row.list->box, plain, LVS_REPORT, WS_EX_CLIENTEDGE);
        for (const ListColumn& column : row.list->columns) {
            LVCOLUMNW description{};
            description.mask = LVCF_TEXT | LVCF_WIDTH;
            description.cx = column.width;
            description.pszText = const_cast<wchar_t*>(column.title);
            SendMessageW(list, LVM_INSERTCOLUMNW, 9, reinterpret_cast<LPARAM>(&description));
        }
    }
    MakeButtons(canvas, row.buttons);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int showState) {
    InitCommonControls();
    plain = MakeFont(9, FW_NORMAL);
    small = MakeFont(8, FW_NORMAL);
    strong = MakeFont(9, FW_SEMIBOLD);
    title = MakeFont(12, FW_SEMIBOLD);
    const HWND window = Make(nullptr, L"STATIC", L"Bare", {300, 60, 1320, 920}, nullptr,
                             WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN);
    Make(window, L"STATIC", L"", {0, 0, 1312, 160});
    const HWND bar =
        Make(window, L"STATIC", L"", {18, 172, 1276, 82}, nullptr, 0, WS_EX_CLIENTEDGE);
    MakeButtons(bar, BarButtons());
    MakeField(bar, StatusField());
    const HWND scroll =
        Make(window, L"STATIC", L"", {0, 266, 1312, 620}, nullptr, WS_CLIPCHILDREN | WS_VSCROLL);
    const HWND canvas = Make(scroll, L"STATIC", L"", {182, 0, 930, 1960});
    for (const SectionRow& row : FormSections()) MakeSection(canvas, row);
    ShowWindow(window, showState);
    UpdateWindow(window);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return 0;
}
