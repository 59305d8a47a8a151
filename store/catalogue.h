// The saved estimates, patients and providers. The files are the only database: every call reads
// all of them anew. A file that cannot be read is left out and its message dropped, so that one
// damaged file does not stand between the clerk and the others.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/estimate.h"
#include "platform/local_store.h"

namespace tessaline {

/// One readable file.
struct SavedEstimateEntry {
    std::wstring FilePath;
    Estimate Record;
};

/// A patient, as in the latest of the estimates for this patient.
struct PatientSummary {
    PatientInfo Patient;
    std::int64_t LastUsed = 0;  ///< the latest modification among these estimates
    std::int32_t EstimateCount = 0;
};

/// A provider or facility, as in the latest of its estimates.
struct ProviderSummary {
    ProviderInfo Provider;
    std::int64_t LastUsed = 0;  ///< the latest modification among these estimates
    std::int32_t EstimateCount = 0;
};

/// Every estimate that can be read, latest modification first.
[[nodiscard]] std::vector<SavedEstimateEntry> LoadAllEstimates(const LocalStore& store);

/// Whether a file of the older edition is there, readable or not.
[[nodiscard]] bool HasLegacyFiles(const LocalStore& store);

/// The patients on saved estimates, last used first. Two are one patient when first name, last
/// name and date of birth are the same text, but for case and outer blanks. Estimates without a
/// patient's name do not count.
[[nodiscard]] std::vector<PatientSummary> BuildPatientList(const LocalStore& store);

/// The providers on saved estimates, last used first. Two are one provider when their names are
/// the same, but for case and outer blanks, and so are the digits of their NPI or, where there are
/// none, street, city and state. Estimates without a provider's name do not count.
[[nodiscard]] std::vector<ProviderSummary> BuildProviderList(const LocalStore& store);

}  // namespace tessaline
