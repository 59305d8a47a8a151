#include "store/catalogue.h"

#include <string_view>

#include "tests/support/distinct_estimate.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

namespace {

Bytes Text(std::string_view text) {
    return {text.begin(), text.end()};
}

// Each summary as "phone, last used, count;".
template <typename Summary, typename Block>
std::wstring List(const std::vector<Summary>& list, Block Summary::*block) {
    std::wstring told;
    for (const Summary& summary : list) {
        told += (told.empty() ? L"" : L" ") + (summary.*block).Phone + L", " +
                Told(summary.LastUsed) + L", " + Told(summary.EstimateCount) + L";";
    }
    return told;
}

// A store with the estimates that a rule's rows describe.
struct FilledStore : TemporaryStore {
    explicit FilledStore(const std::wstring& rule) {
        int count = 0;
        for (const Estimate& estimate : RecordsOf(L"catalogue.txt", rule)) {
            PutEstimate(std::to_wstring(++count) + L".gfe", estimate);
        }
    }
};

}  // namespace

TEST_CASE("A folder that is empty or missing gives empty lists") {
    const TemporaryStore store;
    LocalStore missing = store;
    missing.EstimatesFolder += L"\\missing";
    for (const LocalStore& folder : {LocalStore(store), missing}) {
        CHECK(LoadAllEstimates(folder).empty());
        CHECK(BuildPatientList(folder).empty());
        CHECK(BuildProviderList(folder).empty());
        CHECK_FALSE(HasLegacyFiles(folder));
    }
}

TEST_CASE("Estimates come newest first, each with the path of its file") {
    const TemporaryStore store;
    for (const auto& [name, seed] : std::map<std::wstring, int>{{L"b.gfe", 300},
                                                                {L"a.GFE", 900},
                                                                {L"c.gfe", -500},
                                                                {L"d.gfe", 600},
                                                                {L"e.gfx", 700}}) {
        store.PutEstimate(name, DistinctEstimate(seed));
    }
    std::wstring paths;
    for (const SavedEstimateEntry& entry : LoadAllEstimates(store)) {
        paths += entry.FilePath.substr(store->EstimatesFolder.size()) + L" ";
    }
    CHECK(paths == L"\\a.GFE \\d.gfe \\b.gfe \\c.gfe ");
    CHECK(LoadAllEstimates(store)[1].Record == DistinctEstimate(600));
}

TEST_CASE("What cannot be read is left out without a word") {
    const TemporaryStore store;
    for (const wchar_t* name : {L"good.gfe", L"locked.gfe", L"cut.gfe"}) {
        store.PutEstimate(name, DistinctEstimate());
    }
    Bytes cut = ReadFileBytes(store.Path(L"cut.gfe"));
    cut.resize(cut.size() / 2);
    store.Put(L"cut.gfe", cut);
    store.Put(L"empty.gfe", {});
    store.Put(L"three.gfe", Text("GFN"));
    store.Put(L"foreign.gfe", Text("PK\3\4 and so on"));
    store.Put(L"older.gfe", Text("GFE2 an older file whose key is not there"));
    EnsureFolder(store.Path(L"folder.gfe"));
    const FileOwner lock = store.Lock(L"locked.gfe");
    const std::vector<SavedEstimateEntry> entries = LoadAllEstimates(store);
    REQUIRE(entries.size() == 1);
    CHECK(entries[0].FilePath == store.Path(L"good.gfe"));
}

TEST_CASE("Older files are known by their first four bytes, readable or not") {
    const TemporaryStore store;
    store.PutEstimate(L"a.gfe", Estimate());
    store.Put(L"b.gfe", Text("GFE"));
    store.Put(L"c.gfe", Text("GFEDGFE2"));
    store.Put(L"d.txt", Text("GFE2"));
    EnsureFolder(store.Path(L"e.gfe"));
    CHECK_FALSE(HasLegacyFiles(store));
    store.Put(L"f.gfe", Text("GFE2"));
    CHECK(HasLegacyFiles(store));
}

TEST_CASE("Patients and providers are told apart, and each is shown as used last") {
    using Text = const std::wstring&;
    CheckRules(L"lists.txt",
               {{L"patients",
                 [](Text rule) {
                     return List(BuildPatientList(FilledStore(rule)), &PatientSummary::Patient);
                 }},
                {L"providers", [](Text rule) {
                     return List(BuildProviderList(FilledStore(rule)), &ProviderSummary::Provider);
                 }}});
    CHECK(LoadAllEstimates(FilledStore(L"same second")).size() == 2);
}
