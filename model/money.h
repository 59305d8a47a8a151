// Amounts and quantities as the clerk types and reads them. Amounts are US dollars.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessaline {

/// "$" and the amount with two decimals, a full stop and no digit grouping. The exact value of the
/// double is rounded, exact halves to the even digit: 0.125 gives "$0.12", -5 gives "$-5.00".
[[nodiscard]] std::wstring FormatMoney(double dollars);

/// Reads an amount, ignoring every "$" and ","; 0 when there is none. Callers refuse what is not
/// above 0.
[[nodiscard]] double ParseMoneyText(std::wstring_view text);

/// Reads a quantity. Whatever is below 1 or no number becomes 1, which is what an empty or
/// mistyped quantity nearly always stands for; the total in the list shows it at once.
[[nodiscard]] std::int32_t ParseQuantityText(std::wstring_view text);

}  // namespace tessaline
