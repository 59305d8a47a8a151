#include "ui/form/form_rows.h"

#include "ui/control_ids.h"
#include "ui/form/item_lists.h"

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

// Where a field stands on its line, and how wide its label is.
struct Column {
    int x;
    int width;
    int labelWidth = width;
};

constexpr Column kLeft = {kFieldsLeft, 275};
constexpr Column kMiddle = {316, 275};
constexpr Column kRight = {604, 275};
constexpr Column kWhole = {kFieldsLeft, 851};
constexpr Column kLeftHalf = {kFieldsLeft, 560};
constexpr Column kRightThird = {600, 279};
constexpr Column kRest = {316, 563};
constexpr Column kLeftChoice = {kFieldsLeft, 275, 270};
constexpr Column kMiddleChoice = {316, 275, 270};
constexpr Column kRightChoice = {604, 275, 270};

using TextMember = std::wstring& (*)(Estimate&);

constexpr FieldRow Edit(int id, const wchar_t* label, const Column& column, TextMember text) {
    const Box labelBox = {column.x, 0, column.labelWidth, 17};
    return {id, kEdit, label, labelBox, {column.x, 18, column.width, 25}, text};
}

constexpr FieldRow Choice(int id, const wchar_t* label, const Column& column, TextMember text,
                          Entries entries) {
    FieldRow row = Edit(id, label, column, text);
    row.kind = kChoice;
    row.fieldBox.height = kChoiceHeight;
    row.entries = entries;
    return row;
}

// clang-format off
const FieldRow kPatientRows[] = {
    Edit(kFirstNameEdit, L"First name *", kLeft, Of<&PatientInfo::FirstName>),
    Edit(kMiddleNameEdit, L"Middle name", kMiddle, Of<&PatientInfo::MiddleName>),
    Edit(kLastNameEdit, L"Last name *", kRight, Of<&PatientInfo::LastName>),
    Edit(kBirthDateEdit, L"Date of birth *", kLeft, Of<&PatientInfo::DateOfBirth>),
    Edit(kPatientPhoneEdit, L"Phone", kMiddle, Of<&PatientInfo::Phone>),
    Edit(kPatientEmailEdit, L"Email", kRight, Of<&PatientInfo::Email>),
    Edit(kPatientStreetEdit, L"Street / PO Box", kWhole, Of<&PatientInfo::Street>),
    Edit(kApartmentEdit, L"Apartment / Suite", kLeft, Of<&PatientInfo::Apartment>),
    Edit(kPatientCityEdit, L"City", kMiddle, Of<&PatientInfo::City>),
    Edit(kPatientStateEdit, L"State", kRight, Of<&PatientInfo::State>),
    Edit(kPatientZipEdit, L"ZIP", kLeft, Of<&PatientInfo::Zip>),
    Edit(kAccountEdit, L"Account # (last 4)", kMiddle, Of<&PatientInfo::AccountLast4>),
    Choice(kContactChoice, L"Contact preference", kRight,
           Of<&PatientInfo::ContactPreference>, kContactEntries),
};

const FieldRow kProviderRows[] = {
    Edit(kOrganizationEdit, L"Organization / provider name *", kLeftHalf,
          Of<&ProviderInfo::OrganizationName>),
    Edit(kProviderTypeEdit, L"Provider / facility type", kRightThird,
          Of<&ProviderInfo::ProviderType>),
    Edit(kProviderStreetEdit, L"Street address", kWhole, Of<&ProviderInfo::Street>),
    Edit(kProviderCityEdit, L"City", kLeft, Of<&ProviderInfo::City>),
    Edit(kProviderStateEdit, L"State", kMiddle, Of<&ProviderInfo::State>),
    Edit(kProviderZipEdit, L"ZIP", kRight, Of<&ProviderInfo::Zip>),
    Edit(kContactPersonEdit, L"Contact person", kLeft, Of<&ProviderInfo::ContactPerson>),
    Edit(kProviderPhoneEdit, L"Phone", kMiddle, Of<&ProviderInfo::Phone>),
    Edit(kProviderEmailEdit, L"Email", kRight, Of<&ProviderInfo::Email>),
    Edit(kNpiEdit, L"NPI", kLeft, Of<&ProviderInfo::Npi>),
    Edit(kTinEdit, L"TIN", kMiddle, Of<&ProviderInfo::Tin>),
    Edit(kWebsiteEdit, L"Website", kRight, Of<&ProviderInfo::Website>),
};

const FieldRow kContextRows[] = {
    Choice(kCoverageChoice, L"Patient status", kLeftChoice,
           Of<&Estimate::CoverageStatus>, kCoverageEntries),
    Choice(kTriggerChoice, L"Estimate triggered by", kMiddleChoice,
           Of<&Estimate::TriggerReason>, kTriggerEntries),
    Choice(kDeliveryChoice, L"Delivery method", kRightChoice,
           Of<&Estimate::DeliveryMethod>, kDeliveryEntries),
};

