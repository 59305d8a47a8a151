#include "ui/commands/output_commands.h"

#include <string>

#include "document/preview.h"
#include "document/print_job.h"
#include "model/dates.h"
#include "model/validation.h"
#include "platform/controls.h"
#include "platform/local_today.h"
#include "platform/message_box.h"
#include "store/estimate_file.h"
#include "ui/app_state.h"
#include "ui/commands/sample_estimate.h"
#include "ui/form/validation_marks.h"

namespace tessaline {
namespace {

// Tells the user why the estimate may not go out; false when it may not.
bool CheckBeforeOutput(const AppState& app) {
    if (!Validate(true)) {
        ShowWarning(app.mainWindow,
                    L"Please correct the highlighted fields before previewing or printing.",
                    L"Check Estimate");
        return false;
    }
    if (const std::wstring failure = ValidateEstimate(app.currentEstimate, LocalToday());
        !failure.empty()) {
        ShowWarning(app.mainWindow, failure.c_str(), L"Check Estimate");
        return false;
    }
    if (app.currentEstimate.EstimateStatus == kStatusCancelled) {
        ShowWarning(app.mainWindow, L"Cancelled estimates cannot be printed as active estimates.",
                    L"Cancelled Estimate");
        return false;
    }
    return true;
}

void MarkIssued(AppState& app) {
    Estimate& estimate = app.currentEstimate;
    if (estimate.EstimateStatus == kStatusDraft) {
        estimate.EstimateStatus = estimate.RevisionNumber > 0 ? kStatusRevised : kStatusIssued;
    }
    if (estimate.IssuedOn <= 0) estimate.IssuedOn = NowSeconds();
    SelectChoice(app.statusCombo, estimate.EstimateStatus);
}

// `SavedStatus` is left as it is. A draft that was only previewed is often corrected at once, and
// such a correction must overwrite it; the next Save or Open makes it count as issued.
void SaveSilently(AppState& app) {
    std::wstring path;
    std::wstring error;
    if (!SaveEstimate(app.store, app.currentEstimate, path, error)) return;
    app.CurrentFilePath.swap(path);
}

}  // namespace

bool PrepareOutput() {
    AppState& app = *App();
    if (!CheckBeforeOutput(app)) return false;
    // First, so that the new status counts as an unsaved change if memory runs out below.
    MarkDirty();
    MarkIssued(app);
    if (!IsSampleEstimate(app.currentEstimate)) SaveSilently(app);
    app.IsModified = false;
    return true;
}

void PreviewCommand() {
    if (PrepareOutput()) ShowPrintPreview(App()->mainWindow, App()->currentEstimate);
}

void PrintCommand() {
    if (!PrepareOutput()) return;
    std::wstring error;
    const bool printed = PrintEstimate(App()->mainWindow, App()->currentEstimate, error);
    if (!printed && !error.empty()) ShowError(App()->mainWindow, error.c_str(), L"Print");
}

}  // namespace tessaline
