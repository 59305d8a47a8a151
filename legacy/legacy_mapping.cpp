#include "legacy/legacy_mapping.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string>
#include <variant>
#include <vector>

#include "model/estimate_fields.h"
#include "model/number.h"

namespace tessaline {
namespace {

template <typename Record>
void AssignFields(Record& record, const JsonValue& object);

// The number or flag that a value is; 0 or false when it is something else.
template <typename Scalar>
Scalar ScalarOf(const JsonValue& value) {
    const auto* scalar = std::get_if<Scalar>(&value.content);
    return scalar == nullptr ? Scalar() : *scalar;
}

void Assign(std::wstring& field, const JsonValue& value) {
    field = AsString(value);
}

void Assign(std::int32_t& field, const JsonValue& value) {
    field = TruncateToInt32(ScalarOf<double>(value));
}

// The record's 64-bit integers are its time stamps.
void Assign(std::int64_t& field, const JsonValue& value) {
    field = ParseLegacyTime(AsString(value));
}

void Assign(double& field, const JsonValue& value) {
    field = ScalarOf<double>(value);
}

void Assign(bool& field, const JsonValue& value) {
    field = ScalarOf<bool>(value);
}

void Assign(PatientInfo& patient, const JsonValue& value) {
    AssignFields(patient, value);
    if (patient.ContactPreference.empty()) {
        patient.ContactPreference = PatientInfo().ContactPreference;
    }
}

void Assign(ProviderInfo& provider, const JsonValue& value) {
    AssignFields(provider, value);
}

template <typename Record>
void Assign(std::vector<Record>& list, const JsonValue& value) {
    const auto* items = std::get_if<JsonItems>(&value.content);
    if (items == nullptr) return;
    list.reserve(list.size() + items->size());
    for (const JsonValue& item : *items) AssignFields(list.emplace_back(), item);
}

template <typename Record>
void AssignFields(Record& record, const JsonValue& object) {
    ForEachField(record,
                 [&](const wchar_t* name, auto& field) { Assign(field, Member(object, name)); });
}

struct TimePart {
    wchar_t separator;  ///< what stands before it; nothing before the first
    std::int32_t smallest;
    std::int32_t largest;
};

// The bounds are those of a SYSTEMTIME that `SystemTimeToFileTime` converts. The calendar says for
// itself which days a month has.
constexpr TimePart kTimeParts[] = {
    {L'\0', 1601, 30827}, {L'-', 1, 12}, {L'-', 1, 31},
    {L'T', 0, 23},        {L':', 0, 59}, {L':', 0, 59},
};
using TimeParts = std::array<std::int32_t, std::size(kTimeParts)>;

// The parts at the front of `text`, 0 for those that are not there.
TimeParts ScanTime(std::wstring_view text) {
    TimeParts parts{};
    for (std::size_t at = 0; at < parts.size(); ++at) {
        if (at > 0) {
            if (!text.starts_with(kTimeParts[at].separator)) break;
            text.remove_prefix(1);
        }
        const auto number = TakeInteger(text);
        if (!number) break;
        parts[at] = *number;
    }
    return parts;
}

bool InBounds(const TimeParts& parts) {
    return std::equal(parts.begin(), parts.end(), kTimeParts,
                      [](std::int32_t value, TimePart part) {
                          return value >= part.smallest && value <= part.largest;
                      });
}

}  // namespace

bool MapLegacyEstimate(const JsonValue& root, Estimate& estimate) {
    if (root.Kind() != JsonKind::kObject) return false;
    AssignFields(estimate, root);
    return !estimate.EstimateId.empty();
}

std::int64_t ParseLegacyTime(std::wstring_view text) {
    using namespace std::chrono;
    const TimeParts parts = ScanTime(text);
    // A date that is not there in full has a month or a day of 0.
    if (!InBounds(parts)) return 0;
    const auto [yearNumber, monthNumber, dayNumber, hour, minute, second] = parts;
    const year_month_day date(year(yearNumber), month(static_cast<unsigned>(monthNumber)),
                              day(static_cast<unsigned>(dayNumber)));
    if (!date.ok()) return 0;
    const std::int64_t dayCount = sys_days(date).time_since_epoch().count();
    const std::int64_t stamp = ((dayCount * 24 + hour) * 60 + minute) * 60 + second;
    return std::max<std::int64_t>(stamp, 0);
}

}  // namespace tessaline
