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

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto require = [](bool holds) {
        if (!holds) std::abort();
    };
    const std::wstring text = FromUtf8({data, size});
    const std::wstring trimmed = Trim(text);
    require(Trim(trimmed) == trimmed && trimmed.empty() == IsBlank(text));
    require(ToUpper(text).size() == text.size() && ToLower(text).size() == text.size());
    require(ContainsNoCase(text, trimmed));
    require(CleanFileName(text).find_first_of(L"<>:\"/\\|?*") == std::wstring::npos);
    require(ParseQuantityText(text) >= 1);
    const double amount = ParseMoneyText(text);
    require(!std::isnan(amount) && FormatMoney(amount).starts_with(L"$"));
    if (const auto date = ParseDate(text)) require(date->ok());
    require(ParseLegacyTime(text) >= 0);
    const double stamp = std::abs(amount) < 1e18 ? amount : 0;
    require(FormatTimestamp(static_cast<std::int64_t>(stamp), true).size() < 64);
    require(CheckZip(trimmed) == CheckZip(text) && CheckEmail(trimmed) == CheckEmail(text));
    require(CheckAccountLast4(trimmed) == CheckAccountLast4(text));
    constexpr std::chrono::year_month_day today = std::chrono::year{2026} / 3 / 7;
    require(CheckDateOfBirth(text, true, today) == CheckDateOfBirth(trimmed, true, today));
    require(CheckNpi(text).empty() ==
            (DigitsOnly(text).size() % 10 == 0 && DigitsOnly(text).size() <= 10));
    return 0;
}
