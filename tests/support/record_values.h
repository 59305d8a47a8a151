// The record's values by name: walked, set from texts, read from tables, made all different.
#pragma once

#include <type_traits>

#include "store/native_versions.h"
#include "tests/support/rule_table.h"

namespace tessaline {

/// Calls `visit(path, value)` for every text, number, flag and list of a record in stored order,
/// and for what is in its lists. Paths are such as "Patient.Zip" and "Lines.1.Quantity".
template <typename Record, typename Visit>
void ForEachValue(Record& record, const Visit& visit, const std::wstring& above = {}) {
    const auto visitField = [&](const wchar_t* name, auto& field) {
        const std::wstring path = above + name;
        if constexpr (requires { FieldsOf(field); }) {
            ForEachValue(field, visit, path + L".");
        } else {
            visit(path, field);
        }
        if constexpr (requires { FieldsOf(field.front()); }) {
            for (std::size_t i = 0; i < field.size(); ++i) {
                ForEachValue(field[i], visit, path + L"." + std::to_wstring(i) + L".");
            }
        }
    };
    if constexpr (std::is_same_v<std::remove_const_t<Record>, Estimate>) {
        ForEachNativeField(record, kNewestVersion, visitField);
    } else {
        ForEachField(record, visitField);
    }
}

/// Sets the value at a path, or a list's size. False when there is no such value.
template <typename Record>
bool SetValue(Record& record, const std::wstring& path, const std::wstring& text) {
    bool isSet = false;
    ForEachValue(record, [&](const std::wstring& visited, auto& value) {
        if (visited != path) return;
        using Value = std::remove_reference_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, std::wstring>) {
            value = text;
        } else if constexpr (std::is_arithmetic_v<Value>) {
            value = static_cast<Value>(std::stod(text));
        } else {
            value.resize(std::stoul(text));
        }
        isSet = true;
    });
    return isSet;
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
    for (const RowCells& row : RowsOf(L"record.txt")) {
        if (!rules.contains(row[0])) continue;
        for (std::size_t i = 1; i < row.size(); ++i) SetField(estimate, row[i]);
    }
    return estimate;
}

/// A record in which every field has a value of its own, so that one that is forgotten, or taken
/// for another, shows. Texts are the field's name and a number, numbers are numbers, flags are
/// true and lists hold two elements; the numbers start at `seed`. Seeds that are 100 apart give
/// records without a common value.
[[nodiscard]] inline Estimate DistinctEstimate(int seed = 100) {
    Estimate estimate;
    ForEachValue(estimate, [&seed](const std::wstring& path, auto& value) {
        using Value = std::remove_reference_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, std::wstring>) {
            value = path.substr(path.rfind(L'.') + 1) + L" " + std::to_wstring(seed++);
        } else if constexpr (std::is_same_v<Value, bool>) {
            value = true;
        } else if constexpr (std::is_floating_point_v<Value>) {
            value = seed++ + 0.1;
        } else if constexpr (std::is_integral_v<Value>) {
            value = seed++;
        } else {
            value.resize(2);
        }
    });
    return estimate;
}

/// The paths of the values in which two records differ, each followed by a blank.
[[nodiscard]] inline std::wstring Differences(const Estimate& left, const Estimate& right) {
    std::map<std::wstring, std::wstring> values;
    ForEachValue(right,
                 [&](const std::wstring& path, const auto& value) { values[path] = Told(value); });
    std::wstring paths;
    ForEachValue(left, [&](const std::wstring& path, const auto& value) {
        if (values[path] != Told(value)) paths += path + L" ";
    });
    return paths;
}

}  // namespace tessaline
