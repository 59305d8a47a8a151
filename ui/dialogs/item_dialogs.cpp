#include "ui/dialogs/item_dialogs.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>

#include "model/money.h"
#include "model/text.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/modal.h"
#include "platform/theme.h"
#include "platform/window.h"

namespace tessaline {
namespace {

// Controls may have the same IDs, because only buttons send the notification code 0.
constexpr int kOkButton = 1;
constexpr int kCancelButton = 2;

// One labelled control of a dialog, in pixels at 96 DPI. Its ID is its place in the table, from 1.
struct DialogField {
    const wchar_t* label;
    Box labelBox;
    Box fieldBox;
    DWORD extraStyle = 0;
    Entries entries = {};
};

constexpr const wchar_t* kCodeTypes[] = {L"CPT", L"HCPCS", L"DRG", L"NDC", L"Other"};

enum LineField { kItem = 1, kWhere, kDiagnosis, kCodeType, kCode, kQuantity, kCharge };
constexpr DialogField kLineFields[] = {
    {L"Service / item", {20, 18, 310, 18}, {20, 38, 420, 25}},
    {L"Where provided", {20, 78, 310, 18}, {20, 98, 420, 25}},
    {L"Diagnosis code", {20, 138, 190, 18}, {20, 158, 190, 25}},
    {L"Code type", {220, 138, 100, 18}, {220, 158, 100, kChoiceHeight}, 0, kCodeTypes},
    {L"Service code", {330, 138, 110, 18}, {330, 158, 110, 25}},
    {L"Quantity", {20, 198, 100, 18}, {20, 218, 100, 25}},
    {L"Expected charge", {140, 198, 150, 18}, {140, 218, 150, 25}},
};

enum SeparateField { kSeparateItem = 1, kInstructions };
constexpr DialogField kSeparateFields[] = {
    {L"Service / item", {20, 20, 430, 18}, {20, 40, 500, 25}},
    {L"Provider / facility or instructions for obtaining GFE",
     {20, 82, 500, 18},
     {20, 102, 500, 110},
     ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL},
};

constexpr std::size_t kMostFields = std::max(std::size(kLineFields), std::size(kSeparateFields));

// What sets one dialog apart from the other.
struct DialogKind {
    const wchar_t* className;
    const wchar_t* title;
    int width;
    int height;
    std::span<const DialogField> fields;
    Box ok;
    Box cancel;
};

template <typename Row>
struct DialogState : ModalState {
    const DialogKind* kind = nullptr;
    Row row;
    const Keep<Row>* keep = nullptr;
    std::array<HWND, kMostFields + 1> controls{};  // by ID

