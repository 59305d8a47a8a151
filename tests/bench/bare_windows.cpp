// The least that a program must do to show the form: the windows that its rows describe, made by
// bare calls at 96 DPI, with Windows' own procedures behind all but the picture's; shown, drawn
// and moved to the centre in the program's order.
#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include "platform/theme.h"
#include "ui/form/form_rows.h"
#include "ui/resource_ids.h"

using namespace tessaline;

namespace {

const Theme& fonts = CurrentTheme();
const FontOwner none;
int top = 0;  // of the section or line whose windows are made

HWND Make(HWND parent, const wchar_t* className, const wchar_t* text, const Box& box,
          const FontOwner& font, DWORD style = 0, DWORD extendedStyle = 0) {
    const HWND window = CreateWindowExW(
        extendedStyle, className, text, (parent ? WS_CHILD | WS_VISIBLE : 0) | style, box.x,
        top + box.y, box.width, box.height, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (font) SetWindowFont(window, font.Get(), FALSE);
    return window;
}

void MakeButtons(HWND parent, std::span<const ButtonRow> rows) {
    for (const auto& [id, text, box, emphasised] : rows) {
        Make(parent, L"BUTTON", text, box, emphasised ? fonts.boldFont : fonts.uiFont, WS_TABSTOP);
    }
}

void MakeField(HWND parent, const FieldRow& row) {
    // By FieldKind.
    static constexpr struct {
        const wchar_t* className;
        DWORD style, extendedStyle;
    } kKinds[] = {{L"EDIT", ES_AUTOHSCROLL, WS_EX_CLIENTEDGE},
                  {L"COMBOBOX", CBS_DROPDOWNLIST, WS_EX_CLIENTEDGE},
                  {L"BUTTON", BS_AUTOCHECKBOX, 0},
                  {L"EDIT", ES_MULTILINE | WS_VSCROLL, WS_EX_CLIENTEDGE}};
    if (row.labelBox.height > 0) Make(parent, L"STATIC", row.label, row.labelBox, fonts.labelFont);
    const auto& [className, style, extendedStyle] = kKinds[static_cast<int>(row.kind)];
    const HWND field = Make(parent, className, row.flag != nullptr ? row.label : L"", row.fieldBox,
                            fonts.uiFont, style, extendedStyle);
    for (const wchar_t* entry : row.entries) ComboBox_AddString(field, entry);
}

void MakeList(HWND parent, const ListRow& row) {
    const HWND list =
        Make(parent, WC_LISTVIEWW, L"", row.box, fonts.uiFont, LVS_REPORT, WS_EX_CLIENTEDGE);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    for (const auto& [words, width, isRight] : row.columns()) {
        column.cx = width;
        column.pszText = const_cast<wchar_t*>(words);
        ListView_InsertColumn(list, 9, &column);
    }
}

void MakeSection(HWND canvas, const SectionRow& row, int sectionTop) {
    top = sectionTop;
    Make(canvas, L"BUTTON", L"", {10, 0, 910, SectionHeight(row)}, fonts.uiFont, BS_GROUPBOX);
    Make(canvas, L"STATIC", row.title, {28, 12, 520, 24}, fonts.sectionFont);
    Make(canvas, L"STATIC", row.subtitle, {28, 35, 740, 18}, fonts.labelFont);
    MakeButtons(canvas, row.lookup);
    ForEachFieldOf(row, [&](const FieldRow& field, int line) {
        top = sectionTop + line;
        MakeField(canvas, field);
    });
    top = sectionTop;
    if (row.list != nullptr) MakeList(canvas, *row.list);
    MakeButtons(canvas, row.buttons);
}

LRESULT CALLBACK DrawPicture(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_PAINT) return DefWindowProcW(window, message, wParam, lParam);
    static const HANDLE picture =
        LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDB_BANNER), IMAGE_BITMAP, 0, 0,
                   LR_CREATEDIBSECTION);
    const PaintScope paint(window);
    const DeviceContextOwner memory(CreateCompatibleDC(paint.Get()));
    SelectObject(memory.Get(), picture);
    SetStretchBltMode(paint.Get(), HALFTONE);
    StretchBlt(paint.Get(), 0, 0, 1304, 160, memory.Get(), 0, 0, 1600, 180, SRCCOPY);
    return 0;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int showState) {
    InitCommonControls();
    CreateTheme();
    const HWND window = Make(nullptr, L"STATIC", L"Bare", {0, 0, 1320, 920}, none,
                             WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN);
    SubclassWindow(Make(window, L"STATIC", L"", {0, 0, 1304, 160}, none), DrawPicture);
    const HWND bar = Make(window, L"STATIC", L"", {18, 172, 1268, 82}, none, 0, WS_EX_CLIENTEDGE);
    MakeButtons(bar, BarButtons());
    MakeField(bar, StatusField());
    const HWND scroll =
        Make(window, L"STATIC", L"", {0, 266, 1304, 620}, none, WS_CLIPCHILDREN | WS_VSCROLL);
    const HWND canvas = Make(scroll, L"STATIC", L"", {182, 0, kCanvasWidth, CanvasHeight()}, none);
    ForEachSection([&](const SectionRow& row, int y) { MakeSection(canvas, row, y); });
    ShowWindow(window, showState);
    UpdateWindow(window);
    SetWindowPos(window, nullptr, 300, 80, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return 0;
}
