#include "ui/commands/lookup_commands.h"

#include <optional>
#include <utility>
#include <vector>

#include "platform/message_box.h"
#include "platform/wait_cursor.h"
#include "store/catalogue.h"
#include "store/lookup_window.h"
#include "ui/app_state.h"
#include "ui/form/binding.h"

namespace tessaline {
namespace {

// The message when the Open list is empty.
std::wstring NoEstimatesText() {
    const WaitCursor wait;
    return HasLegacyFiles(App()->store)
               ? L"No native estimates were found. Older .NET-edition GFE2 files are still "
                 L"preserved in the data folder but are not overwritten by this native edition."
               : L"No saved estimates were found.";
}

// One kind of lookup: its list in the window's state, how that is read, and its texts.
template <typename Element>
struct LookupKind {
    LookupMode mode;
    std::vector<Element> LookupState::*list;
    std::vector<Element> (*load)(const LocalStore& store);
    const wchar_t* title;
    const wchar_t* captionWhenEmpty;
    std::wstring (*textWhenEmpty)();
};

const LookupKind<SavedEstimateEntry> kEstimates = {LookupMode::kEstimates, &LookupState::estimates,
                                                   LoadAllEstimates,       L"Open Saved Estimate",
                                                   L"Open Estimate",       NoEstimatesText};

const LookupKind<PatientSummary> kPatients = {
    LookupMode::kPatients,
    &LookupState::patients,
    BuildPatientList,
    L"Patient Lookup",
    L"Patient Lookup",
    [] {
        return std::wstring(
            L"No saved patients are available yet. Patients are added "
            L"automatically when you save estimates.");
    }};

const LookupKind<ProviderSummary> kProviders = {
    LookupMode::kProviders,
    &LookupState::providers,
    BuildProviderList,
    L"Provider Lookup",
    L"Provider Lookup",
    [] {
        return std::wstring(
            L"No saved providers or facilities are available yet. They are added "
            L"automatically when you save estimates.");
    }};

// Lets the user choose one of what the folder holds.
template <typename Element>
std::optional<Element> Choose(const LookupKind<Element>& kind) {
    LookupState state;
    state.owner = App()->mainWindow;
    state.Mode = kind.mode;
    auto& elements = state.*kind.list;
    {
        const WaitCursor wait;
        elements = kind.load(App()->store);
    }
    if (elements.empty()) {
        ShowInformation(state.owner, kind.textWhenEmpty().c_str(), kind.captionWhenEmpty);
        return std::nullopt;
    }
    if (ShowLookup(state, kind.title) != kLookupChosen) return std::nullopt;
    return std::move(elements[static_cast<std::size_t>(state.Selected)]);
}

// Replaces the patient or the provider of the estimate in the form.
template <typename Block>
void ReplaceBlock(Block Estimate::*block, Block&& chosen) {
    ReadForm();
    Estimate estimate = App()->currentEstimate;
    estimate.*block = std::move(chosen);
    BindToForm(std::move(estimate));
    MarkDirty();
}

}  // namespace

void OpenEstimateCommand() {
    std::optional<SavedEstimateEntry> entry = Choose(kEstimates);
    if (!entry) return;
    BindToForm(std::move(entry->Record));
    App()->CurrentFilePath = std::move(entry->FilePath);
    SetStatusLine(L"Estimate opened");
}

void PatientLookupCommand() {
    std::optional<PatientSummary> summary = Choose(kPatients);
    if (summary) ReplaceBlock(&Estimate::Patient, std::move(summary->Patient));
}

void ProviderLookupCommand() {
    std::optional<ProviderSummary> summary = Choose(kProviders);
    if (summary) ReplaceBlock(&Estimate::Provider, std::move(summary->Provider));
}

}  // namespace tessaline
