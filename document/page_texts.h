// The texts of the document that are put together from several fields. Lines are separated by
// "\n"; a piece whose field is empty is left out together with its caption.
#pragma once

#include <string>

#include "model/estimate.h"

namespace tessaline {

/// Where the law's own information about good faith estimates and disputes is to be had.
inline constexpr wchar_t kFederalWebAddress[] = L"www.cms.gov/nosurprises";
inline constexpr wchar_t kFederalHelpLine[] = L"1-800-985-3059";

/// Name, date of birth with account, postal address, telephone with e-mail.
[[nodiscard]] std::wstring PatientBlock(const PatientInfo& patient);

/// Name, kind, postal address, contact, telephone with e-mail, website, NPI with TIN.
[[nodiscard]] std::wstring ProviderBlock(const ProviderInfo& provider);

/// The dates as entered, or that there are none yet.
[[nodiscard]] std::wstring ScheduledValue(const Estimate& estimate);

/// Coverage, trigger, delivery and status, a line each; here an empty value keeps its caption.
[[nodiscard]] std::wstring EstimateInformation(const Estimate& estimate);

/// The patient's rights, which the law wants on every estimate.
[[nodiscard]] std::wstring RightsText();

/// The line at the foot of every page.
[[nodiscard]] std::wstring FooterText();

}  // namespace tessaline
