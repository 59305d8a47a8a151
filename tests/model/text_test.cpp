#include "model/text.h"

#include "tests/support/readable.h"

using namespace tessaline;

TEST_CASE("Blanks at both ends are cut off, those inside stay") {
    CHECK(Trim(L" \t\r\n\v\fAnn  Lee\u2003\n") == L"Ann  Lee");
    CHECK(Trim(L" \t ").empty());
    CHECK(Trim(L"").empty());
    CHECK(IsBlank(L" \r\n"));
    CHECK(IsBlank(L""));
    CHECK_FALSE(IsBlank(L" . "));
}

TEST_CASE("Of digits only the ten of ASCII are kept") {
    CHECK(DigitsOnly(L"(555) 010-0199") == L"5550100199");
    CHECK(DigitsOnly(L"0a9/:\u0661") == L"09");
}

TEST_CASE("Case changes character by character") {
    CHECK(ToUpper(L"az{`A9 @") == L"AZ{`A9 @");
    CHECK(ToLower(L"AZ[@a9") == L"az[@a9");
}

TEST_CASE("A search ignores case and finds runs only") {
    CHECK(ContainsNoCase(L"Ann Lee", L"N LE"));
    CHECK(ContainsNoCase(L"Ann Lee", L""));
    CHECK(ContainsNoCase(L"", L""));
    CHECK_FALSE(ContainsNoCase(L"Ann Lee", L"AnLee"));
    CHECK_FALSE(ContainsNoCase(L"Ann", L"Anna"));
}

TEST_CASE("A name has one blank between the parts that are there, which are not trimmed") {
    struct Row {
        const wchar_t *first, *middle, *last, *name;
    };
    const Row rows[] = {
        {L"Ann", L"", L"Lee", L"Ann Lee"},     {L"Ann", L"B.", L"Lee", L"Ann B. Lee"},
        {L"", L"B.", L"Lee", L"B. Lee"},       {L"", L"", L"Lee", L"Lee"},
        {L" Ann ", L"", L"Lee", L" Ann  Lee"}, {L"", L"", L"", L""},
    };
    for (const Row& row : rows) {
        PatientInfo patient;
        patient.FirstName = row.first;
        patient.MiddleName = row.middle;
        patient.LastName = row.last;
        CHECK(JoinName(patient) == row.name);
    }
}

TEST_CASE("An address has no separator of a piece that is missing") {
    struct Row {
        const wchar_t *street, *apartment, *city, *state, *zip, *address;
    };
    const Row rows[] = {
        {L"12 Oak St", L"Apt 4", L"Springfield", L"IL", L"62701",
         L"12 Oak St Apt 4, Springfield, IL 62701"},
        {L"", L"", L"", L"", L"62701", L"62701"},
        {L"", L"Apt 4", L"", L"IL", L"62701", L"Apt 4, IL 62701"},
        {L"12 Oak St", L"", L"", L"", L"", L"12 Oak St"},
        {L"", L"", L"Springfield", L"", L"62701", L"Springfield 62701"},
    };
    for (const Row& row : rows) {
        CHECK(JoinAddress(row.street, row.apartment, row.city, row.state, row.zip) == row.address);
    }
}

TEST_CASE("File names lose the nine forbidden characters and nothing else") {
    CHECK(CleanFileName(L"A/B:C") == L"A-B-C");
    CHECK(CleanFileName(L"<>:\"/\\|?*") == L"---------");
    CHECK(CleanFileName(L" CON.\t;'é ") == L" CON.\t;'é ");
}
