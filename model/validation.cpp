#include "model/validation.h"

#include "model/dates.h"
#include "model/text.h"

namespace tessaline {
namespace {

std::wstring CheckLine(const ServiceLine& line) {
    if (IsBlank(line.ServiceItem)) {
        return L"Each expected item/service must include a description.";
    }
    if (line.Quantity < 1) {
        return L"Each expected item/service must have a quantity of at least 1.";
    }
    if (!(line.ExpectedCharge > 0.0)) {
        return L"Each expected item/service must include an expected charge greater than $0.";
    }
    return {};
}

std::wstring CheckLines(const Estimate& estimate) {
    if (estimate.Lines.empty()) {
        return L"Add at least one expected item/service and expected charge.";
    }
    for (const ServiceLine& line : estimate.Lines) {
        if (std::wstring message = CheckLine(line); !message.empty()) return message;
    }
    return {};
}

}  // namespace

std::wstring CheckAccountLast4(std::wstring_view text) {
    const std::wstring account = Trim(text);
    if (account.empty()) return {};
    const bool fourDigits = account.size() == 4 && DigitsOnly(account) == account;
    return fourDigits ? L"" : L"Use exactly 4 digits.";
}

std::wstring CheckDateOfBirth(std::wstring_view text, bool required,
                              std::chrono::year_month_day today) {
    if (IsBlank(text)) return required ? L"Date of birth is required." : L"";
    const auto date = ParseDate(text);
    if (!date) return L"Enter a valid date (MM/DD/YYYY).";
    return *date > today ? L"Date of birth cannot be in the future." : L"";
}

std::wstring CheckEmail(std::wstring_view text) {
    const std::wstring address = Trim(text);
    if (address.empty()) return {};
    const std::size_t at = address.find(L'@');
    const std::size_t stop = address.rfind(L'.');
    const bool valid = at != std::wstring::npos && at > 0 && stop != std::wstring::npos &&
                       stop >= at + 2 && stop + 1 < address.size();
    return valid ? L"" : L"Enter a valid email address.";
}

std::wstring CheckNpi(std::wstring_view text) {
    const std::size_t digits = DigitsOnly(text).size();
    return digits == 0 || digits == 10 ? L"" : L"NPI should contain 10 digits.";
}

std::wstring CheckZip(std::wstring_view text) {
    if (IsBlank(text)) return {};
    const std::size_t digits = DigitsOnly(text).size();
    return digits == 5 || digits == 9 ? L"" : L"Enter a 5-digit ZIP or ZIP+4.";
}

std::wstring ValidateEstimate(const Estimate& estimate, std::chrono::year_month_day today) {
    if (IsBlank(estimate.Provider.OrganizationName)) {
        return L"Enter the estimating provider / facility name.";
    }
    if (IsBlank(estimate.Patient.FirstName) || IsBlank(estimate.Patient.LastName)) {
        return L"Enter the patient's first and last name.";
    }
    std::wstring birth = CheckDateOfBirth(estimate.Patient.DateOfBirth, true, today);
    if (!birth.empty()) return birth;
    if (IsBlank(estimate.PrimaryService)) return L"Enter the primary service or item.";
    return CheckLines(estimate);
}

}  // namespace tessaline
