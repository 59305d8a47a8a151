#include "ui/commands/save_command.h"

#include "model/dates.h"
#include "model/text.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "store/estimate_file.h"
#include "store/revision.h"
#include "ui/app_state.h"
#include "ui/control_ids.h"
#include "ui/form/binding.h"
#include "ui/form/validation_marks.h"

namespace tessaline {
namespace {

// An estimate that was saved or opened as issued has probably been handed out, so an edit must not
// overwrite its file. Cancelling does: it withdraws that very estimate and changes nothing in it.
bool BecomesRevision(const AppState& app) {
    const bool issued = app.SavedStatus == kStatusIssued || app.SavedStatus == kStatusRevised;
    return !app.CurrentFilePath.empty() && app.IsModified && issued &&
           app.currentEstimate.EstimateStatus != kStatusCancelled;
}

void StartRevision(AppState& app) {
    app.currentEstimate = MakeRevision(app.store, app.currentEstimate);
    app.CurrentFilePath.clear();
    SetWindowTextW(ControlById(kEstimateIdEdit), app.currentEstimate.EstimateId.c_str());
    SelectChoice(app.statusCombo, kStatusDraft);
}

}  // namespace

bool SaveCommand(bool quiet, bool automatic) {
    AppState& app = *App();
    Validate(false);
    if (BecomesRevision(app)) StartRevision(app);
    // Made before the file is written, because nothing may run out of memory afterwards.
    std::wstring savedStatus = app.currentEstimate.EstimateStatus;
    const std::wstring statusLine =
        (automatic ? L"Auto-saved " : L"Saved ") + FormatTimestamp(NowSeconds(), true);
    std::wstring path;
    std::wstring error;
    if (!SaveEstimate(app.store, app.currentEstimate, path, error)) {
        if (!quiet) ShowError(app.mainWindow, error.c_str(), L"Save Error");
        return false;
    }
    app.CurrentFilePath.swap(path);
    app.IsModified = false;
    app.SavedStatus.swap(savedStatus);
    SetStatusLine(statusLine.c_str());
    if (!quiet) ShowInformation(app.mainWindow, L"Estimate saved locally.", L"Saved");
    return true;
}

void AutoSave() {
    AppState& app = *App();
    if (!app.IsModified) return;
    ReadForm();
    const Estimate& estimate = app.currentEstimate;
    if (IsBlank(estimate.Patient.FirstName) && IsBlank(estimate.Patient.LastName) &&
        IsBlank(estimate.PrimaryService)) {
        return;
    }
    SaveCommand(true, true);
}

}  // namespace tessaline
