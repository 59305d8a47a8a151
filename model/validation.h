// The rules that decide whether an estimate is complete and well-formed. Each returns the message
// for the user, empty where the value is valid; none changes anything. Rules for single fields
// accept a blank text.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "model/estimate.h"

namespace tessaline {

/// Exactly four digits.
[[nodiscard]] std::wstring CheckAccountLast4(std::wstring_view text);

/// A real date, not after `today`; a blank text only where it is not `required`.
[[nodiscard]] std::wstring CheckDateOfBirth(std::wstring_view text, bool required,
                                            std::chrono::year_month_day today);

/// Something, an at sign, something, a full stop, something. Not more: a stricter rule would
/// refuse real addresses, and the clerk would have no way round it.
[[nodiscard]] std::wstring CheckEmail(std::wstring_view text);

/// Ten digits, whatever stands between them; a text without digits is valid. The check digit is
/// not tested.
[[nodiscard]] std::wstring CheckNpi(std::wstring_view text);

/// Five or nine digits, whatever stands between them.
[[nodiscard]] std::wstring CheckZip(std::wstring_view text);

/// What an estimate must hold before it may be handed to a patient (45 CFR 149.610(c)): provider,
/// patient, primary service and at least one expected charge. The first failure decides.
[[nodiscard]] std::wstring ValidateEstimate(const Estimate& estimate,
                                            std::chrono::year_month_day today);

}  // namespace tessaline
