// The form as rows of data: every field says its ID, label, place and the record member that it
// shows. Building, binding, reading and the tests walk these rows, so a new field is one row.
#pragma once

#include <span>

#include "model/estimate.h"
#include "platform/controls.h"
#include "platform/list_view.h"

namespace tessaline {

enum class FieldKind {
    kEdit,    ///< read trimmed
    kChoice,  ///< one of `entries`
    kCheck,   ///< a flag; the label is the box's own text
    kNotes,   ///< several lines, read as they stand
};

/// One field of the form. Places are in pixels at 96 DPI on the parent.
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
    std::span<const ListColumn> columns;
};

/// One titled section, its controls in the order in which they are made.
struct SectionRow {
    const wchar_t* title;
    const wchar_t* subtitle;
    int top;
    int height;
    std::span<const ButtonRow> lookup = {};
    std::span<const FieldRow> fields = {};
    const ListRow* list = nullptr;
    std::span<const ButtonRow> buttons = {};
    Box message = {};  ///< the line for the section's first failing rule; no height, no line
};

/// The eight sections, from top to bottom.
[[nodiscard]] std::span<const SectionRow> FormSections();

/// The bar's buttons, from left to right. Its layout moves the last two.
[[nodiscard]] std::span<const ButtonRow> BarButtons();

/// The bar's field, the estimate's status. Its label is placed with it.
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
