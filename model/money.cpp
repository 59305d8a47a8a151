#include "model/money.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cwchar>

#include "model/number.h"

namespace tessaline {

std::wstring FormatMoney(double dollars) {
    // The largest double has 309 digits before its point. The library rounds the exact value; its
    // newer `to_chars` does too, and brings 170 kB of tables.
    std::array<wchar_t, 330> text{};
    const int length = std::swprintf(text.data(), text.size(), L"$%.2f", dollars);
    // The library writes the point of the process's locale, which a printer driver may set.
    if (std::isfinite(dollars)) text[static_cast<std::size_t>(length) - 3] = L'.';
    return text.data();
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
