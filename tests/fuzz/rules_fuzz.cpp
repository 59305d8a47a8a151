// Any typed text through the text, date, number and money rules.
#include <cmath>
#include <cstdlib>

#include "legacy/legacy_mapping.h"
#include "model/dates.h"
#include "model/money.h"
#include "model/number.h"
#include "model/text.h"
#include "model/validation.h"
#include "platform/utf8.h"

using namespace tessaline;

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::wstring text = FromUtf8({data, size});
    const std::wstring trimmed = Trim(text);
    Require(Trim(trimmed) == trimmed && trimmed.empty() == IsBlank(text));
    Require(ToUpper(text).size() == text.size() && ToLower(text).size() == text.size());
    Require(ContainsNoCase(text, trimmed));
    Require(CleanFileName(text).find_first_of(L"<>:\"/\\|?*") == std::wstring::npos);
    Require(ParseQuantityText(text) >= 1);
    const double amount = ParseMoneyText(text);
    Require(!std::isnan(amount) && FormatMoney(amount).starts_with(L"$"));
    if (const auto date = ParseDate(text)) Require(date->ok());
    Require(ParseLegacyTime(text) >= 0);
    const double stamp = std::abs(amount) < 1e18 ? amount : 0;
    Require(FormatTimestamp(static_cast<std::int64_t>(stamp), true).size() < 64);
    Require(CheckZip(trimmed) == CheckZip(text) && CheckEmail(trimmed) == CheckEmail(text));
    Require(CheckAccountLast4(trimmed) == CheckAccountLast4(text));
    constexpr std::chrono::year_month_day today = std::chrono::year{2026} / 3 / 7;
    Require(CheckDateOfBirth(text, true, today) == CheckDateOfBirth(trimmed, true, today));
    Require(CheckNpi(text).empty() ==
            (DigitsOnly(text).size() % 10 == 0 && DigitsOnly(text).size() <= 10));
    return 0;
}
