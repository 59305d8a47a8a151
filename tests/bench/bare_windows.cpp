// The least that a program must do to show the form: the windows that its rows describe, made by
// bare calls at 96 DPI, with Windows' own procedures behind all but the picture's; shown, drawn
// and moved to the centre in the program's order.
#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include "ui/form/form_rows.h"
#include "ui/resource_ids.h"

using namespace tessaline;

namespace {

HFONT MakeFont(int points, int weight) {
    return CreateFontW(-MulDiv(points, 96, 72), 0, 0, 0, weight, FALSE, FALSE, FALSE,
                       DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                       DEFAULT_PITCH | FF_DONTCARE, L"Segoe UI");
}

const HFONT plain = MakeFont(9, FW_NORMAL), small = MakeFont(8, FW_NORMAL);
const HFONT strong = MakeFont(9, FW_SEMIBOLD), title = MakeFont(12, FW_SEMIBOLD);
const HANDLE picture = LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDB_BANNER),
                                  IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);

int top = 0;  // of the section or line whose windows are made

HWND Make(HWND parent, const wchar_t* className, const wchar_t* text, const Box& box, HFONT font,
          DWORD style = 0, DWORD extendedStyle = 0) {
    const HWND window = CreateWindowExW(
        extendedStyle, className, text, (parent ? WS_CHILD | WS_VISIBLE : 0) | style, box.x,
        top + box.y, box.width, box.height, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (font) SetWindowFont(window, font, FALSE);
    return window;
}

void MakeButtons(HWND parent, std::span<const ButtonRow> rows) {
    for (const ButtonRow& row : rows) {
        Make(parent, L"BUTTON", row.text, row.box, row.emphasised ? strong : plain, WS_TABSTOP);
    }
}

void MakeField(HWND parent, const FieldRow& row) {
    if (row.labelBox.height > 0) Make(parent, L"STATIC", row.label, row.labelBox, small);
    // By FieldKind.
    static constexpr struct {
        const wchar_t* className;
        DWORD style, extendedStyle;
    } kKinds[] = {{L"EDIT", ES_AUTOHSCROLL, WS_EX_CLIENTEDGE},
                  {L"COMBOBOX", CBS_DROPDOWNLIST, WS_EX_CLIENTEDGE},
                  {L"BUTTON", BS_AUTOCHECKBOX, 0},
                  {L"EDIT", ES_MULTILINE | WS_VSCROLL, WS_EX_CLIENTEDGE}};
    const auto& [className, style, extendedStyle] = kKinds[static_cast<int>(row.kind)];
    const HWND field = Make(parent, className, row.flag != nullptr ? row.label : L"", row.fieldBox,
                            plain, style, extendedStyle);
    for (const wchar_t* entry : row.entries) ComboBox_AddString(field, entry);
}

void MakeSection(HWND canvas, const SectionRow& row) {
    Make(canvas, L"BUTTON", L"", {10, 0, 910, SectionHeight(row)}, plain, BS_GROUPBOX);
    Make(canvas, L"STATIC", row.title, {28, 12, 520, 24}, title);
    Make(canvas, L"STATIC", row.subtitle, {28, 35, 740, 18}, small);
    MakeButtons(canvas, row.lookup);
    const int sectionTop = top;
    ForEachFieldOf(row, [&](const FieldRow& field, int line) {
        top = sectionTop + line;
        MakeField(canvas, field);
    });
    top = sectionTop;
    if (row.list != nullptr) {
        const HWND list =
            Make(canvas, WC_LISTVIEWW, L"", row.list->box, plain, LVS_REPORT, WS_EX_CLIENTEDGE);
        for (const auto& [words, width, isRight] : row.list->columns()) {
            LVCOLUMNW column{};
            column.mask = LVCF_TEXT | LVCF_WIDTH;
            column.cx = width;
            column.pszText = const_cast<wchar_t*>(words);
            ListView_InsertColumn(list, 9, &column);
        }
    }
    MakeButtons(canvas, row.buttons);
}

LRESULT CALLBACK DrawPicture(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_PAINT) return DefWindowProcW(window, message, wParam, lParam);
    PAINTSTRUCT paint;
    const HDC screen = BeginPaint(window, &paint), memory = CreateCompatibleDC(screen);
    SelectObject(memory, picture);
    SetStretchBltMode(screen, HALFTONE);
    StretchBlt(screen, 0, 0, 1304, 160, memory, 0, 0, 1600, 180, SRCCOPY);
    DeleteDC(memory);
    EndPaint(window, &paint);
    return 0;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int showState) {
    InitCommonControls();
    const HWND window = Make(nullptr, L"STATIC", L"Bare", {0, 0, 1320, 920}, nullptr,
                             WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN);
    const HWND header = Make(window, L"STATIC", L"", {0, 0, 1304, 160}, nullptr);
    SubclassWindow(header, DrawPicture);
    const HWND bar =
        Make(window, L"STATIC", L"", {18, 172, 1268, 82}, nullptr, 0, WS_EX_CLIENTEDGE);
    MakeButtons(bar, BarButtons());
    MakeField(bar, StatusField());
    const HWND scroll =
        Make(window, L"STATIC", L"", {0, 266, 1304, 620}, nullptr, WS_CLIPCHILDREN | WS_VSCROLL);
    const HWND canvas =
        Make(scroll, L"STATIC", L"", {182, 0, kCanvasWidth, CanvasHeight()}, nullptr);
    ForEachSection([canvas](const SectionRow& row, int at) {
        top = at;
        MakeSection(canvas, row);
    });
    ShowWindow(window, showState);
    UpdateWindow(window);
    SetWindowPos(window, nullptr, 300, 80, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return 0;
}
