#include "model/dates.h"

#include <cstdint>
#include <ctime>

#include "tests/support/readable.h"

using namespace tessaline;

namespace {

std::int64_t LocalStamp(int year, int month, int day, int hour, int minute, int second) {
    std::tm local{second, minute, hour, day, month - 1, year - 1900, 0, 0, -1};
    return std::mktime(&local);
}

}  // namespace

TEST_CASE("Time stamps show local time on a twelve-hour clock") {
    const auto shown = [](int hour) {
        return FormatTimestamp(LocalStamp(2026, 3, 7, hour, 5, 59), true);
    };
    CHECK(shown(0) == L"03/07/2026 12:05 AM");
    CHECK(shown(9) == L"03/07/2026 09:05 AM");
    CHECK(shown(12) == L"03/07/2026 12:05 PM");
    CHECK(shown(14) == L"03/07/2026 02:05 PM");
    CHECK(FormatTimestamp(LocalStamp(2026, 3, 7, 23, 59, 59), false) == L"03/07/2026");
}

TEST_CASE("Stamps that are not set, or beyond the calendar, show nothing") {
    for (const std::int64_t stamp : {std::int64_t{0}, std::int64_t{-1}, INT64_MIN, INT64_MAX}) {
        CHECK(FormatTimestamp(stamp, true) + FormatTimestamp(stamp, false) == L"");
    }
}

TEST_CASE("A new identifier is the current second of local time") {
    const std::int64_t before = NowSeconds();
    const std::wstring id = NewEstimateId();
    const std::int64_t after = NowSeconds();
    REQUIRE(id.size() == 19);
    CHECK(id.substr(0, 4) + id.substr(12, 1) == L"GFE--");
    const auto part = [&id](std::size_t at, std::size_t size) {
        return std::stoi(id.substr(at, size));
    };
    const std::int64_t stamp =
        LocalStamp(part(4, 4), part(8, 2), part(10, 2), part(13, 2), part(15, 2), part(17, 2));
    CHECK(stamp >= before);
    CHECK(stamp <= after);
    CHECK(std::abs(before - std::time(nullptr)) < 5);
}

TEST_CASE("Typed dates are read as leniently as the C library scans them") {
    struct Row {
        const wchar_t* text;
        int year;
        unsigned month, day;
    };
    const Row rows[] = {
        {L"02/29/2024", 2024, 2, 29},      {L"1/2/2000abc", 2000, 1, 2},
        {L" 3/ 7/\t2026 xyz", 2026, 3, 7}, {L"+3/+7/+2026", 2026, 3, 7},
        {L"003/0007/02026", 2026, 3, 7},   {L"01/01/1900", 1900, 1, 1},
        {L"12/31/2200", 2200, 12, 31},     {L"1/2/2000/3", 2000, 1, 2},
    };
    for (const Row& row : rows) {
        const std::chrono::year_month_day expected{
            std::chrono::year{row.year}, std::chrono::month{row.month}, std::chrono::day{row.day}};
        CHECK((ParseDate(row.text) == expected));
    }
}

TEST_CASE("What is no real date from 1900 to 2200 is none") {
    // clang-format off
    const wchar_t* const texts[] = {
        L"2/29/2023", L"02/29/1900", L"02/30/2020", L"04/31/2020", L"13/01/2000", L"00/01/2000",
        L"01/00/2000", L"01/32/2000", L"-1/01/2000", L"01/01/1899", L"01/01/2201", L"01/01/99",
        L"2000-01-02", L"3 /7/2026", L"3/7", L"3/7/", L"3/7/x", L"/3/7/2026", L"", L"  ",
        L"4294967297/1/2000", L"1/1/99999999999999999999", L"1/1/-99999999999999999999"};
    // clang-format on
    for (const wchar_t* text : texts) CHECK_MESSAGE(!ParseDate(text), Readable(text));
}
