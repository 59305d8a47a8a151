#include "ui/commands/sample_estimate.h"

#include "model/new_estimate.h"
#include "model/text.h"
#include "platform/message_box.h"
#include "ui/app_state.h"
#include "ui/form/binding.h"

namespace tessaline {
namespace {

PatientInfo SamplePatient() {
    PatientInfo patient;
    patient.FirstName = L"Jordan";
    patient.MiddleName = L"A.";
    patient.LastName = L"Miller";
    patient.DateOfBirth = L"04/18/1988";
    patient.AccountLast4 = L"4521";
    patient.Street = L"1250 University Avenue";
    patient.Apartment = L"Apt 4B";
    patient.City = L"Madison";
    patient.State = L"WI";
    patient.Zip = L"53705";
    patient.Phone = L"(608) 555-0199";
    patient.Email = L"jordan.miller@example.com";
    patient.ContactPreference = L"Email";
    return patient;
}

ProviderInfo SampleProvider() {
    ProviderInfo provider;
    provider.OrganizationName = L"Sample Medical Clinic";
    provider.ProviderType = L"Outpatient physician practice";
    provider.Street = L"200 Health Avenue";
    provider.City = L"Madison";
    provider.State = L"WI";
    provider.Zip = L"53703";
    provider.ContactPerson = L"Billing Office";
    provider.Phone = L"(608) 555-0100";
    provider.Email = L"billing@clinic.example";
    provider.Npi = L"1234567890";
    provider.Tin = L"39-1234567";
    provider.Website = L"www.clinic.example";
    return provider;
}

ServiceLine SampleLine(const wchar_t* item, const wchar_t* address, const wchar_t* code,
                       double charge) {
    return {item, address, L"R05.3", L"CPT", code, 1, charge};
}

}  // namespace

Estimate SampleEstimate() {
    Estimate sample = NewEstimate();
    sample.EstimateId = L"DEMO-GFE-2026-001";
    sample.RootEstimateId = sample.EstimateId;
    sample.Patient = SamplePatient();
    sample.Provider = SampleProvider();
    sample.CoverageStatus = L"Uninsured";
    sample.TriggerReason = L"Scheduled care";
    sample.DeliveryMethod = L"Email";
    sample.PrimaryService = L"Outpatient evaluation with diagnostic testing";
    sample.PrimaryDiagnosis = L"Chronic cough";
    sample.PrimaryDiagnosisCode = L"R05.3";
    sample.ScheduledDates = L"09/28/2026";
    sample.ProviderNotes =
        L"SAMPLE / DEMONSTRATION DATA \u2014 not for patient use. Final charges may vary if the "
        L"treatment plan changes or additional medically necessary services are required.";
    sample.Lines = {
        SampleLine(L"New patient office visit", L"Sample Medical Clinic", L"99204", 325.00),
        SampleLine(L"Chest X-ray, 2 views", L"Sample Imaging", L"71046", 252.00),
        SampleLine(L"Complete blood count", L"Sample Medical Clinic", L"85025", 58.00),
    };
    sample.SeparateItems = {
        {L"Pulmonology consultation, if ordered",
         L"If your clinician orders a specialist consultation, contact the specialist for a "
         L"separate Good Faith Estimate before the visit."},
        {L"Additional advanced imaging, if medically necessary",
         L"A separate estimate will be provided if CT or other advanced imaging is later "
         L"scheduled."},
    };
    return sample;
}

bool IsSampleEstimate(const Estimate& estimate) {
    return estimate.EstimateId.starts_with(L"DEMO-") ||
           ContainsNoCase(estimate.ProviderNotes, L"SAMPLE / DEMONSTRATION");
}

void LoadSample() {
    AppState& app = *App();
    if (!AskYesNo(app.mainWindow, L"Replace the current form with sample data?", L"Sample"))
        return;
    BindToForm(SampleEstimate());
    app.CurrentFilePath.clear();
    MarkDirty();
    SetStatusLine(L"Sample data \u2014 not saved");
}

}  // namespace tessaline
