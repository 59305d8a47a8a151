// The names and members of the fields that version 1 of the native payload and the older edition's
// files hold, in stored order. Both formats are closed, so these rows never change: a row added
// here would make every saved file unreadable. A new field goes to store/native_versions.h.
#pragma once

#include <tuple>

#include "model/estimate.h"

namespace tessaline {

/// One field: its name, which is also its key in the older edition's files, and its member.
template <typename Record, typename Value>
struct Field {
    const wchar_t* name;
    Value Record::*member;
};

template <typename Record, typename Value>
Field(const wchar_t*, Value Record::*) -> Field<Record, Value>;

// clang-format off
inline constexpr auto kServiceLineFields = std::tuple{
    Field{L"ServiceItem", &ServiceLine::ServiceItem},
    Field{L"ServiceAddress", &ServiceLine::ServiceAddress},
    Field{L"DiagnosisCode", &ServiceLine::DiagnosisCode},
    Field{L"ServiceCodeType", &ServiceLine::ServiceCodeType},
    Field{L"ServiceCode", &ServiceLine::ServiceCode},
    Field{L"Quantity", &ServiceLine::Quantity},
    Field{L"ExpectedCharge", &ServiceLine::ExpectedCharge},
};

inline constexpr auto kSeparateItemFields = std::tuple{
    Field{L"ServiceItem", &SeparateItem::ServiceItem},
    Field{L"ProviderFacilityInstructions", &SeparateItem::ProviderFacilityInstructions},
};

inline constexpr auto kPatientFields = std::tuple{
    Field{L"FirstName", &PatientInfo::FirstName},
    Field{L"MiddleName", &PatientInfo::MiddleName},
    Field{L"LastName", &PatientInfo::LastName},
    Field{L"DateOfBirth", &PatientInfo::DateOfBirth},
    Field{L"AccountLast4", &PatientInfo::AccountLast4},
    Field{L"Street", &PatientInfo::Street},
    Field{L"Apartment", &PatientInfo::Apartment},
    Field{L"City", &PatientInfo::City},
    Field{L"State", &PatientInfo::State},
    Field{L"Zip", &PatientInfo::Zip},
    Field{L"Phone", &PatientInfo::Phone},
    Field{L"Email", &PatientInfo::Email},
    Field{L"ContactPreference", &PatientInfo::ContactPreference},
};

inline constexpr auto kProviderFields = std::tuple{
    Field{L"OrganizationName", &ProviderInfo::OrganizationName},
    Field{L"ProviderType", &ProviderInfo::ProviderType},
    Field{L"Street", &ProviderInfo::Street},
    Field{L"City", &ProviderInfo::City},
    Field{L"State", &ProviderInfo::State},
    Field{L"Zip", &ProviderInfo::Zip},
    Field{L"ContactPerson", &ProviderInfo::ContactPerson},
    Field{L"Phone", &ProviderInfo::Phone},
    Field{L"Email", &ProviderInfo::Email},
    Field{L"Npi", &ProviderInfo::Npi},
    Field{L"Tin", &ProviderInfo::Tin},
    Field{L"Website", &ProviderInfo::Website},
};

inline constexpr auto kEstimateFields = std::tuple{
    Field{L"EstimateId", &Estimate::EstimateId},
    Field{L"RootEstimateId", &Estimate::RootEstimateId},
    Field{L"ParentEstimateId", &Estimate::ParentEstimateId},
    Field{L"RevisionNumber", &Estimate::RevisionNumber},
    Field{L"CreatedOn", &Estimate::CreatedOn},
    Field{L"LastModifiedOn", &Estimate::LastModifiedOn},
    Field{L"IssuedOn", &Estimate::IssuedOn},
    Field{L"CancelledOn", &Estimate::CancelledOn},
    Field{L"EstimateStatus", &Estimate::EstimateStatus},
    Field{L"CoverageStatus", &Estimate::CoverageStatus},
    Field{L"TriggerReason", &Estimate::TriggerReason},
    Field{L"DeliveryMethod", &Estimate::DeliveryMethod},
    Field{L"Patient", &Estimate::Patient},
    Field{L"Provider", &Estimate::Provider},
    Field{L"PrimaryService", &Estimate::PrimaryService},
    Field{L"PrimaryDiagnosis", &Estimate::PrimaryDiagnosis},
    Field{L"PrimaryDiagnosisCode", &Estimate::PrimaryDiagnosisCode},
    Field{L"SecondaryDiagnosis", &Estimate::SecondaryDiagnosis},
    Field{L"SecondaryDiagnosisCode", &Estimate::SecondaryDiagnosisCode},
    Field{L"NotYetScheduled", &Estimate::NotYetScheduled},
    Field{L"ScheduledDates", &Estimate::ScheduledDates},
    Field{L"Lines", &Estimate::Lines},
    Field{L"SeparateItems", &Estimate::SeparateItems},
    Field{L"ProviderNotes", &Estimate::ProviderNotes},
};
// clang-format on

constexpr const auto& FieldsOf(const Estimate&) {
    return kEstimateFields;
}
constexpr const auto& FieldsOf(const PatientInfo&) {
    return kPatientFields;
}
constexpr const auto& FieldsOf(const ProviderInfo&) {
    return kProviderFields;
}
constexpr const auto& FieldsOf(const ServiceLine&) {
    return kServiceLineFields;
}
constexpr const auto& FieldsOf(const SeparateItem&) {
    return kSeparateItemFields;
}

/// Calls `visit(name, value)` for every field of `record` in stored order. `value` is a reference
/// to the member, const where the record is.
template <typename Record, typename Visit>
void ForEachField(Record& record, Visit&& visit) {
    std::apply([&](const auto&... field) { (visit(field.name, record.*field.member), ...); },
               FieldsOf(record));
}

}  // namespace tessaline
