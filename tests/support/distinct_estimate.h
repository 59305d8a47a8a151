// A record in which every field has a value of its own, so that a field that is forgotten, or
// taken for another, shows.
#pragma once

#include <string>
#include <type_traits>

#include "model/estimate_fields.h"

namespace tessaline {
namespace distinct {

template <typename Value>
void Fill(const std::wstring& name, Value& value, int& number);

template <typename Record>
void FillFields(Record& record, int& number) {
    ForEachField(record, [&](const wchar_t* name, auto& value) { Fill(name, value, number); });
}

/// Gives `value`, or every field of the record or list that it is, the next number.
template <typename Value>
void Fill(const std::wstring& name, Value& value, int& number) {
    if constexpr (std::is_same_v<Value, std::wstring>) {
        value = name + L" " + std::to_wstring(number++);
    } else if constexpr (std::is_same_v<Value, bool>) {
        value = true;
    } else if constexpr (std::is_same_v<Value, double>) {
        value = number++ + 0.1;
    } else if constexpr (std::is_arithmetic_v<Value>) {
        value = number++;
    } else if constexpr (requires { value.resize(2); }) {
        value.resize(2);
        for (auto& element : value) FillFields(element, number);
    } else {
        FillFields(value, number);
    }
}

}  // namespace distinct

/// Texts are the field's name and a number, numbers are numbers, flags are true and lists hold two
/// elements; the numbers start at `seed`, and no two fields share one. Seeds that are 100 apart
/// give records without a common value.
[[nodiscard]] inline Estimate DistinctEstimate(int seed = 100) {
    Estimate estimate;
    distinct::FillFields(estimate, seed);
    estimate.ReservedFlag = true;
    return estimate;
}

/// The names of the fields in which two records differ, each followed by a blank.
template <typename Record>
[[nodiscard]] std::wstring Differences(const Record& left, const Record& right) {
    std::wstring names;
    std::apply(
        [&](const auto&... field) {
            ((names += left.*field.member == right.*field.member
                           ? std::wstring()
                           : std::wstring(field.name) + L" "),
             ...);
        },
        FieldsOf(left));
    if constexpr (requires { left.ReservedFlag; }) {
        if (left.ReservedFlag != right.ReservedFlag) names += L"ReservedFlag ";
    }
    return names;
}

}  // namespace tessaline
