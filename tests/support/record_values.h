// The record's values by name: walked, set from texts, read from tables.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "model/estimate_fields.h"
#include "tests/support/rule_table.h"

namespace tessaline {

/// Calls `visit(name, value)` for every text, number and flag in a record or list, and in the
/// records and lists in it, in stored order.
template <typename Value, typename Visit>
void ForEachValue(const wchar_t* name, Value& value, const Visit& visit) {
    if constexpr (requires { FieldsOf(value); }) {
        ForEachField(
            value, [&](const wchar_t* field, auto& inner) { ForEachValue(field, inner, visit); });
    } else if constexpr (requires { FieldsOf(value.front()); }) {
        for (auto& element : value) ForEachValue(name, element, visit);
    } else {
        visit(name, value);
    }
}

/// Sets the value at a path such as "Patient.Zip" or "Lines.1.Quantity", or a list's size. False
/// when there is no such value.
template <typename Value>
bool SetValue(Value& value, const std::wstring& path, const std::wstring& text) {
    const std::wstring head = path.substr(0, path.find(L'.'));
    const std::wstring rest = path.substr(std::min(head.size() + 1, path.size()));
    if constexpr (requires { FieldsOf(value); }) {
        bool isSet = false;
        ForEachField(value, [&](const std::wstring& name, auto& field) {
            if (name == head) isSet = SetValue(field, rest, text);
        });
        return isSet;
    } else if constexpr (requires { FieldsOf(value.front()); }) {
        if (!head.empty()) return SetValue(value.at(std::stoul(head)), rest, text);
        value.resize(std::stoul(text));
    } else if constexpr (std::is_same_v<Value, std::wstring>) {
        value = text;
    } else {
        value = static_cast<Value>(std::stod(text));
    }
    return true;
}

/// The record that the rows of these rules describe, each a path and a value.
inline Estimate RecordOf(const std::wstring& file, const std::set<std::wstring>& rules) {
    Estimate estimate;
    for (const RuleRow& row : RowsOf(file)) {
        if (!rules.contains(row.cells[0])) continue;
        CAPTURE(row.place);
        REQUIRE(SetValue(estimate, row.cells.at(1), row.cells.at(2)));
    }
    return estimate;
}

/// The records that the rows of a rule describe, whose first row has the paths of its columns.
inline std::vector<Estimate> RecordsOf(const std::wstring& file, const std::wstring& rule) {
    std::vector<Estimate> estimates;
    RowCells paths;
    for (const RuleRow& row : RowsOf(file)) {
        if (row.cells[0] != rule) continue;
        CAPTURE(row.place);
        if (paths.empty()) {
            paths = row.cells;
            continue;
        }
        REQUIRE(row.cells.size() == paths.size());
        Estimate& estimate = estimates.emplace_back();
        for (std::size_t at = 1; at < paths.size(); ++at) {
            REQUIRE(SetValue(estimate, paths[at], row.cells[at]));
        }
    }
    REQUIRE_FALSE(estimates.empty());
    return estimates;
}

}  // namespace tessaline
