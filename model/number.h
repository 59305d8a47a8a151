// Reads numbers from typed text and from files, as leniently as the C library, but with a defined
// result for every input: a number that does not fit is clamped.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tessaline {

/// Reads white space, an optional sign and decimal digits from the front of `text` and steps over
/// them, as the scan format "%d" does; a number beyond 32 bits gives the nearest one that fits.
/// Without a digit there is no value and `text` stays as it was.
[[nodiscard]] std::optional<std::int32_t> TakeInteger(std::wstring_view& text);

/// Reads white space, an optional sign, digits with an optional decimal point and an optional
/// exponent from the front of `text`, and ignores the rest; 0 when no number stands there. A
/// number too large for a double gives infinity, as `wcstod` does.
[[nodiscard]] double ReadDecimal(std::wstring_view text);

/// Cuts the fraction off. A number beyond 32 bits gives the nearest one that fits; what is not a
/// number gives 0.
[[nodiscard]] std::int32_t TruncateToInt32(double number);

}  // namespace tessaline
