#include "document/page_texts.h"

#include <string_view>

#include "model/product.h"
#include "model/text.h"

namespace tessaline {
namespace {

constexpr wchar_t kBullet[] = L" \u2022 ";

void AppendCaptioned(std::wstring& block, std::wstring_view caption, std::wstring_view value) {
    if (!value.empty()) block.append(caption).append(value);
}

}  // namespace

std::wstring PatientBlock(const PatientInfo& patient) {
    std::wstring block = JoinName(patient);
    AppendCaptioned(block, L"\nDOB: ", patient.DateOfBirth);
    AppendCaptioned(block, L"   Account: ****", patient.AccountLast4);
    AppendCaptioned(
        block, L"\n",
        JoinAddress(patient.Street, patient.Apartment, patient.City, patient.State, patient.Zip));
    AppendCaptioned(block, L"\n", patient.Phone);
    AppendCaptioned(block, kBullet, patient.Email);
    return block;
}

std::wstring ProviderBlock(const ProviderInfo& provider) {
    std::wstring block = provider.OrganizationName;
    AppendCaptioned(block, L"\n", provider.ProviderType);
    AppendCaptioned(block, L"\n",
                    JoinAddress(provider.Street, {}, provider.City, provider.State, provider.Zip));
    AppendCaptioned(block, L"\nContact: ", provider.ContactPerson);
    AppendCaptioned(block, L"\n", provider.Phone);
    AppendCaptioned(block, kBullet, provider.Email);
    AppendCaptioned(block, L"\n", provider.Website);
    AppendCaptioned(block, L"\nNPI: ", provider.Npi);
    AppendCaptioned(block, L"   TIN: ", provider.Tin);
    return block;
}

std::wstring ScheduledValue(const Estimate& estimate) {
    return estimate.NotYetScheduled ? L"Not yet scheduled" : estimate.ScheduledDates;
}

std::wstring EstimateInformation(const Estimate& estimate) {
    return L"Patient status: " + estimate.CoverageStatus + L"\nEstimate triggered by: " +
           estimate.TriggerReason + L"\nDelivery method: " + estimate.DeliveryMethod +
           L"\nEstimate status: " + estimate.EstimateStatus;
}

std::wstring RightsText() {
    return std::wstring(
               L"This is an estimate of expected charges. Your actual bill may differ if the care "
               L"or services change. If a provider or facility bills at least $400 more than the "
               L"Good Faith Estimate from that provider or facility, you may be eligible to use "
               L"the federal patient-provider dispute resolution process. In general, the dispute "
               L"must be started within 120 calendar days of the initial bill. For federal "
               L"information, visit ") +
           kFederalWebAddress + L" or call " + kFederalHelpLine + L".";
}

std::wstring FooterText() {
    return std::wstring(L"Prepared with ") + kProductName + kBullet + kMakerWebAddress + kBullet +
           kMakerSupportPhone;
}

}  // namespace tessaline
