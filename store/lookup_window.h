// The modal window in which the user chooses a saved estimate, patient or provider: a search box
// over a list. It is handed a filled list and gives back an index.
#pragma once

#include <windows.h>

#include <vector>

#include "platform/modal.h"
#include "store/catalogue.h"
#include "store/lookup_rows.h"

namespace tessaline {

enum class LookupMode { kPatients = 0, kProviders = 1, kEstimates = 2 };

/// Owned by the command for the time of one lookup. The command sets owner, mode and the mode's
/// list.
struct LookupState : ModalState {
    LookupMode Mode = LookupMode::kPatients;
    HWND searchBox = nullptr;
    HWND list = nullptr;
    std::vector<PatientSummary> patients;
    std::vector<ProviderSummary> providers;
    std::vector<SavedEstimateEntry> estimates;
    /// Of the mode's list, made when the user first searches.
    std::vector<std::wstring> searchTexts;
    int Selected = -1;  ///< index of the chosen element in the mode's list
};

inline constexpr int kLookupChosen = 1;
inline constexpr int kLookupCancelled = 2;

/// Shows the window. `kLookupChosen` when an element was chosen, whose index `Selected` then
/// holds.
[[nodiscard]] int ShowLookup(LookupState& state, const wchar_t* title);

/// Shows the rows that contain the search box's text, in the order of the full list.
void FillLookupList(LookupState& state);

}  // namespace tessaline
