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

// The fields that a search looks in, with single blanks between them. Each text is allocated once:
// allocating takes most of the time that ten thousand rows take.
std::wstring SearchText(std::initializer_list<std::wstring_view> fields) {
    std::size_t length = 0;
    for (const std::wstring_view field : fields) length += field.size() + 1;
    std::wstring text;
    text.reserve(length);
    for (const std::wstring_view field : fields) {
        text += field;
        text += L' ';
    }
    text.pop_back();
    return ToLower(std::move(text));
}

LookupRow MakeRow(const PatientSummary& summary) {
    const PatientInfo& patient = summary.Patient;
    LookupRow row{CellsOf(kPatientTable, summary), {}};
    const std::wstring& name = row.cells[0];
    row.searchText = SearchText({name, patient.DateOfBirth, patient.Phone, patient.Email});
    return row;
}

LookupRow MakeRow(const ProviderSummary& summary) {
    const ProviderInfo& provider = summary.Provider;
    return {CellsOf(kProviderTable, summary),
            SearchText({provider.OrganizationName, provider.Npi, provider.Phone, provider.Email,
                        provider.City})};
}

LookupRow MakeRow(const SavedEstimateEntry& entry) {
    const Estimate& estimate = entry.Record;
    LookupRow row{CellsOf(kEstimateTable, entry), {}};
    const std::wstring& name = row.cells[1];
    row.searchText =
        SearchText({estimate.EstimateId, name, estimate.PrimaryService, estimate.EstimateStatus});
    return row;
}

template <typename Element>
LookupRows MakeRows(const std::vector<Element>& elements) {
    LookupRows rows;
    rows.reserve(elements.size());
    for (const Element& element : elements) rows.push_back(MakeRow(element));
    return rows;
}

}  // namespace

LookupRows MakeLookupRows(const std::vector<PatientSummary>& patients) {
    return MakeRows(patients);
}

LookupRows MakeLookupRows(const std::vector<ProviderSummary>& providers) {
    return MakeRows(providers);
}

LookupRows MakeLookupRows(const std::vector<SavedEstimateEntry>& estimates) {
    return MakeRows(estimates);
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
