#include "model/validation.h"

#include <array>
#include <chrono>
#include <cwchar>
#include <limits>
#include <vector>

#include "model/dates.h"
#include "tests/support/readable.h"

using namespace tessaline;

namespace {

constexpr wchar_t kDate[] = L"Enter a valid date (MM/DD/YYYY).";
constexpr wchar_t kFuture[] = L"Date of birth cannot be in the future.";
constexpr wchar_t kNoDate[] = L"Date of birth is required.";
constexpr wchar_t kCharge[] =
    L"Each expected item/service must include an expected charge greater than $0.";
constexpr wchar_t kQuantity[] = L"Each expected item/service must have a quantity of at least 1.";
constexpr wchar_t kDescription[] = L"Each expected item/service must include a description.";

std::wstring DaysFromToday(int days) {
    const std::chrono::year_month_day date =
        std::chrono::sys_days{LocalToday()} + std::chrono::days{days};
    std::array<wchar_t, 32> text{};
    std::swprintf(text.data(), text.size(), L"%02u/%02u/%04d", unsigned{date.month()},
                  unsigned{date.day()}, int{date.year()});
    return text.data();
}

Estimate CompleteEstimate() {
    Estimate estimate;
    estimate.Provider.OrganizationName = L"Clinic A";
    estimate.Patient.FirstName = L"Ann";
    estimate.Patient.LastName = L"Lee";
    estimate.Patient.DateOfBirth = L"01/02/1990";
    estimate.PrimaryService = L"Knee repair";
    estimate.Lines.resize(2);
    for (ServiceLine& line : estimate.Lines) {
        line.ServiceItem = L"Visit";
        line.ExpectedCharge = 0.01;
    }
    return estimate;
}

}  // namespace

TEST_CASE("Each field has its rule") {
    struct Row {
        std::wstring (*rule)(std::wstring_view);
        std::wstring message;
        std::vector<std::wstring> valid, invalid;
    };
    const Row rows[] = {
        {CheckAccountLast4,
         L"Use exactly 4 digits.",
         {L" ", L" 0042 "},
         {L"42", L"12345", L"4-2-4-2", L"12 34", L"123x"}},
        {CheckEmail,
         L"Enter a valid email address.",
         {L"", L" a@b.c ", L"a b@c@d.e", L"a@b.c@d", L"a.b@c.d.e", L"a@.b.c"},
         {L"ab.c", L"@b.c", L"a@.c", L"a@b.", L"a@b.c.", L"a.b@c", L"a@b"}},
        {CheckNpi,
         L"NPI should contain 10 digits.",
         {L"", L"n/a", L"123-456-7890"},
         {L"12345", L"12345678901"}},
        {CheckZip,
         L"Enter a 5-digit ZIP or ZIP+4.",
         {L" \t", L"12345", L"12345-6789", L"12a345"},
         {L"1234", L"123456", L"1234567890", L"none"}},
    };
    for (const Row& row : rows) {
        for (const std::wstring& text : row.valid) CHECK_MESSAGE(row.rule(text) == L"", text);
        for (const std::wstring& text : row.invalid) {
            CHECK_MESSAGE(row.rule(text) == row.message, text);
        }
    }
}

TEST_CASE("A date of birth is a real date up to today") {
    CHECK(CheckDateOfBirth(L" ", true) == kNoDate);
    CHECK(CheckDateOfBirth(L" ", false) == L"");
    CHECK(CheckDateOfBirth(L"02/30/1990", false) == kDate);
    CHECK(CheckDateOfBirth(L"02/28/1990", true) == L"");
    CHECK(CheckDateOfBirth(L"12/31/2200", true) == kFuture);
    CHECK(CheckDateOfBirth(DaysFromToday(0), true) == L"");
    CHECK(CheckDateOfBirth(DaysFromToday(1), true) == kFuture);
}

TEST_CASE("The first failure of an estimate decides") {
    Estimate estimate = CompleteEstimate();
    CHECK(ValidateEstimate(estimate) == L"");
    // From the last rule to the first: each failure hides those before.
    const auto fails = [&estimate](auto& value, auto bad, std::wstring_view message) {
        value = bad;
        CHECK(ValidateEstimate(estimate) == message);
    };
    fails(estimate.Lines[1].ExpectedCharge, 0.0, kCharge);
    fails(estimate.Lines[1].Quantity, 0, kQuantity);
    fails(estimate.Lines[1].ServiceItem, L" ", kDescription);
    fails(estimate.Lines[0].ExpectedCharge, -1.0, kCharge);
    fails(estimate.Lines[0].Quantity, -1, kQuantity);
    fails(estimate.Lines, std::vector<ServiceLine>(),
          L"Add at least one expected item/service and expected charge.");
    fails(estimate.PrimaryService, L"\t", L"Enter the primary service or item.");
    fails(estimate.Patient.DateOfBirth, L"13/01/1990", kDate);
    fails(estimate.Patient.DateOfBirth, L"", kNoDate);
    fails(estimate.Patient.LastName, L" ", L"Enter the patient's first and last name.");
    estimate.Patient.LastName = L"Lee";
    fails(estimate.Patient.FirstName, L" ", L"Enter the patient's first and last name.");
    fails(estimate.Provider.OrganizationName, L" ",
          L"Enter the estimating provider / facility name.");
}

TEST_CASE("A whole estimate is not held to the rules of single fields") {
    Estimate estimate = CompleteEstimate();
    estimate.Patient.Email = estimate.Patient.Zip = estimate.Patient.AccountLast4 = L"1";
    estimate.Provider.Npi = L"1";
    estimate.SeparateItems.resize(1);
    CHECK(ValidateEstimate(estimate) == L"");
    estimate.Lines[0].ExpectedCharge = std::numeric_limits<double>::quiet_NaN();
    CHECK(ValidateEstimate(estimate) == kCharge);
}
