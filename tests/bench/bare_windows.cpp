// The least that a program must do to show the form: the same windows with the same fonts, made by
// bare calls, with Windows' own procedures behind them.
#include <windows.h>

#include <commctrl.h>

#include "platform/list_view.h"
#include "platform/scale.h"
#include "platform/theme.h"
#include "platform/window.h"
#include "ui/form_rows.h"

using namespace tessaline;

namespace {

HWND Child(HWND parent, const wchar_t* className, const wchar_t* text, DWORD style, const Box& box,
           HFONT font, DWORD extended = 0) {
    const HWND window =
        CreateWindowExW(extended, className, text, WS_CHILD | WS_VISIBLE | style, box.x, box.y,
                        box.width, box.height, parent, nullptr, ProgramInstance(), nullptr);
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return window;
}

void MakeField(HWND parent, const FieldRow& row) {
    const Theme& theme = CurrentTheme();
    const HFONT font = theme.uiFont.Get();
    if (row.labelBox.height > 0) {
        Child(parent, L"STATIC", row.label, 0, row.labelBox, theme.labelFont.Get());
    }
    if (row.kind == FieldKind::kChoice) {
        MakeChoice(parent, row.id, row.fieldBox, row.entries);
    } else if (row.kind == FieldKind::kCheck) {
        Child(parent, L"BUTTON", row.label, BS_AUTOCHECKBOX, row.fieldBox, theme.labelFont.Get());
    } else {
        const DWORD style = row.kind == FieldKind::kNotes ? ES_MULTILINE | WS_VSCROLL : 0;
        Child(parent, L"EDIT", L"", ES_AUTOHSCROLL | style, row.fieldBox, font, WS_EX_CLIENTEDGE);
    }
}

void MakeSection(HWND canvas, const SectionRow& section) {
    const Theme& theme = CurrentTheme();
    const int top = section.top;
    Child(canvas, L"BUTTON", L"", BS_GROUPBOX, {10, top, 910, section.height}, theme.uiFont.Get());
    Child(canvas, L"STATIC", section.title, 0, {28, top + 12, 520, 24}, theme.sectionFont.Get());
    Child(canvas, L"STATIC", section.subtitle, 0, {28, top + 35, 740, 18}, theme.labelFont.Get());
    for (const ButtonRow& row : section.lookup) {
        Child(canvas, L"BUTTON", row.text, 0, row.box, theme.uiFont.Get());
    }
    for (const FieldRow& row : section.fields) MakeField(canvas, row);
    if (section.list != nullptr) {
        MakeListView(canvas, section.list->id, section.list->box, section.list->columns);
    }
    for (const ButtonRow& row : section.buttons) {
        Child(canvas, L"BUTTON", row.text, 0, row.box, theme.uiFont.Get());
    }
    if (section.message.height > 0) {
        Child(canvas, L"STATIC", L"", 0, section.message, theme.smallFont.Get());
    }
}

void MakeBar(HWND bar) {
    const Theme& theme = CurrentTheme();
    for (const ButtonRow& row : BarButtons()) {
        Child(bar, L"BUTTON", row.text, 0, row.box, theme.uiFont.Get());
    }
    MakeField(bar, StatusField());
    Child(bar, L"STATIC", L"Draft not saved yet", 0, {14, 59, 250, 18}, theme.smallFont.Get());
    const HWND total = Child(bar, L"BARE", L"", 0, {1024, 8, 190, 59}, nullptr, WS_EX_CLIENTEDGE);
    Child(total, L"STATIC", L"TOTAL", 0, {10, 6, 170, 16}, theme.smallFont.Get());
    Child(total, L"STATIC", L"$0.00", 0, {10, 22, 170, 32}, theme.totalFont.Get());
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int showState) {
    INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_LISTVIEW_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
    SetScreenDpi(ReadScreenDpi());
    CreateTheme();
    RegisterWindowClass({L"BARE", DefWindowProcW, CurrentTheme().pageBrush.Get()});
    const HWND window = CreateWindowExW(
        0, L"BARE", L"Bare windows", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
        CW_USEDEFAULT, Scale(1320), Scale(920), nullptr, nullptr, ProgramInstance(), nullptr);
    Child(window, L"BARE", L"", 0, {0, 0, 1304, 160}, nullptr);
    MakeBar(Child(window, L"BARE", L"", 0, {18, 172, 1268, 82}, nullptr, WS_EX_CLIENTEDGE));
    const HWND view =
        Child(window, L"BARE", L"", WS_CLIPCHILDREN | WS_VSCROLL, {0, 266, 1304, 614}, nullptr);
    const HWND canvas = Child(view, L"BARE", L"", 0, {178, 0, 930, 1960}, nullptr);
    for (const SectionRow& section : FormSections()) MakeSection(canvas, section);
    ShowWindow(window, showState);
    UpdateWindow(window);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return 0;
}
