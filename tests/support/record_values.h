// The record's values by name: walked, set from texts, read from tables, made all different.
#pragma once

#include <string>
#include <type_traits>

#include "store/native_versions.h"
#include "tests/support/rule_table.h"

namespace tessaline {

/// Calls `visit(name, value)` for every field of a record, also those that version 1 does not
/// hold.
template <typename Record, typename Visit>
void ForEachMember(Record& record, const Visit& visit) {
    if constexpr (std::is_same_v<std::remove_const_t<Record>, Estimate>) {
        ForEachNativeField(record, kNewestVersion, visit);
    } else {
        ForEachField(record, visit);
    }
}

/// Calls `visit(name, value)` for every text, number and flag in a record or list, and in the
/// records and lists in it, in stored order.
template <typename Value, typename Visit>
void ForEachValue(const wchar_t* name, Value& value, const Visit& visit) {
    if constexpr (requires { FieldsOf(value); }) {
        ForEachMember(
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
        ForEachMember(value, [&](const std::wstring& name, auto& field) {
            if (name == head) isSet = SetValue(field, rest, text);
            if (name == path && !rest.empty()) isSet = SetValue(field, L"", text);
        });
        return isSet;
    } else if constexpr (requires { FieldsOf(value.front()); }) {
        if (!head.empty()) return SetValue(value.at(std::stoul(head)), rest, text);
        value.resize(std::stoul(text));
        return true;
    } else {
        if constexpr (std::is_same_v<Value, std::wstring>) {
            value = text;
        } else {
            value = static_cast<Value>(std::stod(text));
        }
        return true;
    }
}

/// Sets a field that is told as "Path: value".
template <typename Record>
void SetField(Record& record, const std::wstring& told) {
    const std::size_t colon = told.find(L": ");
    REQUIRE(SetValue(record, told.substr(0, colon), told.substr(colon + 2)));
}

/// The record whose fields "Path: value; ..." gives.
template <typename Record = Estimate>
Record RecordWith(const std::wstring& given) {
    Record record;
    std::wistringstream fields(given);
    for (std::wstring field; std::getline(fields >> std::ws, field, L';');) {
        SetField(record, field);
    }
    return record;
}

/// The record that these rules of record.txt describe.
inline Estimate RecordOf(const std::set<std::wstring>& rules) {
    Estimate estimate;
    for (const RuleRow& row : RowsOf(L"record.txt")) {
        CAPTURE(row.place);
        if (!rules.contains(row.cells[0])) continue;
        for (std::size_t i = 1; i < row.cells.size(); ++i) SetField(estimate, row.cells[i]);
    }
    return estimate;
}

/// A record in which every field has a value of its own, so that one that is forgotten, or taken
/// for another, shows. Texts are the field's name and a number, numbers are numbers, flags are
/// true and lists hold two elements; the numbers start at `seed`. Seeds that are 100 apart give
/// records without a common value.
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
    return estimate;
}

/// The names of the fields in which two records differ, each followed by a blank.
[[nodiscard]] inline std::wstring Differences(const Estimate& left, const Estimate& right) {
    std::wstring names;
    ForEachMember(left, [&](const std::wstring& name, const auto& value) {
        ForEachMember(right, [&](const std::wstring& other, const auto& second) {
            if constexpr (std::is_same_v<decltype(value), decltype(second)>) {
                if (name == other && !(value == second)) names += name + L" ";
            }
        });
    });
    return names;
}

}  // namespace tessaline
