// The form's two lists: their columns, and what an element of the record shows in each.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "model/estimate.h"
#include "platform/list_view.h"

namespace tessaline {

/// The texts of a list, row by row.
using RowTexts = std::vector<std::vector<std::wstring>>;

[[nodiscard]] std::span<const ListColumn> LineColumns();
[[nodiscard]] RowTexts LineTexts(const Estimate& estimate);

[[nodiscard]] std::span<const ListColumn> SeparateColumns();
[[nodiscard]] RowTexts SeparateTexts(const Estimate& estimate);

}  // namespace tessaline
