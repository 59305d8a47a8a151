#include "model/money.h"

#include <doctest/doctest.h>

#include <cmath>

using namespace tessaline;

TEST_CASE("Money is written with two decimals, exact halves to the even digit") {
    struct Row {
        double dollars;
        const wchar_t* text;
    };
    const Row rows[] = {
        {0, L"$0.00"},
        {1234.5, L"$1234.50"},
        {0.125, L"$0.12"},
        {0.375, L"$0.38"},
        {2.675, L"$2.67"},
        {-5, L"$-5.00"},
        {1234567.891, L"$1234567.89"},
        {0.999, L"$1.00"},
    };
    for (const Row& row : rows) CHECK(FormatMoney(row.dollars) == row.text);
    CHECK(FormatMoney(1e308).size() == 309 + 4);
}

TEST_CASE(
    "Amounts are read past dollar signs and commas, up to the first character that does not fit") {
    struct Row {
        const wchar_t* text;
        double dollars;
    };
    const Row rows[] = {
        {L"$1,234.50", 1234.5},
        {L"12abc", 12},
        {L"1,2,3", 123},
        {L"abc", 0},
        {L"", 0},
        {L"  7.25 ", 7.25},
        {L"-5", -5},
        {L"+.5", 0.5},
        {L"1e2x", 100},
        {L"2e", 2},
        {L"2e+", 2},
        {L".", 0},
        {L"1.2.3", 1.2},
        {L"0x10", 0},
        {L"12$34", 1234},
        {L"nan", 0},
        {L"- 5", 0},
        {L"5\x0661", 5},
    };
    for (const Row& row : rows) CHECK(ParseMoneyText(row.text) == row.dollars);
    CHECK(std::isinf(ParseMoneyText(L"1e999")));
    CHECK(ParseMoneyText(L"1e-999") == 0);
    CHECK(ParseMoneyText(L"-1e-999") == 0);
    // In no time, too: the C library takes a minute for this one.
    CHECK(ParseMoneyText(L"0." + std::wstring(1'000'000, L'5')) == 5.0 / 9);
}

TEST_CASE("Whatever is no quantity of at least 1 becomes 1") {
    struct Row {
        const wchar_t* text;
        int quantity;
    };
    const Row rows[] = {
        {L"0", 1},
        {L"-3", 1},
        {L"", 1},
        {L"abc", 1},
        {L"2.9", 2},
        {L" +12 ", 12},
        {L"7x", 7},
        {L"99999999999", 2147483647},
        {L"-99999999999", 1},
    };
    for (const Row& row : rows) CHECK(ParseQuantityText(row.text) == row.quantity);
}
