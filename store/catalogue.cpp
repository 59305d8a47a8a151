#include "store/catalogue.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "model/text.h"
#include "platform/files.h"
#include "store/estimate_file.h"

namespace tessaline {
namespace {

constexpr wchar_t kEstimateFiles[] = L"*.gfe";

// What makes two patients one; none for a patient without a name, who is not listed.
std::optional<std::wstring> KeyOf(const PatientInfo& patient) {
    const std::wstring first = Trim(patient.FirstName);
    const std::wstring last = Trim(patient.LastName);
    if (first.empty() && last.empty()) return std::nullopt;
    return ToUpper(first + L"|" + last + L"|" + Trim(patient.DateOfBirth));
}

// What makes two providers one; none for a provider without a name, who is not listed.
std::optional<std::wstring> KeyOf(const ProviderInfo& provider) {
    const std::wstring name = Trim(provider.OrganizationName);
    if (name.empty()) return std::nullopt;
    const std::wstring npi = DigitsOnly(provider.Npi);
    if (!npi.empty()) return ToUpper(name) + L"|NPI:" + npi;
    return ToUpper(name + L"|" + Trim(provider.Street) + L"|" + Trim(provider.City) + L"|" +
                   Trim(provider.State));
}

// Folds the estimates whose blocks share a key into one summary each.
template <typename Summary, typename Block>
std::vector<Summary> Summarize(const LocalStore& store, Block Estimate::*source,
                               Block Summary::*target) {
    std::map<std::wstring, Summary> summaries;
    for (SavedEstimateEntry& entry : LoadAllEstimates(store)) {
        Block& block = entry.Record.*source;
        std::optional<std::wstring> key = KeyOf(block);
        if (!key) continue;
        const auto [found, isNew] = summaries.try_emplace(*std::move(key));
        Summary& summary = found->second;
        // The entries come newest first, so the first of a key is the one to show.
        if (isNew) {
            summary.*target = std::move(block);
            summary.LastUsed = entry.Record.LastModifiedOn;
        }
        ++summary.EstimateCount;
    }
    std::vector<Summary> list;
    list.reserve(summaries.size());
    for (auto& [key, summary] : summaries) list.push_back(std::move(summary));
    std::stable_sort(list.begin(), list.end(), [](const Summary& left, const Summary& right) {
        return left.LastUsed > right.LastUsed;
    });
    return list;
}

}  // namespace

std::vector<SavedEstimateEntry> LoadAllEstimates(const LocalStore& store) {
    std::vector<SavedEstimateEntry> entries;
    std::wstring droppedError;
    ForEachFile(store.EstimatesFolder, kEstimateFiles, [&](const std::wstring& name) {
        SavedEstimateEntry& entry = entries.emplace_back();
        entry.FilePath = store.EstimatesFolder + L"\\" + name;
        if (!LoadEstimateFile(store, entry.FilePath, entry.Record, droppedError)) {
            entries.pop_back();
        }
        return true;
    });
    std::sort(entries.begin(), entries.end(),
              [](const SavedEstimateEntry& left, const SavedEstimateEntry& right) {
                  return left.Record.LastModifiedOn > right.Record.LastModifiedOn;
              });
    return entries;
}

bool HasLegacyFiles(const LocalStore& store) {
    bool found = false;
    ForEachFile(store.EstimatesFolder, kEstimateFiles, [&](const std::wstring& name) {
        const Bytes content = ReadFileBytes(store.EstimatesFolder + L"\\" + name);
        found = KindOfEstimateFile(content) == EstimateFileKind::kLegacy;
        return !found;
    });
    return found;
}

std::vector<PatientSummary> BuildPatientList(const LocalStore& store) {
    return Summarize(store, &Estimate::Patient, &PatientSummary::Patient);
}

std::vector<ProviderSummary> BuildProviderList(const LocalStore& store) {
    return Summarize(store, &Estimate::Provider, &ProviderSummary::Provider);
}

}  // namespace tessaline
