#include "document/page_texts.h"

#include "tests/support/readable.h"

using namespace tessaline;

// clang-format off

TEST_CASE("The patient block leaves out what is missing, with its caption") {
    struct Row {
        PatientInfo patient;
        const wchar_t* text;
    };
    const Row rows[] = {
        {{L"Ann", L"B", L"Lee", L"1/2/1960", L"4821", L"12 Oak St", L"Apt 4",
          L"Peoria", L"IL", L"61602", L"555-0101", L"a@b.cd"},
         L"Ann B Lee\nDOB: 1/2/1960   Account: ****4821\n12 Oak St Apt 4, Peoria, IL 61602\n"
         L"555-0101 \u2022 a@b.cd"},
        {{L"Ann", L"", L"Lee", L"", L"4821", L"", L"", L"", L"", L"", L"", L""},
         L"Ann Lee   Account: ****4821"},
        {{L"", L"", L"", L"1/2/1960", L"", L"", L"", L"", L"", L"", L"", L""}, L"\nDOB: 1/2/1960"},
        {{L"Ann", L"", L"", L"", L"", L"", L"", L"", L"", L"61602", L"", L"a@b.cd"},
         L"Ann\n61602 \u2022 a@b.cd"},
        {{L"Ann", L"", L"", L"", L"", L"", L"", L"", L"", L"", L"555-0101", L""},
         L"Ann\n555-0101"},
        {{}, L""},
    };
    for (const Row& row : rows) CHECK(PatientBlock(row.patient) == row.text);
}

TEST_CASE("The provider block leaves out what is missing, with its caption") {
    struct Row {
        ProviderInfo provider;
        const wchar_t* text;
    };
    const Row rows[] = {
        {{L"Clinic", L"Hospital", L"9 Elm St", L"Peoria", L"IL", L"61602", L"Dana", L"555-0102",
          L"c@d.ef", L"1234567890", L"12-345", L"www.clinic"},
         L"Clinic\nHospital\n9 Elm St, Peoria, IL 61602\nContact: Dana\n555-0102 \u2022 c@d.ef\n"
         L"www.clinic\nNPI: 1234567890   TIN: 12-345"},
        {{L"Clinic", L"", L"", L"", L"", L"", L"", L"", L"c@d.ef", L"", L"12-345", L""},
         L"Clinic \u2022 c@d.ef   TIN: 12-345"},
        {{L"", L"Hospital", L"", L"", L"IL", L"", L"", L"", L"", L"", L"", L""},
         L"\nHospital\nIL"},
        {{}, L""},
    };
    for (const Row& row : rows) CHECK(ProviderBlock(row.provider) == row.text);
}

// clang-format on

TEST_CASE("A service that is not yet scheduled shows no dates, even if some were entered") {
    Estimate estimate;
    estimate.ScheduledDates = L"5/6/2026 ";
    CHECK(ScheduledValue(estimate) == L"5/6/2026 ");
    estimate.NotYetScheduled = true;
    CHECK(ScheduledValue(estimate) == L"Not yet scheduled");
}

TEST_CASE("The estimate information keeps the captions of empty values") {
    Estimate estimate;
    estimate.CoverageStatus.clear();
    estimate.EstimateStatus = L"issued";
    CHECK(EstimateInformation(estimate) ==
          L"Patient status: \nEstimate triggered by: Scheduled care\nDelivery method: Email\n"
          L"Estimate status: issued");
}
