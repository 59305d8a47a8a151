// Time stamps, typed dates and the identifiers made from the clock. Time stamps are signed 64-bit
// whole seconds since 1970-01-01 00:00:00 UTC; a stamp not above 0 is not set.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessaline {

/// The current moment as a time stamp.
[[nodiscard]] std::int64_t NowSeconds();

/// An identifier for the current second of local time, such as GFE-20260307-140509. Two made
/// within one second are equal.
[[nodiscard]] std::wstring NewEstimateId();

/// A time stamp in local time, "03/07/2026 02:05 PM" or without the time "03/07/2026". Empty for a
/// stamp that is not set or that lies beyond the calendar of the C library (year 3000 on Windows).
[[nodiscard]] std::wstring FormatTimestamp(std::int64_t stamp, bool withTime);

/// Reads month/day/year as the scan format "%d/%d/%d" does: blanks before each number and signs
/// are accepted, what follows the year is ignored. Only real dates from 1900 to 2200.
[[nodiscard]] std::optional<std::chrono::year_month_day> ParseDate(std::wstring_view text);

}  // namespace tessaline