const FieldRow kDetailRows[] = {
    Edit(kEstimateIdEdit, L"Estimate ID", kLeft, Of<&Estimate::EstimateId>),
    Edit(kPrimaryServiceEdit, L"Primary service or item *", kRest, Of<&Estimate::PrimaryService>),
    Edit(kPrimaryDiagnosisEdit, L"Primary diagnosis", kLeft, Of<&Estimate::PrimaryDiagnosis>),
    Edit(kPrimaryDiagnosisCodeEdit, L"Primary diagnosis code", kMiddle,
          Of<&Estimate::PrimaryDiagnosisCode>),
    Edit(kSecondaryDiagnosisEdit, L"Secondary diagnosis", kRight,
          Of<&Estimate::SecondaryDiagnosis>),
    Edit(kSecondaryDiagnosisCodeEdit, L"Secondary diagnosis code", kLeft,
          Of<&Estimate::SecondaryDiagnosisCode>),
    Edit(kScheduledDatesEdit, L"Scheduled date(s) *", kRest, Of<&Estimate::ScheduledDates>),
    {kNotYetScheduledCheck, kCheck, L"Service/item is not yet scheduled", {},
     {28, 0, 250, 22}, nullptr, &Estimate::NotYetScheduled},
};

const FieldRow kNotesRows[] = {
    {kNotesEdit, kNotes, L"", {}, {28, 0, 851, 82}, Of<&Estimate::ProviderNotes>},
};

const FieldRow kStatusRow =
    {kStatusChoice, kChoice, L"ESTIMATE STATUS", {885, 8, 130, 16},
     {885, 25, 130, kChoiceHeight}, Of<&Estimate::EstimateStatus>, nullptr, kStatusEntries};

constexpr ListRow kLinesRow = {
    kLinesList, {28, 58, 851, 180}, LineColumns, &AppState::linesList};
constexpr ListRow kSeparateRow = {
    kSeparateList, {28, 58, 851, 125}, SeparateColumns, &AppState::separateList};

constexpr ButtonRow kBarButtons[] = {
    {kNewButton, L"New", {12, 16, 62, 38}},
    {kOpenButton, L"Open", {82, 16, 66, 38}},
    {kSaveButton, L"Save", {156, 16, 66, 38}, true},
    {kSampleButton, L"Sample", {595, 12, 76, 38}, true},
    {kAboutButton, L"About", {798, 12, 78, 38}},
};
constexpr ButtonRow kPatientLookup[] = {
    {kPatientLookupButton, L"Patient Lookup", {730, 12, 130, 30}},
};
constexpr ButtonRow kProviderLookup[] = {
    {kProviderLookupButton, L"Provider Lookup", {728, 12, 132, 30}},
};
constexpr ButtonRow kLineButtons[] = {
    {kAddLineButton, L"Add Item", {28, 247, 92, 30}},
    {kEditLineButton, L"Edit", {128, 247, 76, 30}},
    {kRemoveLineButton, L"Remove", {212, 247, 82, 30}},
};
constexpr ButtonRow kSeparateButtons[] = {
    {kAddSeparateButton, L"Add", {28, 194, 76, 30}},
    {kEditSeparateButton, L"Edit", {112, 194, 76, 30}},
    {kRemoveSeparateButton, L"Remove", {196, 194, 82, 30}},
};
constexpr ButtonRow kOutputButtons[] = {
    {kPreviewButton, L"Print Preview", {28, 62, 112, 36}},
    {kPrintButton, L"Print", {150, 62, 76, 36}, true},
};

const SectionRow kSections[] = {
    {L"Patient information", L"Who will receive the Good Faith Estimate.", 58, 65,
     kPatientLookup, kPatientRows, nullptr, {}, {kPatientMessage, {28, 42, 650, 18}}},
    {L"Estimating provider / facility",
     L"Provider information that will appear on the printed Good Faith Estimate.", 62, 91,
     kProviderLookup, kProviderRows, nullptr, {}, {kProviderMessage, {28, 52, 720, 18}}},
    {L"Estimate context", L"Coverage status and how this estimate will be delivered.", 55, 63,
     {}, kContextRows},
    {L"Estimate details", L"Primary service, diagnosis, and scheduling information.", 58, 28,
     {}, kDetailRows, nullptr, {}, {kDetailsMessage, {300, 1, 560, 18}}},
    {L"Expected items and services", L"Add each expected item or service and its expected charge.",
     58, 242, {}, {}, &kLinesRow, kLineButtons, {kItemsMessage, {315, 195, 530, 18}}},
    {L"Separately scheduled services",
     L"Optional related care that may require a separate estimate.", 58, 187,
     {}, {}, &kSeparateRow, kSeparateButtons},
    {L"Provider / facility notes", L"Optional notes to include with the estimate.", 58, 107,
     {}, kNotesRows},
    {L"Output", L"Preview the finished document or print the black-and-white paper version.",
     62, 58, {}, {}, nullptr, kOutputButtons},
};
// clang-format on

}  // namespace

std::span<const SectionRow> FormSections() {
    return kSections;
}

int LastLine(const SectionRow& section) {
    int last = section.firstLine;
    ForEachFieldOf(section, [&last](const FieldRow&, int line) { last = line; });
    return last;
}

int SectionHeight(const SectionRow& section) {
    return LastLine(section) + section.foot;
}

int CanvasHeight() {
    int bottom = 0;
    ForEachSection(
        [&bottom](const SectionRow& section, int top) { bottom = top + SectionHeight(section); });
    return bottom + kCanvasFoot;
}

std::span<const ButtonRow> BarButtons() {
    return kBarButtons;
}

const FieldRow& StatusField() {
    return kStatusRow;
}

}  // namespace tessaline
