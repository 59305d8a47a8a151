#include "ui/form.h"

#include "platform/scale.h"
#include "platform/theme.h"
#include "platform/window.h"
#include "ui/app_state.h"
#include "ui/control_ids.h"

namespace tessaline {
namespace {

void BuildSectionBox(HWND canvas, const SectionRow& section) {
    const Theme& theme = CurrentTheme();
    const HWND frame = CreateWindowExW(
        0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE | BS_GROUPBOX, Scale(10), Scale(section.top),
        Scale(910), Scale(section.height), canvas, nullptr, ProgramInstance(), nullptr);
    SendMessageW(frame, WM_SETFONT, reinterpret_cast<WPARAM>(theme.uiFont.Get()), FALSE);
    MakeLabel(canvas, section.title, {28, section.top + 12, 520, 24}, theme.sectionFont.Get());
    MakeLabel(canvas, section.subtitle, {28, section.top + 35, 740, 18}, theme.labelFont.Get());
}

HWND BuildFieldControl(HWND parent, const FieldRow& row) {
    switch (row.kind) {
        case FieldKind::kChoice:
            return MakeChoice(parent, row.id, row.fieldBox, row.entries);
        case FieldKind::kCheck:
            return MakeCheckBox(parent, row.id, row.label, row.fieldBox);
        case FieldKind::kNotes:
            return MakeEdit(parent, row.id, row.fieldBox,
                            ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL);
        case FieldKind::kEdit:
            break;
    }
    return MakeEdit(parent, row.id, row.fieldBox);
}

void BuildList(HWND canvas, const ListRow& row) {
    const HWND list = MakeListView(canvas, row.id, row.box, row.columns);
    (row.id == kLinesList ? App()->linesList : App()->separateList) = list;
}

// Hidden until a rule fails.
void BuildMessageLine(HWND canvas, const Box& box, int index) {
    const HWND line = MakeLabel(canvas, L"", box, CurrentTheme().smallFont.Get());
    ShowWindow(line, SW_HIDE);
    App()->sectionMessage[index] = line;
}

}  // namespace

HWND BuildButton(HWND parent, const ButtonRow& row) {
    const HWND button = MakeButton(parent, row.id, row.text, row.box, row.emphasised);
    App()->controlById[row.id] = button;
    return button;
}

HWND BuildField(HWND parent, const FieldRow& row, HFONT labelFont) {
    if (row.labelBox.height > 0) MakeLabel(parent, row.label, row.labelBox, labelFont);
    const HWND control = BuildFieldControl(parent, row);
    App()->controlById[row.id] = control;
    return control;
}

void BuildForm(HWND canvas) {
    int messages = 0;
    for (const SectionRow& section : FormSections()) {
        BuildSectionBox(canvas, section);
        for (const ButtonRow& row : section.lookup) BuildButton(canvas, row);
        for (const FieldRow& row : section.fields) {
            BuildField(canvas, row, CurrentTheme().labelFont.Get());
        }
        if (section.list != nullptr) BuildList(canvas, *section.list);
        for (const ButtonRow& row : section.buttons) BuildButton(canvas, row);
        if (section.message.height > 0) BuildMessageLine(canvas, section.message, messages++);
    }
    App()->notesEdit = ControlById(kNotesEdit);
}

}  // namespace tessaline
