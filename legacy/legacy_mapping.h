// How the older edition's JSON becomes a record. Its keys are the record's field names, letter for
// letter, so the rows of model/estimate_fields.h are the whole mapping.
#pragma once

#include <cstdint>
#include <string_view>

#include "legacy/json.h"
#include "model/estimate.h"

namespace tessaline {

/// Fills `estimate`, which must be a default record, from the document `root`. False, with nothing
/// done, when `root` is no object; false, with a filled record, when it has no identifier.
///
/// What is missing or of another kind than its field counts as empty text, 0 or false, not as the
/// field's default; only the patient's contact preference is then "Email". Texts are not checked
/// against the values that the form offers. Other members stay as they are.
[[nodiscard]] bool MapLegacyEstimate(const JsonValue& root, Estimate& estimate);

/// Reads year-month-day and, as far as they are there, "T" hour:minute:second, as the scan format
/// "%d-%d-%dT%d:%d:%d" does, as a time in UTC. Fractions and zones are ignored. 0 when there is no
/// date, the date or time does not exist, or it is not after 1970-01-01 00:00:00.
[[nodiscard]] std::int64_t ParseLegacyTime(std::wstring_view text);

}  // namespace tessaline
