// The rows of the lookup window: what each element of a list shows, and what a search finds it by.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/list_view.h"
#include "store/catalogue.h"

namespace tessaline {

/// One row, in the order of the list that it was made from.
struct LookupRow {
    std::vector<std::wstring> cells;
    std::wstring searchText;  ///< in lower case
};

using LookupRows = std::vector<LookupRow>;

[[nodiscard]] LookupRows MakeLookupRows(const std::vector<PatientSummary>& patients);
[[nodiscard]] LookupRows MakeLookupRows(const std::vector<ProviderSummary>& providers);
[[nodiscard]] LookupRows MakeLookupRows(const std::vector<SavedEstimateEntry>& estimates);

/// The columns of each kind of list.
[[nodiscard]] std::span<const ListColumn> PatientColumns();
[[nodiscard]] std::span<const ListColumn> ProviderColumns();
[[nodiscard]] std::span<const ListColumn> EstimateColumns();

}  // namespace tessaline
