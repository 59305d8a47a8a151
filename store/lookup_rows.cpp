#include "store/lookup_rows.h"

#include <initializer_list>
#include <string_view>

#include "model/dates.h"
#include "model/money.h"
#include "model/text.h"

namespace tessaline {
namespace {

constexpr ListColumn kPatientColumns[] = {
    {L"Patient", 220}, {L"DOB", 100}, {L"Phone", 130}, {L"Last Used", 140}, {L"GFEs", 70}};
constexpr ListColumn kProviderColumns[] = {{L"Provider / Facility", 240},
                                           {L"NPI", 120},
                                           {L"Phone", 130},
                                           {L"Location", 180},
                                           {L"GFEs", 70}};
constexpr ListColumn kEstimateColumns[] = {{L"Estimate", 160},        {L"Patient", 180},
                                           {L"Primary Service", 250}, {L"Total", 90},
                                           {L"Status", 90},           {L"Date", 100}};

// The fields that a search looks in, with single blanks between them.
std::wstring SearchText(std::initializer_list<std::wstring_view> fields) {
    std::wstring text;
    for (const std::wstring_view field : fields) {
        text += field;
        text += L' ';
    }
    text.pop_back();
    return ToLower(text);
}

LookupRow MakeRow(const PatientSummary& summary) {
    const PatientInfo& patient = summary.Patient;
    const std::wstring name = JoinName(patient);
    return {{name, patient.DateOfBirth, patient.Phone, FormatTimestamp(summary.LastUsed, false),
             std::to_wstring(summary.EstimateCount)},
            SearchText({name, patient.DateOfBirth, patient.Phone, patient.Email})};
}

LookupRow MakeRow(const ProviderSummary& summary) {
    const ProviderInfo& provider = summary.Provider;
    std::wstring location = provider.City;
    if (!provider.State.empty()) location += L", " + provider.State;
    return {{provider.OrganizationName, provider.Npi, provider.Phone, location,
             std::to_wstring(summary.EstimateCount)},
            SearchText({provider.OrganizationName, provider.Npi, provider.Phone, provider.Email,
                        provider.City})};
}

LookupRow MakeRow(const SavedEstimateEntry& entry) {
    const Estimate& estimate = entry.Record;
    const std::wstring name = JoinName(estimate.Patient);
    return {
        {estimate.EstimateId, name, estimate.PrimaryService,
         FormatMoney(TotalExpectedCharge(estimate)), estimate.EstimateStatus,
         FormatTimestamp(estimate.LastModifiedOn, false)},
        SearchText({estimate.EstimateId, name, estimate.PrimaryService, estimate.EstimateStatus})};
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
