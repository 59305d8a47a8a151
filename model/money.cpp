#include "model/money.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "model/number.h"

namespace tessaline {

std::wstring FormatMoney(double dollars) {
    // The largest double has 309 digits before its point.
    std::array<char, 330> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), dollars,
                                      std::chars_format::fixed, 2);
    std::wstring text = L"$";
    text.append(digits.data(), result.ptr);
    return text;
}

double ParseMoneyText(std::wstring_view text) {
    std::wstring plain(text);
    std::erase_if(plain, [](wchar_t c) { return c == L'$' || c == L','; });
    return ReadDecimal(plain);
}

std::int32_t ParseQuantityText(std::wstring_view text) {
    return std::max(TakeInteger(text).value_or(1), 1);
}

}  // namespace tessaline
