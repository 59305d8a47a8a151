#include "ui/form/binding.h"

#include <string>
#include <utility>

#include "model/dates.h"
#include "model/money.h"
#include "model/text.h"
#include "platform/list_view.h"
#include "ui/app_state.h"
#include "ui/control_ids.h"
#include "ui/form/form_rows.h"
#include "ui/form/item_lists.h"

namespace tessaline {
namespace {

void ShowField(const FieldRow& row, Estimate& estimate) {
    const HWND control = ControlById(row.id);
    switch (row.kind) {
        case FieldKind::kEdit:
        case FieldKind::kNotes:
            SetWindowTextW(control, row.text(estimate).c_str());
            return;
        case FieldKind::kChoice:
            SelectChoice(control, row.text(estimate));
            return;
        case FieldKind::kCheck:
            SendMessageW(control, BM_SETCHECK, estimate.*row.flag ? BST_CHECKED : BST_UNCHECKED,
                         0);
            return;
    }
}

void ReadField(const FieldRow& row, Estimate& estimate) {
    const HWND control = ControlById(row.id);
    switch (row.kind) {
        case FieldKind::kEdit:
            row.text(estimate) = ControlText(row.id);
            return;
        case FieldKind::kNotes:
            row.text(estimate) = WindowText(control);
            return;
        case FieldKind::kChoice:
            row.text(estimate) = ChoiceText(control);
            return;
        case FieldKind::kCheck:
            estimate.*row.flag = SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
            return;
    }
}

std::wstring TotalText(const Estimate& estimate) {
    return FormatMoney(TotalExpectedCharge(estimate));
}

void ShowRows(HWND list, const RowTexts& rows) {
    ListFill fill(list, rows.size());
    LPARAM index = 0;
    for (const auto& row : rows) fill.Append(index++, row);
}

}  // namespace

// The functions below do first whatever needs memory. From the line that replaces the record on,
// nothing can fail, so the form never shows parts of two records.

void BindToForm(Estimate estimate) {
    AppState& app = *App();
    const RowTexts lines = LineTexts(estimate);
    const RowTexts separateItems = SeparateTexts(estimate);
    const std::wstring total = TotalText(estimate);
    std::wstring savedStatus = estimate.EstimateStatus;
    app.currentEstimate = std::move(estimate);
    ForEachFieldRow([&](const FieldRow& row) { ShowField(row, app.currentEstimate); });
    EnableWindow(ControlById(kScheduledDatesEdit), !app.currentEstimate.NotYetScheduled);
    ShowRows(app.linesList, lines);
    ShowRows(app.separateList, separateItems);
    SetWindowTextW(app.totalAmount, total.c_str());
    app.invalidControls.clear();
    for (int section = 0; section < kMessageSections; ++section) SetSectionMessage(section, {});
    RedrawForm();
    // Last, because setting texts has marked the state as modified.
    app.IsModified = false;
    app.SavedStatus.swap(savedStatus);
}

void ChangeLines(Estimate changed) {
    const RowTexts lines = LineTexts(changed);
    const std::wstring total = TotalText(changed);
    App()->currentEstimate = std::move(changed);
    ShowRows(App()->linesList, lines);
    SetWindowTextW(App()->totalAmount, total.c_str());
    MarkDirty();
}

void ChangeSeparateItems(Estimate changed) {
    const RowTexts items = SeparateTexts(changed);
    App()->currentEstimate = std::move(changed);
    ShowRows(App()->separateList, items);
    MarkDirty();
}

void ReadForm() {
    Estimate& estimate = App()->currentEstimate;
    ForEachFieldRow([&](const FieldRow& row) { ReadField(row, estimate); });
    estimate.LastModifiedOn = NowSeconds();
}

std::wstring ControlText(int id) {
    return Trim(WindowText(ControlById(id)));
}

void RedrawForm() {
    RedrawWindow(App()->canvasWindow, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void SetSectionMessage(int section, const std::wstring& text) {
    const HWND line = App()->sectionMessage[section];
    SetWindowTextW(line, text.c_str());
    ShowWindow(line, text.empty() ? SW_HIDE : SW_SHOW);
}

}  // namespace tessaline
