// The rules for texts, money, dates and single fields.
#include <chrono>
#include <clocale>
#include <ctime>
#include <cwchar>

#include "model/dates.h"
#include "model/estimate.h"
#include "model/money.h"
#include "model/new_estimate.h"
#include "model/text.h"
#include "model/validation.h"
#include "tests/support/rule_table.h"

using namespace tessaline;

namespace {

std::int64_t LocalStamp(const std::wstring& text, const wchar_t* format) {
    std::tm local{};
    REQUIRE(std::swscanf(text.c_str(), format, &local.tm_year, &local.tm_mon, &local.tm_mday,
                         &local.tm_hour, &local.tm_min, &local.tm_sec) == 6);
    local.tm_year -= 1900;
    local.tm_mon -= 1;
    local.tm_isdst = -1;
    return std::mktime(&local);
}

std::wstring ShowLocal(const std::wstring& time, bool withTime) {
    return FormatTimestamp(LocalStamp(time, L"%d-%d-%d %d:%d:%d"), withTime);
}

std::wstring DateText(std::wstring_view typed) {
    const auto date = ParseDate(typed);
    if (!date) return L"none";
    return Told(int{date->year()}) + L"-" + Told(unsigned{date->month()}) + L"-" +
           Told(unsigned{date->day()});
}

constexpr std::chrono::year_month_day kToday = std::chrono::year{2026} / 3 / 7;

}  // namespace

TEST_CASE("Texts, money, dates and fields follow their rules") {
    using Text = const std::wstring&;
    CheckRules(L"model.txt",
               {{L"Trim", Trim},
                {L"IsBlank", IsBlank},
                {L"DigitsOnly", DigitsOnly},
                {L"ToUpper", ToUpper},
                {L"ToLower", ToLower},
                {L"CleanFileName", CleanFileName},
                {L"ContainsNoCase", ContainsNoCase},
                {L"JoinName",
                 [](Text first, Text middle, Text last) {
                     PatientInfo patient;
                     patient.FirstName = first;
                     patient.MiddleName = middle;
                     patient.LastName = last;
                     return JoinName(patient);
                 }},
                {L"JoinAddress", JoinAddress},
                {L"FormatMoney", [](Text dollars) { return FormatMoney(std::stod(dollars)); }},
                {L"ParseMoneyText", ParseMoneyText},
                {L"ParseQuantityText", ParseQuantityText},
                {L"local time", [](Text time) { return ShowLocal(time, true); }},
                {L"local date", [](Text time) { return ShowLocal(time, false); }},
                {L"stamp",
                 [](Text stamp) {
                     const std::int64_t seconds = std::stoll(stamp);
                     return FormatTimestamp(seconds, true) + FormatTimestamp(seconds, false);
                 }},
                {L"ParseDate", DateText},
                {L"CheckAccountLast4", CheckAccountLast4},
                {L"CheckEmail", CheckEmail},
                {L"CheckNpi", CheckNpi},
                {L"CheckZip", CheckZip},
                {L"date of birth", [](Text text) { return CheckDateOfBirth(text, true, kToday); }},
                {L"optional date of birth",
                 [](Text text) { return CheckDateOfBirth(text, false, kToday); }},
                {L"CodeText", [](Text type, Text code) {
                     ServiceLine line;
                     line.ServiceCodeType = type;
                     line.ServiceCode = code;
                     return CodeText(line);
                 }}});
}

TEST_CASE("Amounts of any length are written, and read in no time") {
    CHECK(FormatMoney(1e308).size() == 309 + 4);
    // The C library takes a minute for this one.
    CHECK(ParseMoneyText(L"0." + std::wstring(1'000'000, L'5')) == 5.0 / 9);
}

TEST_CASE("Amounts have a full stop, and times AM or PM, whatever the locale of the process") {
    REQUIRE(std::setlocale(LC_ALL, "Swedish") != nullptr);
    CHECK(FormatMoney(1234.5) == L"$1234.50");
    CHECK(ShowLocal(L"2026-3-7 14:5:9", true) == L"03/07/2026 02:05 PM");
    std::setlocale(LC_ALL, "C");
}

TEST_CASE("A new estimate, its own root, is named and stamped by the current second") {
    const std::int64_t before = NowSeconds();
    const Estimate estimate = NewEstimate();
    CHECK(std::abs(before - std::time(nullptr)) < 5);
    CHECK(estimate.EstimateId.size() == 19);
    const std::int64_t stamp = LocalStamp(estimate.EstimateId, L"GFE-%4d%2d%2d-%2d%2d%2d");
    CHECK((before <= stamp && stamp <= NowSeconds()));
    CHECK((before <= estimate.CreatedOn && estimate.CreatedOn <= NowSeconds()));
    CHECK(estimate.LastModifiedOn == estimate.CreatedOn);
    CHECK(estimate.RootEstimateId == estimate.EstimateId);
}
