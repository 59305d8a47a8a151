// The rows of the lookup window: what each element of a list shows, and what a search finds it by.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/list_view.h"
#include "store/catalogue.h"

namespace tessaline {

/// What an element shows, one text for each column.
[[nodiscard]] std::vector<std::wstring> LookupCells(const PatientSummary& summary);
[[nodiscard]] std::vector<std::wstring> LookupCells(const ProviderSummary& summary);
[[nodiscard]] std::vector<std::wstring> LookupCells(const SavedEstimateEntry& entry);

/// What a search finds an element by, in lower case.
[[nodiscard]] std::wstring SearchText(const PatientSummary& summary);
[[nodiscard]] std::wstring SearchText(const ProviderSummary& summary);
[[nodiscard]] std::wstring SearchText(const SavedEstimateEntry& entry);

/// The columns of each kind of list.
[[nodiscard]] std::span<const ListColumn> PatientColumns();
[[nodiscard]] std::span<const ListColumn> ProviderColumns();
[[nodiscard]] std::span<const ListColumn> EstimateColumns();

}  // namespace tessaline
