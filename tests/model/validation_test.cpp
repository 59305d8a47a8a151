#include "model/validation.h"

#include <array>
#include <chrono>
#include <cwchar>
#include <limits>

#include "model/dates.h"
#include "tests/support/readable.h"

using namespace tessaline;

namespace {

constexpr wchar_t kAccount[] = L"Use exactly 4 digits.";
constexpr wchar_t kEmail[] = L"Enter a valid email address.";
constexpr wchar_t kNpi[] = L"NPI should contain 10 digits.";
constexpr wchar_t kZip[] = L"Enter a 5-digit ZIP or ZIP+4.";
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
    using Rule = std::wstring (*)(std::wstring_view);
    struct Row {
        Rule rule;
        const wchar_t *text, *message;
    };
    const Row rows[] = {
        {CheckAccountLast4, L" ", L""},
        {CheckAccountLast4, L" 0042 ", L""},
        {CheckAccountLast4, L"42", kAccount},
        {CheckAccountLast4, L"12345", kAccount},
        {CheckAccountLast4, L"4-2-4-2", kAccount},
        {CheckAccountLast4, L"12 34", kAccount},
        {CheckAccountLast4, L"123x", kAccount},
        {CheckEmail, L"", L""},
        {CheckEmail, L" a@b.c ", L""},
        {CheckEmail, L"a b@c@d.e", L""},
        {CheckEmail, L"a.b@c.d.e", L""},
        {CheckEmail, L"a@.b.c", L""},
        {CheckEmail, L"ab.c", kEmail},
        {CheckEmail, L"@b.c", kEmail},
        {CheckEmail, L"a@.c", kEmail},
        {CheckEmail, L"a@b.", kEmail},
        {CheckEmail, L"a@b.c.", kEmail},
        {CheckEmail, L"a.b@c", kEmail},
        {CheckEmail, L"a@b", kEmail},
        {CheckNpi, L"n/a", L""},
        {CheckNpi, L"123-456-7890", L""},
        {CheckNpi, L"12345", kNpi},
        {CheckNpi, L"12345678901", kNpi},
        {CheckZip, L" \t", L""},
        {CheckZip, L"12345", L""},
        {CheckZip, L"12345-6789", L""},
        {CheckZip, L"12a345", L""},
        {CheckZip, L"1234", kZip},
        {CheckZip, L"123456", kZip},
        {CheckZip, L"1234567890", kZip},
        {CheckZip, L"none", kZip},
    };
    for (const Row& row : rows) {
        CAPTURE(Readable(row.text));
        CHECK(row.rule(row.text) == row.message);
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
    // Undone from the last rule to the first, each hides the one before.
    Estimate estimate = CompleteEstimate();
    CHECK(ValidateEstimate(estimate) == L"");
    estimate.Lines[1].ExpectedCharge = 0.0;
    CHECK(ValidateEstimate(estimate) == kCharge);
    estimate.Lines[1].Quantity = 0;
    CHECK(ValidateEstimate(estimate) == kQuantity);
    estimate.Lines[1].ServiceItem = L" ";
    CHECK(ValidateEstimate(estimate) == kDescription);
    estimate.Lines[0].ExpectedCharge = -1.0;
    CHECK(ValidateEstimate(estimate) == kCharge);
    estimate.Lines[0].Quantity = -1;
    CHECK(ValidateEstimate(estimate) == kQuantity);
    estimate.Lines.clear();
    CHECK(ValidateEstimate(estimate) ==
          L"Add at least one expected item/service and expected charge.");
    estimate.PrimaryService = L"\t";
    CHECK(ValidateEstimate(estimate) == L"Enter the primary service or item.");
    estimate.Patient.DateOfBirth = L"13/01/1990";
    CHECK(ValidateEstimate(estimate) == kDate);
    estimate.Patient.DateOfBirth.clear();
    CHECK(ValidateEstimate(estimate) == kNoDate);
    estimate.Patient.LastName = L" ";
    CHECK(ValidateEstimate(estimate) == L"Enter the patient's first and last name.");
    estimate.Patient.LastName = L"Lee";
    estimate.Patient.FirstName = L" ";
    CHECK(ValidateEstimate(estimate) == L"Enter the patient's first and last name.");
    estimate.Provider.OrganizationName = L" ";
    CHECK(ValidateEstimate(estimate) == L"Enter the estimating provider / facility name.");
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
