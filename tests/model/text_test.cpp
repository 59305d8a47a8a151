#include "model/text.h"

#include "tests/support/readable.h"

using namespace tessaline;

TEST_CASE("Texts are trimmed, reduced to digits, changed in case and cleaned for file names") {
    struct Row {
        std::wstring (*tool)(std::wstring_view);
        const wchar_t *text, *result;
    };
    const Row rows[] = {
        {Trim, L" \t\r\n\v\fAnn  Lee\u2003\n", L"Ann  Lee"},
        {Trim, L" \t ", L""},
        {DigitsOnly, L"(555) 010-0199", L"5550100199"},
        {DigitsOnly, L"0a9/:\u0661", L"09"},
        {ToUpper, L"az{`A9 @", L"AZ{`A9 @"},
        {ToLower, L"AZ[@a9", L"az[@a9"},
        {CleanFileName, L"A/B:C", L"A-B-C"},
        {CleanFileName, L"<>:\"/\\|?*", L"---------"},
        {CleanFileName, L" CON.\t;'\u00E9 ", L" CON.\t;'\u00E9 "},
    };
    for (const Row& row : rows) CHECK(row.tool(row.text) == row.result);
    CHECK(IsBlank(L" \r\n"));
    CHECK_FALSE(IsBlank(L" . "));
}

TEST_CASE("A search ignores case and finds runs only") {
    CHECK(ContainsNoCase(L"Ann Lee", L"N LE"));
    CHECK(ContainsNoCase(L"", L""));
    CHECK_FALSE(ContainsNoCase(L"Ann Lee", L"AnLee"));
    CHECK_FALSE(ContainsNoCase(L"Ann", L"Anna"));
}

TEST_CASE("A name has one blank between the parts that are there, which are not trimmed") {
    const auto join = [](const wchar_t* first, const wchar_t* middle, const wchar_t* last) {
        PatientInfo patient;
        patient.FirstName = first;
        patient.MiddleName = middle;
        patient.LastName = last;
        return JoinName(patient);
    };
    CHECK(join(L"Ann", L"B.", L"Lee") == L"Ann B. Lee");
    CHECK(join(L" Ann ", L"", L"Lee") == L" Ann  Lee");
    CHECK(join(L"", L"B.", L"Lee") == L"B. Lee");
    CHECK(join(L"", L"", L"Lee") == L"Lee");
}

TEST_CASE("An address has no separator of a piece that is missing") {
    CHECK(JoinAddress(L"12 Oak St", L"Apt 4", L"Springfield", L"IL", L"62701") ==
          L"12 Oak St Apt 4, Springfield, IL 62701");
    CHECK(JoinAddress(L"", L"", L"", L"", L"62701") == L"62701");
    CHECK(JoinAddress(L"", L"Apt 4", L"", L"IL", L"62701") == L"Apt 4, IL 62701");
    CHECK(JoinAddress(L"12 Oak St", L"", L"", L"", L"") == L"12 Oak St");
    CHECK(JoinAddress(L"", L"", L"Springfield", L"", L"62701") == L"Springfield 62701");
}
