#include "ui/form/form.h"

#include "platform/scale.h"
#include "platform/theme.h"
#include "platform/window.h"
#include "ui/app_state.h"
#include "ui/control_ids.h"

namespace tessaline {
namespace {

Box Below(int top, Box box) {
    box.y += top;
    return box;
}

void BuildSectionBox(HWND canvas, const SectionRow& section, int top) {
    const Theme& theme = CurrentTheme();
    const HWND frame = CreateWindowExW(
        0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE | BS_GROUPBOX, Scale(kCanvasMargin), Scale(top),
        Scale(kCanvasWidth - 2 * kCanvasMargin), Scale(SectionHeight(section)), canvas, nullptr,
        ProgramInstance(), nullptr);
    SendMessageW(frame, WM_SETFONT, reinterpret_cast<WPARAM>(theme.uiFont.Get()), FALSE);
    MakeLabel(canvas, section.title, {28, top + 12, 520, 24}, theme.sectionFont.Get());
    MakeLabel(canvas, section.subtitle, {28, top + 35, 740, 18}, theme.labelFont.Get());
}

HWND BuildFieldControl(HWND parent, const FieldRow& row, const Box& box) {
    switch (row.kind) {
        case FieldKind::kChoice:
            return MakeChoice(parent, row.id, box, row.entries);
        case FieldKind::kCheck:
            return MakeCheckBox(parent, row.id, row.label, box);
        case FieldKind::kNotes:
            return MakeEdit(parent, row.id, box, ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL);
        case FieldKind::kEdit:
            break;
    }
    return MakeEdit(parent, row.id, box);
}

// Hidden until a rule fails.
void BuildMessageLine(HWND canvas, const MessageRow& row, int top) {
    const HWND line = MakeLabel(canvas, L"", Below(top, row.box), CurrentTheme().smallFont.Get());
    ShowWindow(line, SW_HIDE);
    App()->sectionMessage[row.section] = line;
}

void BuildSection(HWND canvas, const SectionRow& section, int top) {
    BuildSectionBox(canvas, section, top);
    for (const ButtonRow& row : section.lookup) BuildButton(canvas, row, top);
    ForEachFieldOf(section, [&](const FieldRow& row, int line) {
        BuildField(canvas, row, CurrentTheme().labelFont.Get(), top + line);
    });
    if (const ListRow* row = section.list) {
        App()->*row->window = MakeListView(canvas, row->id, Below(top, row->box), row->columns());
    }
    for (const ButtonRow& row : section.buttons) BuildButton(canvas, row, top);
    if (section.message.box.height > 0) {
        BuildMessageLine(canvas, section.message, top + LastLine(section));
    }
}

}  // namespace

HWND BuildButton(HWND parent, const ButtonRow& row, int top) {
    const HWND button = MakeButton(parent, row.id, row.text, Below(top, row.box), row.emphasised);
    App()->controlById[row.id] = button;
    return button;
}

HWND BuildField(HWND parent, const FieldRow& row, HFONT labelFont, int line) {
    if (row.labelBox.height > 0) {
        MakeLabel(parent, row.label, Below(line, row.labelBox), labelFont);
    }
    const HWND control = BuildFieldControl(parent, row, Below(line, row.fieldBox));
    App()->controlById[row.id] = control;
    return control;
}

void BuildForm(HWND canvas) {
    ForEachSection(
        [canvas](const SectionRow& section, int top) { BuildSection(canvas, section, top); });
    App()->notesEdit = ControlById(kNotesEdit);
}

}  // namespace tessaline
