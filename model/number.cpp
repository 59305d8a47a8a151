#include "model/number.h"

#include <cstdlib>
#include <cwctype>
#include <limits>
#include <string>

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
    const std::size_t whole = SkipSign(text, 0);
    std::size_t end = SkipDigits(text, whole);
    std::size_t digits = end - whole;
    if (end < text.size() && text[end] == L'.') {
        const std::size_t fraction = SkipDigits(text, end + 1);
        digits += fraction - end - 1;
        end = fraction;
    }
    if (digits == 0) return 0.0;
    end = SkipExponent(text, end);
    // Only ASCII is left, and the numeric locale of the program is never changed from "C".
    std::string ascii;
    for (const wchar_t c : text.substr(0, end)) ascii.push_back(static_cast<char>(c));
    return std::strtod(ascii.c_str(), nullptr);
}

std::int32_t TruncateToInt32(double number) {
    if (number >= static_cast<double>(kMax32)) return static_cast<std::int32_t>(kMax32);
    if (number <= static_cast<double>(kMin32)) return static_cast<std::int32_t>(kMin32);
    return number == number ? static_cast<std::int32_t>(number) : 0;
}

}  // namespace tessaline
