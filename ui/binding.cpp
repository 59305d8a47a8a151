#include "ui/binding.h"

#include <utility>

#include "model/dates.h"
#include "model/money.h"
#include "model/text.h"
#include "ui/app_state.h"
#include "ui/control_ids.h"
#include "ui/form_rows.h"

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

}  // namespace

void BindToForm(Estimate estimate) {
    AppState& app = *App();
    app.currentEstimate = std::move(estimate);
    ForEachFieldRow([&](const FieldRow& row) { ShowField(row, app.currentEstimate); });
    EnableWindow(ControlById(kScheduledDatesEdit), !app.currentEstimate.NotYetScheduled);
    RefreshLines();
    RefreshSeparateItems();
    RefreshTotal();
    app.invalidControls.clear();
    for (int section = 0; section < kMessageSections; ++section) SetSectionMessage(section, {});
    // Last, because setting texts has marked the state as modified.
    app.IsModified = false;
    app.SavedStatus = app.currentEstimate.EstimateStatus;
}

void ReadForm() {
    Estimate& estimate = App()->currentEstimate;
    ForEachFieldRow([&](const FieldRow& row) { ReadField(row, estimate); });
    estimate.LastModifiedOn = NowSeconds();
}

std::wstring ControlText(int id) {
    return Trim(WindowText(ControlById(id)));
}

void RefreshLines() {
    const auto& lines = App()->currentEstimate.Lines;
    const ListFill fill(App()->linesList, lines.size());
    LPARAM index = 0;
    for (const ServiceLine& line : lines) {
        AppendListRow(
            App()->linesList, index++,
            {line.ServiceItem.c_str(), line.ServiceAddress.c_str(), line.DiagnosisCode.c_str(),
             CodeText(line).c_str(), std::to_wstring(line.Quantity).c_str(),
             FormatMoney(line.ExpectedCharge).c_str(), FormatMoney(LineTotal(line)).c_str()});
    }
}

void RefreshSeparateItems() {
    const auto& items = App()->currentEstimate.SeparateItems;
    const ListFill fill(App()->separateList, items.size());
    LPARAM index = 0;
    for (const SeparateItem& item : items) {
        AppendListRow(App()->separateList, index++,
                      {item.ServiceItem.c_str(), item.ProviderFacilityInstructions.c_str()});
    }
}

void RefreshTotal() {
    const std::wstring total = FormatMoney(TotalExpectedCharge(App()->currentEstimate));
    SetWindowTextW(App()->totalAmount, total.c_str());
}

void SetSectionMessage(int section, const std::wstring& text) {
    const HWND line = App()->sectionMessage[section];
    SetWindowTextW(line, text.c_str());
    ShowWindow(line, text.empty() ? SW_HIDE : SW_SHOW);
}

}  // namespace tessaline
