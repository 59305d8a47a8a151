#include "ui/form_rows.h"

#include "ui/control_ids.h"

namespace tessaline {
namespace {

template <std::wstring PatientInfo::*Member>
std::wstring& Of(Estimate& estimate) {
    return estimate.Patient.*Member;
}

template <std::wstring ProviderInfo::*Member>
std::wstring& Of(Estimate& estimate) {
    return estimate.Provider.*Member;
}

template <std::wstring Estimate::*Member>
std::wstring& Of(Estimate& estimate) {
    return estimate.*Member;
}

using enum FieldKind;

constexpr const wchar_t* kContactEntries[] = {L"Email", L"Mail", L"Phone"};
constexpr const wchar_t* kCoverageEntries[] = {L"Uninsured",
                                               L"Self-pay (insured but not using insurance)"};
constexpr const wchar_t* kTriggerEntries[] = {L"Scheduled care", L"Patient requested estimate"};
constexpr const wchar_t* kDeliveryEntries[] = {L"Email", L"Paper / Mail", L"Paper / In person"};
constexpr const wchar_t* kStatusEntries[] = {kStatusDraft, kStatusIssued, kStatusRevised,
                                             kStatusCancelled};

// clang-format off
const FieldRow kPatientRows[] = {
    {kFirstNameEdit, kEdit, L"First name *", {28, 68, 275, 17},
     {28, 86, 275, 25}, Of<&PatientInfo::FirstName>},
    {1101, kEdit, L"Middle name", {316, 68, 275, 17},
     {316, 86, 275, 25}, Of<&PatientInfo::MiddleName>},
    {kLastNameEdit, kEdit, L"Last name *", {604, 68, 275, 17},
     {604, 86, 275, 25}, Of<&PatientInfo::LastName>},
    {kBirthDateEdit, kEdit, L"Date of birth *", {28, 116, 275, 17},
     {28, 134, 275, 25}, Of<&PatientInfo::DateOfBirth>},
    {1104, kEdit, L"Phone", {316, 116, 275, 17}, {316, 134, 275, 25}, Of<&PatientInfo::Phone>},
    {kPatientEmailEdit, kEdit, L"Email", {604, 116, 275, 17},
     {604, 134, 275, 25}, Of<&PatientInfo::Email>},
    {1106, kEdit, L"Street / PO Box", {28, 164, 851, 17},
     {28, 182, 851, 25}, Of<&PatientInfo::Street>},
    {1107, kEdit, L"Apartment / Suite", {28, 212, 275, 17},
     {28, 230, 275, 25}, Of<&PatientInfo::Apartment>},
    {1108, kEdit, L"City", {316, 212, 275, 17}, {316, 230, 275, 25}, Of<&PatientInfo::City>},
    {1109, kEdit, L"State", {604, 212, 275, 17}, {604, 230, 275, 25}, Of<&PatientInfo::State>},
    {kPatientZipEdit, kEdit, L"ZIP", {28, 260, 275, 17},
     {28, 278, 275, 25}, Of<&PatientInfo::Zip>},
    {kAccountEdit, kEdit, L"Account # (last 4)", {316, 260, 275, 17},
     {316, 278, 275, 25}, Of<&PatientInfo::AccountLast4>},
    {1112, kChoice, L"Contact preference", {604, 260, 275, 17},
     {604, 278, 275, kChoiceHeight}, Of<&PatientInfo::ContactPreference>, nullptr,
     kContactEntries},
};

const FieldRow kProviderRows[] = {
    {kOrganizationEdit, kEdit, L"Organization / provider name *", {28, 400, 560, 17},
     {28, 418, 560, 25}, Of<&ProviderInfo::OrganizationName>},
    {1201, kEdit, L"Provider / facility type", {600, 400, 279, 17},
     {600, 418, 279, 25}, Of<&ProviderInfo::ProviderType>},
    {1202, kEdit, L"Street address", {28, 448, 851, 17},
     {28, 466, 851, 25}, Of<&ProviderInfo::Street>},
    {1203, kEdit, L"City", {28, 496, 275, 17}, {28, 514, 275, 25}, Of<&ProviderInfo::City>},
    {1204, kEdit, L"State", {316, 496, 275, 17}, {316, 514, 275, 25}, Of<&ProviderInfo::State>},
    {kProviderZipEdit, kEdit, L"ZIP", {604, 496, 275, 17},
     {604, 514, 275, 25}, Of<&ProviderInfo::Zip>},
    {1206, kEdit, L"Contact person", {28, 544, 275, 17},
     {28, 562, 275, 25}, Of<&ProviderInfo::ContactPerson>},
    {1207, kEdit, L"Phone", {316, 544, 275, 17}, {316, 562, 275, 25}, Of<&ProviderInfo::Phone>},
    {kProviderEmailEdit, kEdit, L"Email", {604, 544, 275, 17},
     {604, 562, 275, 25}, Of<&ProviderInfo::Email>},
    {kNpiEdit, kEdit, L"NPI", {28, 592, 275, 17}, {28, 610, 275, 25}, Of<&ProviderInfo::Npi>},
    {1210, kEdit, L"TIN", {316, 592, 275, 17}, {316, 610, 275, 25}, Of<&ProviderInfo::Tin>},
    {1211, kEdit, L"Website", {604, 592, 275, 17},
     {604, 610, 275, 25}, Of<&ProviderInfo::Website>},
};

const FieldRow kContextRows[] = {
    {1300, kChoice, L"Patient status", {28, 751, 270, 17},
     {28, 769, 275, kChoiceHeight}, Of<&Estimate::CoverageStatus>, nullptr, kCoverageEntries},
    {1301, kChoice, L"Estimate triggered by", {316, 751, 270, 17},
     {316, 769, 275, kChoiceHeight}, Of<&Estimate::TriggerReason>, nullptr, kTriggerEntries},
    {1302, kChoice, L"Delivery method", {604, 751, 270, 17},
     {604, 769, 275, kChoiceHeight}, Of<&Estimate::DeliveryMethod>, nullptr, kDeliveryEntries},
};

const FieldRow kDetailRows[] = {
    {kEstimateIdEdit, kEdit, L"Estimate ID", {28, 885, 275, 17},
     {28, 903, 275, 25}, Of<&Estimate::EstimateId>},
    {kPrimaryServiceEdit, kEdit, L"Primary service or item *", {316, 885, 563, 17},
     {316, 903, 563, 25}, Of<&Estimate::PrimaryService>},
    {1402, kEdit, L"Primary diagnosis", {28, 933, 275, 17},
     {28, 951, 275, 25}, Of<&Estimate::PrimaryDiagnosis>},
    {1403, kEdit, L"Primary diagnosis code", {316, 933, 275, 17},
     {316, 951, 275, 25}, Of<&Estimate::PrimaryDiagnosisCode>},
    {1404, kEdit, L"Secondary diagnosis", {604, 933, 275, 17},
     {604, 951, 275, 25}, Of<&Estimate::SecondaryDiagnosis>},
    {1405, kEdit, L"Secondary diagnosis code", {28, 981, 275, 17},
     {28, 999, 275, 25}, Of<&Estimate::SecondaryDiagnosisCode>},
    {kScheduledDatesEdit, kEdit, L"Scheduled date(s) *", {316, 981, 563, 17},
     {316, 999, 563, 25}, Of<&Estimate::ScheduledDates>},
    {kNotYetScheduledCheck, kCheck, L"Service/item is not yet scheduled", {},
     {28, 1029, 250, 22}, nullptr, &Estimate::NotYetScheduled},
};

const FieldRow kNotesRows[] = {
    {kNotesEdit, kNotes, L"", {}, {28, 1699, 851, 82}, Of<&Estimate::ProviderNotes>},
};

const FieldRow kStatusRow =
    {kStatusChoice, kChoice, L"ESTIMATE STATUS", {885, 8, 132, 16},
     {885, 25, 130, kChoiceHeight}, Of<&Estimate::EstimateStatus>, nullptr, kStatusEntries};

constexpr ListColumn kLineColumns[] = {
    {L"Service / Item", 230}, {L"Location", 155}, {L"Diagnosis", 90}, {L"Code", 105},
    {L"Qty", 45, true}, {L"Charge", 90, true}, {L"Total", 90, true},
};
constexpr ListColumn kSeparateColumns[] = {
    {L"Service / Item", 260},
    {L"Provider / Facility or Instructions for Obtaining GFE", 575},
};
constexpr ListRow kLines = {kLinesList, {28, 1128, 851, 180}, kLineColumns};
constexpr ListRow kSeparate = {kSeparateList, {28, 1441, 851, 125}, kSeparateColumns};

constexpr ButtonRow kBarButtons[] = {
    {kNewButton, L"New", {12, 16, 62, 38}},
    {kOpenButton, L"Open", {82, 16, 66, 38}},
    {kSaveButton, L"Save", {156, 16, 66, 38}, true},
    {kSampleButton, L"Sample", {595, 12, 76, 38}, true},
    {kAboutButton, L"About", {798, 12, 78, 38}},
};
constexpr ButtonRow kPatientLookup[] = {
    {kPatientLookupButton, L"Patient Lookup", {730, 22, 130, 30}},
};
constexpr ButtonRow kProviderLookup[] = {
    {kProviderLookupButton, L"Provider Lookup", {728, 350, 132, 30}},
};
constexpr ButtonRow kLineButtons[] = {
    {kAddLineButton, L"Add Item", {28, 1317, 92, 30}},
    {kEditLineButton, L"Edit", {128, 1317, 76, 30}},
    {kRemoveLineButton, L"Remove", {212, 1317, 82, 30}},
};
constexpr ButtonRow kSeparateButtons[] = {
    {kAddSeparateButton, L"Add", {28, 1577, 76, 30}},
    {kEditSeparateButton, L"Edit", {112, 1577, 76, 30}},
    {kRemoveSeparateButton, L"Remove", {196, 1577, 82, 30}},
};
constexpr ButtonRow kOutputButtons[] = {
    {kPreviewButton, L"Print Preview", {28, 1881, 112, 36}},
    {kPrintButton, L"Print", {150, 1881, 76, 36}, true},
};

const SectionRow kSections[] = {
    {L"Patient information", L"Who will receive the Good Faith Estimate.", 10, 315,
     kPatientLookup, kPatientRows, nullptr, {}, {28, 302, 650, 18}},
    {L"Estimating provider / facility",
     L"Provider information that will appear on the printed Good Faith Estimate.", 338, 345,
     kProviderLookup, kProviderRows, nullptr, {}, {28, 644, 720, 18}},
    {L"Estimate context", L"Coverage status and how this estimate will be delivered.", 696, 118,
     {}, kContextRows},
    {L"Estimate details", L"Primary service, diagnosis, and scheduling information.", 827, 230,
     {}, kDetailRows, nullptr, {}, {300, 1030, 560, 18}},
    {L"Expected items and services", L"Add each expected item or service and its expected charge.",
     1070, 300, {}, {}, &kLines, kLineButtons, {315, 1323, 530, 18}},
    {L"Separately scheduled services",
     L"Optional related care that may require a separate estimate.", 1383, 245,
     {}, {}, &kSeparate, kSeparateButtons},
    {L"Provider / facility notes", L"Optional notes to include with the estimate.", 1641, 165,
     {}, kNotesRows},
    {L"Output", L"Preview the finished document or print the black-and-white paper version.",
     1819, 120, {}, {}, nullptr, kOutputButtons},
};
// clang-format on

}  // namespace

std::span<const SectionRow> FormSections() {
    return kSections;
}

std::span<const ButtonRow> BarButtons() {
    return kBarButtons;
}

const FieldRow& StatusField() {
    return kStatusRow;
}

}  // namespace tessaline
