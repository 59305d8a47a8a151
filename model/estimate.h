// The record that the whole program is about: one Good Faith Estimate with its patient, its
// estimating provider, its context, its expected charges and its notes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessaline {

/// The labels of `Estimate::EstimateStatus`. Statuses are kept and compared as these exact texts,
/// in memory and in every file.
inline constexpr wchar_t kStatusDraft[] = L"Draft";
inline constexpr wchar_t kStatusIssued[] = L"Issued";
inline constexpr wchar_t kStatusRevised[] = L"Revised";
inline constexpr wchar_t kStatusCancelled[] = L"Cancelled";

/// The patient who receives the estimate.
struct PatientInfo {
    std::wstring FirstName;
    std::wstring MiddleName;
    std::wstring LastName;
    std::wstring DateOfBirth;   ///< as typed, "MM/DD/YYYY"
    std::wstring AccountLast4;  ///< last four digits of the patient's account number
    std::wstring Street;
    std::wstring Apartment;
    std::wstring City;
    std::wstring State;
    std::wstring Zip;
    std::wstring Phone;
    std::wstring Email;
    std::wstring ContactPreference = L"Email";

    bool operator==(const PatientInfo&) const = default;
};

/// The estimating (convening) provider or facility.
struct ProviderInfo {
    std::wstring OrganizationName;
    std::wstring ProviderType;
    std::wstring Street;
    std::wstring City;
    std::wstring State;
    std::wstring Zip;
    std::wstring ContactPerson;
    std::wstring Phone;
    std::wstring Email;
    std::wstring Npi;  ///< National Provider Identifier
    std::wstring Tin;  ///< taxpayer identification number
    std::wstring Website;

    bool operator==(const ProviderInfo&) const = default;
};

/// One expected item or service.
struct ServiceLine {
    std::wstring ServiceItem;
    std::wstring ServiceAddress;
    std::wstring DiagnosisCode;
    std::wstring ServiceCodeType = L"CPT";
    std::wstring ServiceCode;
    std::int32_t Quantity = 1;
    double ExpectedCharge = 0.0;  ///< US dollars for one unit, rounded only where it becomes text

    bool operator==(const ServiceLine&) const = default;
};

/// One service that will be scheduled separately and estimated by another provider or facility.
struct SeparateItem {
    std::wstring ServiceItem;
    std::wstring ProviderFacilityInstructions;

    bool operator==(const SeparateItem&) const = default;
};

/// One estimate. Time stamps are whole seconds since 1970-01-01 UTC; a stamp not above 0 is not
/// set.
struct Estimate {
    std::wstring EstimateId;
    std::wstring RootEstimateId;    ///< first estimate of the chain of revisions
    std::wstring ParentEstimateId;  ///< the estimate that this one revises
    std::int32_t RevisionNumber = 0;
    std::int64_t CreatedOn = 0;
    std::int64_t LastModifiedOn = 0;
    std::int64_t IssuedOn = 0;
    std::int64_t CancelledOn = 0;
    std::wstring EstimateStatus = kStatusDraft;
    std::wstring CoverageStatus = L"Uninsured";
    std::wstring TriggerReason = L"Scheduled care";
    std::wstring DeliveryMethod = L"Email";
    PatientInfo Patient;
    ProviderInfo Provider;
    std::wstring PrimaryService;
    std::wstring PrimaryDiagnosis;
    std::wstring PrimaryDiagnosisCode;
    std::wstring SecondaryDiagnosis;
    std::wstring SecondaryDiagnosisCode;
    bool NotYetScheduled = false;
    std::wstring ScheduledDates;
    std::vector<ServiceLine> Lines;
    std::vector<SeparateItem> SeparateItems;
    std::wstring ProviderNotes;
    /// Carried by the native file; only a revision changes it, to false.
    bool ReservedFlag = false;

    bool operator==(const Estimate&) const = default;
};

/// Quantity times charge of one line in US dollars, unrounded; negative quantities count as such.
[[nodiscard]] double LineTotal(const ServiceLine& line);

/// The sum of all line totals in US dollars, unrounded. Separately scheduled services do not
/// count.
[[nodiscard]] double TotalExpectedCharge(const Estimate& estimate);

/// The line's code as lists and pages show it: the code type, then a blank and the code if there
/// is one.
[[nodiscard]] std::wstring CodeText(const ServiceLine& line);

}  // namespace tessaline
