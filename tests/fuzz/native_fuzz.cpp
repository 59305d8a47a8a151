// Any bytes: what the native reader accepts, the writer writes back so that it reads the same
// again, and the texts of lists, messages and pages are made of it, whatever it holds.
#include <cstdlib>

#include "model/dates.h"
#include "model/money.h"
#include "model/text.h"
#include "model/validation.h"
#include "store/native_format.h"

using namespace tessaline;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Estimate estimate;
    std::wstring error;
    if (!ReadNativeEstimate({data, size}, estimate, error)) {
        if (error.empty()) std::abort();
        return 0;
    }
    const PatientInfo& patient = estimate.Patient;
    std::wstring texts =
        FormatTimestamp(estimate.LastModifiedOn, false) + JoinName(patient) +
        JoinAddress(patient.Street, patient.Apartment, patient.City, patient.State, patient.Zip) +
        ValidateEstimate(estimate, std::chrono::year{2026} / 3 / 7);
    for (const ServiceLine& line : estimate.Lines) texts += CodeText(line);
    if (!FormatMoney(TotalExpectedCharge(estimate)).starts_with(L'$')) std::abort();
    const SecretBytes written = WriteNativeEstimate(estimate);
    Estimate again;
    if (!ReadNativeEstimate(written, again, error)) std::abort();
    // Compared as bytes: a charge that is not a number differs from itself.
    if (WriteNativeEstimate(again) != written) std::abort();
    return 0;
}
