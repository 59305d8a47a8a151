#include "ui/form/validation_marks.h"

#include <array>
#include <set>
#include <string>
#include <utility>

#include "model/validation.h"
#include "platform/controls.h"
#include "platform/local_today.h"
#include "ui/app_state.h"
#include "ui/control_ids.h"
#include "ui/form/binding.h"

namespace tessaline {
namespace {

// One field's rule: returns the message of a failure, or an empty text.
struct RuleRow {
    int control;
    MessageSection section;
    bool onlyForOutput;
    std::wstring (*check)(const Estimate& estimate, bool forOutput);
};

std::wstring Required(const std::wstring& text, const wchar_t* message) {
    return text.empty() ? message : L"";
}

// The order decides which failure of a section is shown.
// clang-format off
constexpr RuleRow kRules[] = {
    {kFirstNameEdit, kPatientMessage, true, [](const Estimate& e, bool) {
         return Required(e.Patient.FirstName, L"First name is required."); }},
    {kLastNameEdit, kPatientMessage, true, [](const Estimate& e, bool) {
         return Required(e.Patient.LastName, L"Last name is required."); }},
    {kBirthDateEdit, kPatientMessage, false, [](const Estimate& e, bool forOutput) {
         return CheckDateOfBirth(e.Patient.DateOfBirth, forOutput, LocalToday()); }},
    {kPatientEmailEdit, kPatientMessage, false, [](const Estimate& e, bool) {
         return CheckEmail(e.Patient.Email); }},
    {kPatientZipEdit, kPatientMessage, false, [](const Estimate& e, bool) {
         return CheckZip(e.Patient.Zip); }},
    {kAccountEdit, kPatientMessage, false, [](const Estimate& e, bool) {
         return CheckAccountLast4(e.Patient.AccountLast4); }},
    {kOrganizationEdit, kProviderMessage, true, [](const Estimate& e, bool) {
         return Required(e.Provider.OrganizationName,
                         L"Provider / facility name is required."); }},
    {kProviderEmailEdit, kProviderMessage, false, [](const Estimate& e, bool) {
         return CheckEmail(e.Provider.Email); }},
    {kProviderZipEdit, kProviderMessage, false, [](const Estimate& e, bool) {
         return CheckZip(e.Provider.Zip); }},
    {kNpiEdit, kProviderMessage, false, [](const Estimate& e, bool) {
         return CheckNpi(e.Provider.Npi); }},
    {kPrimaryServiceEdit, kDetailsMessage, true, [](const Estimate& e, bool) {
         return Required(e.PrimaryService, L"Primary service or item is required."); }},
    {kScheduledDatesEdit, kDetailsMessage, true, [](const Estimate& e, bool) {
         return e.NotYetScheduled ? std::wstring() : Required(e.ScheduledDates,
             L"Enter scheduled date(s), or mark the service as not yet scheduled."); }},
};
// clang-format on

}  // namespace

bool Validate(bool forOutput) {
    ReadForm();
    AppState& app = *App();
    std::set<HWND> invalid;
    std::array<std::wstring, kMessageSections> messages;
    for (const RuleRow& rule : kRules) {
        if (rule.onlyForOutput && !forOutput) continue;
        std::wstring failure = rule.check(app.currentEstimate, forOutput);
        if (failure.empty()) continue;
        invalid.insert(ControlById(rule.control));
        if (messages[rule.section].empty()) messages[rule.section] = std::move(failure);
    }
    if (forOutput) messages[kItemsMessage] = ValidateEstimate(app.currentEstimate, LocalToday());
    // What looks as before is not painted again: the form would flash with every automatic save.
    bool isNew = app.invalidControls != invalid;
    app.invalidControls.swap(invalid);
    for (int section = 0; section < kMessageSections; ++section) {
        const std::wstring& message = messages[static_cast<std::size_t>(section)];
        if (message == WindowText(app.sectionMessage[section])) continue;
        SetSectionMessage(section, message);
        isNew = true;
    }
    if (isNew) RedrawForm();
    return app.invalidControls.empty() && messages[kItemsMessage].empty();
}

}  // namespace tessaline
