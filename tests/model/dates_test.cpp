#include "model/dates.h"

#include <cstdint>
#include <ctime>

#include "tests/support/readable.h"

using namespace tessaline;
using std::chrono::year_month_day;

namespace {

std::int64_t LocalStamp(int year, int month, int day, int hour, int minute, int second) {
    std::tm local{};
    local.tm_year = year - 1900;
    local.tm_mon = month - 1;
    local.tm_mday = day;
    local.tm_hour = hour;
    local.tm_min = minute;
    local.tm_sec = second;
    local.tm_isdst = -1;
    return std::mktime(&local);
}

}  // namespace

TEST_CASE("Time stamps show local time on a twelve-hour clock") {
    struct Row {
        int hour;
        const wchar_t* text;
    };
    const Row rows[] = {
        {0, L"03/07/2026 12:05 AM"},
        {9, L"03/07/2026 09:05 AM"},
        {12, L"03/07/2026 12:05 PM"},
        {14, L"03/07/2026 02:05 PM"},
    };
    for (const Row& row : rows) {
        const std::int64_t stamp = LocalStamp(2026, 3, 7, row.hour, 5, 59);
        CHECK(FormatTimestamp(stamp, true) == row.text);
        CHECK(FormatTimestamp(stamp, false) == L"03/07/2026");
    }
}

TEST_CASE("Stamps that are not set, or beyond the calendar, show nothing") {
    for (const std::int64_t stamp : {std::int64_t{0}, std::int64_t{-1}, INT64_MIN, INT64_MAX}) {
        CHECK(FormatTimestamp(stamp, true).empty());
        CHECK(FormatTimestamp(stamp, false).empty());
    }
}

TEST_CASE("A new identifier is the current second of local time") {
    const auto shown = [](std::int64_t stamp) {  // MM/DD/YYYY as YYYYMMDD
        const std::wstring date = FormatTimestamp(stamp, false);
        return date.substr(6, 4) + date.substr(0, 2) + date.substr(3, 2);
    };
    const std::int64_t before = NowSeconds();
    const std::wstring id = NewEstimateId();
    const std::int64_t after = NowSeconds();
    REQUIRE(id.size() == 19);
    CHECK(id.substr(0, 4) == L"GFE-");
    CHECK(id[12] == L'-');
    CHECK((id.substr(4, 8) == shown(before) || id.substr(4, 8) == shown(after)));
    const std::int64_t stamp = LocalStamp(
        std::stoi(id.substr(4, 4)), std::stoi(id.substr(8, 2)), std::stoi(id.substr(10, 2)),
        std::stoi(id.substr(13, 2)), std::stoi(id.substr(15, 2)), std::stoi(id.substr(17, 2)));
    CHECK(stamp >= before);
    CHECK(stamp <= after);
    CHECK(before >= std::time(nullptr) - 5);
}

TEST_CASE("Typed dates are read as leniently as the C library scans them") {
    struct Row {
        const wchar_t* text;
        int year;  // 0: no date
        unsigned month, day;
    };
    const Row rows[] = {
        {L"02/29/2024", 2024, 2, 29},
        {L"1/2/2000abc", 2000, 1, 2},
        {L" 3/ 7/\t2026 xyz", 2026, 3, 7},
        {L"+3/+7/+2026", 2026, 3, 7},
        {L"003/0007/02026", 2026, 3, 7},
        {L"01/01/1900", 1900, 1, 1},
        {L"12/31/2200", 2200, 12, 31},
        {L"1/2/2000/3", 2000, 1, 2},
        {L"2/29/2023", 0, 0, 0},
        {L"02/29/1900", 0, 0, 0},
        {L"02/30/2020", 0, 0, 0},
        {L"04/31/2020", 0, 0, 0},
        {L"13/01/2000", 0, 0, 0},
        {L"00/01/2000", 0, 0, 0},
        {L"01/00/2000", 0, 0, 0},
        {L"01/32/2000", 0, 0, 0},
        {L"-1/01/2000", 0, 0, 0},
        {L"01/01/1899", 0, 0, 0},
        {L"01/01/2201", 0, 0, 0},
        {L"01/01/99", 0, 0, 0},
        {L"2000-01-02", 0, 0, 0},
        {L"3 /7/2026", 0, 0, 0},
        {L"3/7", 0, 0, 0},
        {L"3/7/", 0, 0, 0},
        {L"3/7/x", 0, 0, 0},
        {L"", 0, 0, 0},
        {L"  ", 0, 0, 0},
        {L"4294967297/1/2000", 0, 0, 0},
        {L"1/1/99999999999999999999", 0, 0, 0},
        {L"1/1/-99999999999999999999", 0, 0, 0},
    };
    for (const Row& row : rows) {
        CAPTURE(Readable(row.text));
        const auto date = ParseDate(row.text);
        REQUIRE(date.has_value() == (row.year != 0));
        const year_month_day expected{std::chrono::year{row.year}, std::chrono::month{row.month},
                                      std::chrono::day{row.day}};
        if (date) CHECK((*date == expected));
    }
}
