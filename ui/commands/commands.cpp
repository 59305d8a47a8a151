#include "ui/commands/commands.h"

#include <commctrl.h>

#include "model/new_estimate.h"
#include "platform/message_box.h"
#include "ui/app_state.h"
#include "ui/commands/item_commands.h"
#include "ui/commands/lookup_commands.h"
#include "ui/commands/output_commands.h"
#include "ui/commands/sample_estimate.h"
#include "ui/commands/save_command.h"
#include "ui/control_ids.h"
#include "ui/dialogs/about.h"
#include "ui/form/binding.h"

namespace tessaline {
namespace {

void NewCommand() {
    AppState& app = *App();
    if (app.IsModified &&
        !AskYesNo(app.mainWindow, L"Start a new estimate? Unsaved changes will be lost.",
                  L"New Estimate")) {
        return;
    }
    BindToForm(NewEstimate());
    app.CurrentFilePath.clear();
    SetStatusLine(L"Draft not saved yet");
}

void SaveByButton() {
    SaveCommand(false, false);
}

void AboutCommand() {
    ShowAbout(App()->mainWindow);
}

void NotYetScheduledChanged() {
    const HWND box = ControlById(kNotYetScheduledCheck);
    const bool checked = SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
    EnableWindow(ControlById(kScheduledDatesEdit), !checked);
    RedrawForm();
    MarkDirty();
}

struct CommandRow {
    int control;
    void (*run)();
};

constexpr CommandRow kCommands[] = {
    {kNewButton, NewCommand},
    {kOpenButton, OpenEstimateCommand},
    {kSaveButton, SaveByButton},
    {kSampleButton, LoadSample},
    {kAboutButton, AboutCommand},
    {kPatientLookupButton, PatientLookupCommand},
    {kProviderLookupButton, ProviderLookupCommand},
    {kNotYetScheduledCheck, NotYetScheduledChanged},
    {kAddLineButton, AddLine},
    {kEditLineButton, EditLine},
    {kRemoveLineButton, RemoveLine},
    {kAddSeparateButton, AddSeparateItem},
    {kEditSeparateButton, EditSelectedSeparateItem},
    {kRemoveSeparateButton, RemoveSeparateItem},
    {kPreviewButton, PreviewCommand},
    {kPrintButton, PrintCommand},
};

bool IsEdit(int id, int notification) {
    if (id == kStatusChoice) return notification == CBN_SELCHANGE;
    const bool onForm = id >= kFirstFormControl && id <= kLastFormControl;
    return onForm && (notification == EN_CHANGE || notification == CBN_SELCHANGE);
}

}  // namespace

bool RunCommand(int id, int notification) {
    for (const CommandRow& row : kCommands) {
        if (row.control != id) continue;
        row.run();
        return true;
    }
    if (!IsEdit(id, notification)) return false;
    MarkDirty();
    return true;
}

bool RunListNotification(const NMHDR& notification) {
    if (notification.code != NM_DBLCLK) return false;
    if (notification.idFrom == kLinesList) return RunCommand(kEditLineButton, BN_CLICKED);
    if (notification.idFrom == kSeparateList) return RunCommand(kEditSeparateButton, BN_CLICKED);
    return false;
}

bool MayClose() {
    const AppState& app = *App();
    return !app.IsModified ||
           AskYesNo(app.mainWindow, L"Close the program? Unsaved changes will be lost.",
                    L"Good Faith Estimate");
}

}  // namespace tessaline
