#include "store/lookup_rows.h"

#include <initializer_list>
#include <string_view>
#include <utility>

#include "model/dates.h"
#include "model/money.h"
#include "model/text.h"

namespace tessaline {
namespace {

std::wstring PlaceOf(const ProviderInfo& provider) {
    return provider.State.empty() ? provider.City : provider.City + L", " + provider.State;
}

// clang-format off
constexpr TableColumn<PatientSummary> kPatientTable[] = {
    {{L"Patient", 220}, [](const PatientSummary& s) { return JoinName(s.Patient); }},
    {{L"DOB", 100}, [](const PatientSummary& s) { return s.Patient.DateOfBirth; }},
    {{L"Phone", 130}, [](const PatientSummary& s) { return s.Patient.Phone; }},
    {{L"Last Used", 140},
     [](const PatientSummary& s) { return FormatTimestamp(s.LastUsed, false); }},
    {{L"GFEs", 70}, [](const PatientSummary& s) { return std::to_wstring(s.EstimateCount); }},
};

constexpr TableColumn<ProviderSummary> kProviderTable[] = {
    {{L"Provider / Facility", 240},
     [](const ProviderSummary& s) { return s.Provider.OrganizationName; }},
    {{L"NPI", 120}, [](const ProviderSummary& s) { return s.Provider.Npi; }},
    {{L"Phone", 130}, [](const ProviderSummary& s) { return s.Provider.Phone; }},
    {{L"Location", 180}, [](const ProviderSummary& s) { return PlaceOf(s.Provider); }},
    {{L"GFEs", 70}, [](const ProviderSummary& s) { return std::to_wstring(s.EstimateCount); }},
};

constexpr TableColumn<SavedEstimateEntry> kEstimateTable[] = {
    {{L"Estimate", 160}, [](const SavedEstimateEntry& e) { return e.Record.EstimateId; }},
    {{L"Patient", 180}, [](const SavedEstimateEntry& e) { return JoinName(e.Record.Patient); }},
    {{L"Primary Service", 250},
     [](const SavedEstimateEntry& e) { return e.Record.PrimaryService; }},
    {{L"Total", 90},
     [](const SavedEstimateEntry& e) { return FormatMoney(TotalExpectedCharge(e.Record)); }},
    {{L"Status", 90}, [](const SavedEstimateEntry& e) { return e.Record.EstimateStatus; }},
    {{L"Date", 100},
     [](const SavedEstimateEntry& e) { return FormatTimestamp(e.Record.LastModifiedOn, false); }},
};
// clang-format on

constexpr auto kPatientColumns = ColumnsOf(kPatientTable);
constexpr auto kProviderColumns = ColumnsOf(kProviderTable);
constexpr auto kEstimateColumns = ColumnsOf(kEstimateTable);

// The fields that a search looks in, with single blanks between them, in lower case.
std::wstring Joined(std::initializer_list<std::wstring_view> fields) {
    std::wstring text;
    for (const std::wstring_view field : fields) {
        text += field;
        text += L' ';
    }
    text.pop_back();
    return ToLower(std::move(text));
}

}  // namespace

std::vector<std::wstring> LookupCells(const PatientSummary& summary) {
    return CellsOf(kPatientTable, summary);
}

std::vector<std::wstring> LookupCells(const ProviderSummary& summary) {
    return CellsOf(kProviderTable, summary);
}

std::vector<std::wstring> LookupCells(const SavedEstimateEntry& entry) {
    return CellsOf(kEstimateTable, entry);
}

std::wstring SearchText(const PatientSummary& summary) {
    const PatientInfo& patient = summary.Patient;
    return Joined({JoinName(patient), patient.DateOfBirth, patient.Phone, patient.Email});
}

std::wstring SearchText(const ProviderSummary& summary) {
    const ProviderInfo& provider = summary.Provider;
    return Joined(
        {provider.OrganizationName, provider.Npi, provider.Phone, provider.Email, provider.City});
}

std::wstring SearchText(const SavedEstimateEntry& entry) {
    const Estimate& estimate = entry.Record;
    return Joined({estimate.EstimateId, JoinName(estimate.Patient), estimate.PrimaryService,
                   estimate.EstimateStatus});
}

std::span<const ListColumn> PatientColumns() {
    return kPatientColumns;
}

std::span<const ListColumn> ProviderColumns() {
    return kProviderColumns;
}

std::span<const ListColumn> EstimateColumns() {
    return kEstimateColumns;
}

}  // namespace tessaline