    [[nodiscard]] std::wstring Text(int id) const {
        return Trim(WindowText(controls[static_cast<std::size_t>(id)]));
    }
    void Show(int id, const std::wstring& text) const {
        SetWindowTextW(controls[static_cast<std::size_t>(id)], text.c_str());
    }
};

using LineState = DialogState<ServiceLine>;
using SeparateState = DialogState<SeparateItem>;

void Fill(const LineState& state) {
    const ServiceLine& line = state.row;
    state.Show(kItem, line.ServiceItem);
    state.Show(kWhere, line.ServiceAddress);
    state.Show(kDiagnosis, line.DiagnosisCode);
    SelectChoice(state.controls[kCodeType], line.ServiceCodeType);
    state.Show(kCode, line.ServiceCode);
    state.Show(kQuantity, std::to_wstring(line.Quantity));
    if (line.ExpectedCharge > 0) state.Show(kCharge, FormatMoney(line.ExpectedCharge).substr(1));
}

void Fill(const SeparateState& state) {
    state.Show(kSeparateItem, state.row.ServiceItem);
    state.Show(kInstructions, state.row.ProviderFacilityInstructions);
}

// Reads the controls into the working copy. False, after telling the user, when they are not
// valid.
bool Accept(LineState& state) {
    ServiceLine& line = state.row;
    line.ServiceItem = state.Text(kItem);
    if (line.ServiceItem.empty()) {
        ShowWarning(state.window, L"Enter the service or item description.", L"Service");
        return false;
    }
    line.ServiceAddress = state.Text(kWhere);
    line.DiagnosisCode = state.Text(kDiagnosis);
    line.ServiceCode = state.Text(kCode);
    line.ServiceCodeType = ChoiceText(state.controls[kCodeType]);
    line.Quantity = ParseQuantityText(state.Text(kQuantity));
    line.ExpectedCharge = ParseMoneyText(state.Text(kCharge));
    if (line.ExpectedCharge > 0) return true;
    ShowWarning(state.window, L"Enter an expected charge greater than $0.", L"Service");
    return false;
}

bool Accept(SeparateState& state) {
    state.row.ServiceItem = state.Text(kSeparateItem);
    state.row.ProviderFacilityInstructions = state.Text(kInstructions);
    if (!state.row.ServiceItem.empty()) return true;
    ShowWarning(state.window, L"Enter the service or item.", L"Service");
    return false;
}

template <typename Row>
void BuildControls(HWND window, DialogState<Row>& state) {
    state.window = window;
    int id = 1;
    for (const DialogField& field : state.kind->fields) {
        MakeLabel(window, field.label, field.labelBox, CurrentTheme().labelFont.Get());
        const HWND control = field.entries.empty()
                                 ? MakeEdit(window, id, field.fieldBox, field.extraStyle)
                                 : MakeChoice(window, id, field.fieldBox, field.entries);
        if ((field.extraStyle & ES_MULTILINE) != 0) LeaveKeysToDialog(control);
        state.controls[static_cast<std::size_t>(id++)] = control;
    }
    MakeButton(window, kOkButton, L"OK", state.kind->ok, true);
    MakeButton(window, kCancelButton, L"Cancel", state.kind->cancel);
    Fill(state);
}

template <typename Row>
LRESULT HandleDialogMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const state = WindowState<DialogState<Row>>(window, message, lParam);
    if (state == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    switch (message) {
        case WM_CREATE:
            BuildControls(window, *state);
            return 0;
        case WM_COMMAND:
            if (HIWORD(wParam) != BN_CLICKED) return 0;
            if (LOWORD(wParam) == kOkButton && Accept(*state)) {
                (*state->keep)(state->row);
                EndModal(*state, true);
            }
            if (LOWORD(wParam) == kCancelButton) EndModal(*state, false);
            return 0;
        default:
            return HandleModalMessage(*state, window, message, wParam, lParam);
    }
}

template <typename Row>
void EditRow(HWND owner, const DialogKind& kind, const Row& row, const Keep<Row>& keep) {
    DialogState<Row> state;
    state.owner = owner;
    state.kind = &kind;
    state.row = row;
    state.keep = &keep;
    ShowModal({kind.className, GuardedProcedure<HandleDialogMessage<Row>>,
               CurrentTheme().whiteBrush.Get(), kind.title, kind.width, kind.height},
              state);
}

constexpr DialogKind kLineDialog = {
    L"GFE_LineDialog",  L"Expected Item / Service", 480, 350, kLineFields,
    {270, 270, 80, 34}, {360, 270, 80, 34}};

constexpr DialogKind kSeparateDialog = {L"GFE_SepDialog",
                                        L"Separately Scheduled Service",
                                        560,
                                        320,
                                        kSeparateFields,
                                        {350, 230, 80, 34},
                                        {440, 230, 80, 34}};

}  // namespace

void EditServiceLine(HWND owner, const ServiceLine& line, const Keep<ServiceLine>& keep) {
    EditRow(owner, kLineDialog, line, keep);
}

void EditSeparateItem(HWND owner, const SeparateItem& item, const Keep<SeparateItem>& keep) {
    EditRow(owner, kSeparateDialog, item, keep);
}

}  // namespace tessaline
