#include "model/number.h"

#include <algorithm>
#include <charconv>
#include <cwctype>
#include <limits>
#include <string>
#include <system_error>

namespace tessaline {
namespace {

constexpr std::int64_t kMin32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kMax32 = std::numeric_limits<std::int32_t>::max();

bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

std::size_t SkipSpace(std::wstring_view text) {
    std::size_t at = 0;
    while (at < text.size() && std::iswspace(static_cast<std::wint_t>(text[at])) != 0) ++at;
    return at;
}

std::size_t SkipDigits(std::wstring_view text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at])) ++at;
    return at;
}

std::size_t SkipSign(std::wstring_view text, std::size_t at) {
    const bool sign = at < text.size() && (text[at] == L'-' || text[at] == L'+');
    return sign ? at + 1 : at;
}

// The end of an exponent that starts at `at`, or `at` when none does ("2e" is 2, then an e).
std::size_t SkipExponent(std::wstring_view text, std::size_t at) {
    if (at >= text.size() || (text[at] != L'e' && text[at] != L'E')) return at;
    const std::size_t digits = SkipSign(text, at + 1);
    const std::size_t end = SkipDigits(text, digits);
    return end > digits ? end : at;
}

// The end of digits with an optional point that start at `at`, or `at` where no digit stands.
std::size_t SkipMantissa(std::wstring_view text, std::size_t at) {
    const std::size_t whole = SkipDigits(text, at);
    if (whole >= text.size() || text[whole] != L'.') return whole;
    const std::size_t fraction = SkipDigits(text, whole + 1);
    return fraction == at + 1 ? at : fraction;
}

// What a number that no double holds comes to: infinity, or 0 where it is too small.
double BeyondDouble(std::wstring_view mantissa, std::wstring_view exponent) {
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find(L'.'), mantissa.size()));
    const auto first = static_cast<std::int64_t>(mantissa.find_first_of(L"123456789"));
    if (!exponent.empty()) exponent.remove_prefix(1);
    const bool isLarge = point - first + TakeInteger(exponent).value_or(0) > 0;
    return isLarge ? std::numeric_limits<double>::infinity() : 0.0;
}

}  // namespace

std::optional<std::int32_t> TakeInteger(std::wstring_view& text) {
    const std::size_t start = SkipSpace(text);
    const std::size_t digits = SkipSign(text, start);
    const std::size_t end = SkipDigits(text, digits);
    if (end == digits) return std::nullopt;
    const bool negative = text[start] == L'-';
    std::int64_t value = 0;
    for (std::size_t at = digits; at < end; ++at) {
        const std::int64_t digit = text[at] - L'0';
        value = value * 10 + (negative ? -digit : digit);
        if (value < kMin32) value = kMin32;
        if (value > kMax32) value = kMax32;
    }
    text.remove_prefix(end);
    return static_cast<std::int32_t>(value);
}

double ReadDecimal(std::wstring_view text) {
    text.remove_prefix(SkipSpace(text));
    const bool negative = text.starts_with(L'-');
    text.remove_prefix(SkipSign(text, 0));
    const std::size_t mantissa = SkipMantissa(text, 0);
    if (mantissa == 0) return 0.0;
    const std::size_t end = SkipExponent(text, mantissa);
    // Only ASCII is left. The C library's `strtod` would take a time that grows with the square of
    // the digits.
    std::string ascii;
    for (const wchar_t c : text.substr(0, end)) ascii.push_back(static_cast<char>(c));
    double value = 0.0;
    const auto read = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
    if (read.ec == std::errc::result_out_of_range) {
        value = BeyondDouble(text.substr(0, mantissa), text.substr(mantissa, end - mantissa));
    }
    return negative ? -value : value;
}

std::int32_t TruncateToInt32(double number) {
    if (number >= static_cast<double>(kMax32)) return static_cast<std::int32_t>(kMax32);
    if (number <= static_cast<double>(kMin32)) return static_cast<std::int32_t>(kMin32);
    return number == number ? static_cast<std::int32_t>(number) : 0;
}

}  // namespace tessaline
