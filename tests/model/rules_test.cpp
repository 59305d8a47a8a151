// The rules for texts, money, dates, single fields and whole estimates.
#include <clocale>
#include <cmath>
#include <ctime>
#include <cwchar>

#include "model/dates.h"
#include "model/money.h"
#include "model/new_estimate.h"
#include "model/text.h"
#include "model/validation.h"
#include "tests/support/record_values.h"

using namespace tessaline;

namespace {

std::int64_t LocalStamp(Cell text, const wchar_t* format = L"%d-%d-%d %d:%d:%d") {
    std::tm local{};
    REQUIRE(std::swscanf(text.c_str(), format, &local.tm_year, &local.tm_mon, &local.tm_mday,
                         &local.tm_hour, &local.tm_min, &local.tm_sec) == 6);
    local.tm_year -= 1900;
    local.tm_mon -= 1;
    local.tm_isdst = -1;
    return std::mktime(&local);
}

std::wstring DateText(std::wstring_view typed) {
    const auto date = ParseDate(typed);
    if (!date) return L"none";
    return Told(int{date->year()}) + L"-" + Told(unsigned{date->month()}) + L"-" +
           Told(unsigned{date->day()});
}

}  // namespace

TEST_CASE("Texts, money, dates and fields follow their rules") {
    CheckRules(
        L"model.txt",
        {{L"Trim", Trim},
         {L"IsBlank", IsBlank},
         {L"DigitsOnly", DigitsOnly},
         {L"ToUpper", ToUpper},
         {L"ToLower", ToLower},
         {L"CleanFileName", CleanFileName},
         {L"ContainsNoCase", ContainsNoCase},
         {L"JoinName", [](Cell given) { return JoinName(RecordWith<PatientInfo>(given)); }},
         {L"JoinAddress", JoinAddress},
         {L"total", [](Cell given) { return TotalExpectedCharge(RecordWith(given)); }},
         {L"FormatMoney", [](Cell dollars) { return FormatMoney(std::stod(dollars)); }},
         {L"ParseMoneyText", ParseMoneyText},
         {L"ParseQuantityText", ParseQuantityText},
         {L"local time", [](Cell time) { return FormatTimestamp(LocalStamp(time), true); }},
         {L"local date", [](Cell time) { return FormatTimestamp(LocalStamp(time), false); }},
         {L"stamp", [](Cell stamp) { return FormatTimestamp(std::stoll(stamp), true); }},
         {L"ParseDate", DateText},
         {L"CheckAccountLast4", CheckAccountLast4},
         {L"CheckEmail", CheckEmail},
         {L"CheckNpi", CheckNpi},
         {L"CheckZip", CheckZip}});
}

TEST_CASE("The first rule that an estimate breaks is what the user is told") {
    Estimate estimate;
    const auto set = [&estimate](Cell path, Cell text) {
        REQUIRE(SetValue(estimate, path, text));
        return ValidateEstimate(estimate, std::chrono::year{2026} / 3 / 7);
    };
    CheckRules(L"validation.txt", {{L"set", set}});
}

TEST_CASE("Amounts of any length are written, and read in no time") {
    CHECK(FormatMoney(1e308).size() == 309 + 4);
    // The C library takes a minute for this one.
    CHECK(ParseMoneyText(L"0." + std::wstring(1'000'000, L'5')) == 5.0 / 9);
}

TEST_CASE("Amounts have a full stop, and times AM or PM, whatever the locale of the process") {
    REQUIRE(std::setlocale(LC_ALL, "Swedish") != nullptr);
    CHECK(FormatMoney(1234.5) == L"$1234.50");
    CHECK(FormatTimestamp(LocalStamp(L"2026-3-7 14:5:9"), true) == L"03/07/2026 02:05 PM");
    std::setlocale(LC_ALL, "C");
}

TEST_CASE("A new estimate, its own root, is named and stamped by the current second") {
    const std::int64_t before = NowSeconds();
    const Estimate estimate = NewEstimate();
    CHECK(std::abs(before - std::time(nullptr)) < 5);
    CHECK(estimate.EstimateId.size() == 19);
    const std::int64_t stamp = LocalStamp(estimate.EstimateId, L"GFE-%4d%2d%2d-%2d%2d%2d");
    CHECK((before <= stamp && stamp <= estimate.CreatedOn));
    CHECK(estimate.CreatedOn <= NowSeconds());
    CHECK(estimate.LastModifiedOn == estimate.CreatedOn);
    CHECK(estimate.RootEstimateId == estimate.EstimateId);
}
