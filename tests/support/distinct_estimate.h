// A record in which every field has a value of its own, so that a field that is forgotten, or
// taken for another, shows.
#pragma once

#include <string>
#include <type_traits>

#include "tests/support/record_values.h"

namespace tessaline {

/// Texts are the field's name and a number, numbers are numbers, flags are true and lists hold two
/// elements; the numbers start at `seed`, and no two fields share one. Seeds that are 100 apart
/// give records without a common value.
[[nodiscard]] inline Estimate DistinctEstimate(int seed = 100) {
    Estimate estimate;
    estimate.Lines.resize(2);
    estimate.SeparateItems.resize(2);
    ForEachValue(L"", estimate, [&seed](const std::wstring& name, auto& value) {
        using Value = std::remove_reference_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, std::wstring>) {
            value = name + L" " + std::to_wstring(seed++);
        } else if constexpr (std::is_same_v<Value, bool>) {
            value = true;
        } else {
            value = static_cast<Value>(seed++);
            if constexpr (std::is_floating_point_v<Value>) value += 0.1;
        }
    });
    estimate.ReservedFlag = true;
    return estimate;
}

/// The names of the fields in which two records differ, each followed by a blank.
[[nodiscard]] inline std::wstring Differences(const Estimate& left, const Estimate& right) {
    std::wstring names;
    const auto compare = [&](const auto& field) {
        if (!(left.*field.member == right.*field.member)) names.append(field.name).append(L" ");
    };
    std::apply([&](const auto&... field) { (compare(field), ...); }, kEstimateFields);
    compare(Field{L"ReservedFlag", &Estimate::ReservedFlag});
    return names;
}

}  // namespace tessaline
