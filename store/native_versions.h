// Which fields the payload of each version holds, in stored order. Version 1 is every row of
// model/estimate_fields.h and then the first row below; each later version is the one before it
// with fields added at its end. A version that was released is closed: its rows are never changed,
// moved or removed. How to add a field: docs/file-format.md.
#pragma once

#include <cstdint>
#include <tuple>

#include "model/estimate_fields.h"

namespace tessaline {

/// A field that stands behind those of model/estimate_fields.h.
template <typename Member>
struct AddedField {
    std::uint32_t version;  ///< the first version that holds it
    const wchar_t* name;
    Member member;  ///< gives a reference to the field of an estimate, const where that is
};

template <typename Member>
AddedField(std::uint32_t, const wchar_t*, Member) -> AddedField<Member>;

/// In the order in which they were added.
// clang-format off
inline constexpr auto kAddedFields = std::tuple{
    AddedField{1, L"ReservedFlag", [](auto& estimate) -> auto& { return estimate.ReservedFlag; }},
};
// clang-format on

/// The version that is written, and the last that can be read.
inline constexpr std::uint32_t kNewestVersion =
    std::get<std::tuple_size_v<decltype(kAddedFields)> - 1>(kAddedFields).version;

/// Calls `visit(name, value)` for every field of `estimate` that a payload of `version` holds, in
/// stored order. `value` is a reference to the member, const where the estimate is.
template <typename Record, typename Visit>
void ForEachNativeField(Record& estimate, std::uint32_t version, Visit&& visit) {
    ForEachField(estimate, visit);
    const auto visitAdded = [&](const auto& field) {
        if (field.version <= version) visit(field.name, field.member(estimate));
    };
    std::apply([&](const auto&... field) { (visitAdded(field), ...); }, kAddedFields);
}

}  // namespace tessaline
