// The form as rows of data: every field says its ID, label, place and the record member that it
// shows. Building the form, showing a record and reading it back all walk these rows. A new field
// is a member of the record, an ID and one row.
#pragma once

#include <span>

#include "model/estimate.h"
#include "platform/controls.h"
#include "platform/list_view.h"
#include "ui/app_state.h"

namespace tessaline {

enum class FieldKind {
    kEdit,    ///< read trimmed
    kChoice,  ///< one of `entries`
    kCheck,   ///< a flag; the label is the box's own text
    kNotes,   ///< several lines, read as they stand
};

/// One field. Places are in pixels at 96 DPI: x from the left edge of the canvas, y from the line
/// of the form on which the field stands. On the bar both count from the bar's corner.
struct FieldRow {
    int id;
    FieldKind kind;
    const wchar_t* label;
    Box labelBox;
    Box fieldBox;
    std::wstring& (*text)(Estimate&) = nullptr;  ///< the member shown; null for a flag
    bool Estimate::*flag = nullptr;
    Entries entries = {};
};

struct ButtonRow {
    int id;
    const wchar_t* text;
    Box box;
    bool emphasised = false;
};

struct ListRow {
    int id;
    Box box;
    std::span<const ListColumn> (*columns)();
    HWND AppState::*window;  ///< where the list's window is entered
};

/// The line for a section's first failing rule.
struct MessageRow {
    MessageSection section;
    Box box;  ///< y from the section's last line of fields; no height, no message line
};

/// One titled section, its controls in the order in which they are made. Its fields stand on
/// lines: a field at the left edge begins the next line. Lists and buttons have y from the
/// section's top.
struct SectionRow {
    const wchar_t* title;
    const wchar_t* subtitle;
    int firstLine;  ///< from the section's top to the first line
    int foot;       ///< from the top of the last line to the section's bottom
    std::span<const ButtonRow> lookup = {};
    std::span<const FieldRow> fields = {};
    const ListRow* list = nullptr;
    std::span<const ButtonRow> buttons = {};
    MessageRow message = {};
};

/// The size and the margins of the canvas that holds the form, and what is between two sections,
/// in pixels at 96 DPI.
inline constexpr int kCanvasWidth = 930;
inline constexpr int kCanvasMargin = 10;  // above, left and right
inline constexpr int kCanvasFoot = 21;
inline constexpr int kSectionGap = 13;

/// Where the lines of fields begin, and how far one is from the next.
inline constexpr int kFieldsLeft = 28;
inline constexpr int kLinePitch = 48;

/// The eight sections, from top to bottom.
[[nodiscard]] std::span<const SectionRow> FormSections();

/// The place of a section's last line of fields in it, and the height that the section needs.
[[nodiscard]] int LastLine(const SectionRow& section);
[[nodiscard]] int SectionHeight(const SectionRow& section);

/// Calls `visit(section, top)` for every section, from top to bottom, with its place on the
/// canvas.
template <typename Visit>
void ForEachSection(Visit&& visit) {
    int top = kCanvasMargin;
    for (const SectionRow& section : FormSections()) {
        visit(section, top);
        top += SectionHeight(section) + kSectionGap;
    }
}

/// Calls `visit(row, line)` for every field of a section, with its line's place in the section.
template <typename Visit>
void ForEachFieldOf(const SectionRow& section, Visit&& visit) {
    int line = section.firstLine;
    for (const FieldRow& row : section.fields) {
        const bool isFirst = &row == section.fields.data();
        if (!isFirst && row.fieldBox.x == kFieldsLeft) line += kLinePitch;
        visit(row, line);
    }
}

/// The height that the sections need.
[[nodiscard]] int CanvasHeight();

/// The bar's buttons, from left to right. Of the last two only y and size count, because
/// `LayOutBar` sets their x.
[[nodiscard]] std::span<const ButtonRow> BarButtons();

/// The bar's field, the estimate's status. `LayOutBar` sets its x as well.
[[nodiscard]] const FieldRow& StatusField();

/// Calls `visit(row)` for every field that shows a member of the record, the status included.
template <typename Visit>
void ForEachFieldRow(Visit&& visit) {
    for (const SectionRow& section : FormSections()) {
        for (const FieldRow& row : section.fields) visit(row);
    }
    visit(StatusField());
}

}  // namespace tessaline
