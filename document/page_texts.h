// The texts of the document that combine several fields. Lines are separated by "\n". A field that
// is empty is left out together with its caption, unless stated otherwise.
#pragma once

#include <string>

#include "model/estimate.h"

namespace tessaline {

/// Where the government informs about good faith estimates and disputes.
inline constexpr wchar_t kFederalWebAddress[] = L"www.cms.gov/nosurprises";
inline constexpr wchar_t kFederalHelpLine[] = L"1-800-985-3059";

/// Four lines: name; date of birth and account; postal address; telephone and e-mail.
[[nodiscard]] std::wstring PatientBlock(const PatientInfo& patient);

/// Seven lines: name; type; postal address; contact; telephone and e-mail; website; NPI and TIN.
[[nodiscard]] std::wstring ProviderBlock(const ProviderInfo& provider);

/// The scheduled dates as entered, or "Not yet scheduled".
[[nodiscard]] std::wstring ScheduledValue(const Estimate& estimate);

/// Four lines with captions: coverage, trigger, delivery and status. A caption stays when its
/// field is empty.
[[nodiscard]] std::wstring EstimateInformation(const Estimate& estimate);

/// The patient's rights, which 45 CFR 149.610 requires on every estimate.
[[nodiscard]] std::wstring RightsText();

/// The line at the foot of every page.
[[nodiscard]] std::wstring FooterText();

}  // namespace tessaline
