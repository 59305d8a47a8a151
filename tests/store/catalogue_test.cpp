#include "store/catalogue.h"

#include "tests/support/record_values.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

namespace {

// Each summary as "last used x count;". What is shown must be of the estimate used last, whose
// time is its phone number.
template <typename Summary, typename Block>
std::wstring List(const std::vector<Summary>& list, Block Summary::*block) {
    std::wstring told;
    for (const Summary& summary : list) {
        CHECK((summary.*block).Phone == Told(summary.LastUsed));
        told += Told(summary.LastUsed) + L"x" + Told(summary.EstimateCount) + L";";
    }
    return told;
}

}  // namespace

TEST_CASE("Estimates come newest first, each with its path, and what is none is left out") {
    const TemporaryStore store;
    for (const auto& [name, seed] : std::map<std::wstring, int>{{L"b.gfe", 300},
                                                                {L"a.GFE", 900},
                                                                {L"c.gfe", -500},
                                                                {L"d.gfe", 600},
                                                                {L"e.gfx", 700}}) {
        store.PutEstimate(name, DistinctEstimate(seed));
    }
    Bytes cut = ReadFileBytes(store.Path(L"d.gfe"));
    cut.resize(cut.size() / 2);
    store.Put(L"cut.gfe", cut);
    store.Put(L"short.gfe", Bytes{'G', 'F', 'E'});
    SecretBytes later = WriteNativeEstimate(DistinctEstimate());
    later[4] = 99;  // the version
    std::wstring error;
    store.Put(L"later.gfe", ProtectEstimateData(later, error));
    CHECK_FALSE(HasLegacyFiles(store));
    // The first, and readable or not.
    store.Put(L"0.gfe", Bytes{'G', 'F', 'E', '2'});
    CHECK(HasLegacyFiles(store));
    std::wstring names;
    for (const SavedEstimateEntry& entry : LoadAllEstimates(store)) {
        names += entry.FilePath.substr(store.EstimatesFolder.size()) + L" ";
    }
    CHECK(names == L"\\a.GFE \\d.gfe \\b.gfe \\c.gfe ");
    CHECK(LoadAllEstimates(store)[1].Record == DistinctEstimate(600));
}

TEST_CASE("Patients and providers are told apart, and each is shown as used last") {
    using Text = const std::wstring&;
    const TemporaryStore store;
    int files = 0;
    const auto put = [&](Text given, Text used) {
        auto estimate = RecordWith(given);
        estimate.Patient.Phone = estimate.Provider.Phone = used;
        estimate.LastModifiedOn = std::stoi(used);
        REQUIRE(store.PutEstimate(std::to_wstring(++files) + L".gfe", estimate));
    };
    CheckRules(L"catalogue.txt",
               {{L"patient",
                 [&](Text given, Text used) {
                     put(given, used);
                     return List(BuildPatientList(store), &PatientSummary::Patient);
                 }},
                {L"provider", [&](Text given, Text used) {
                     put(given, used);
                     return List(BuildProviderList(store), &ProviderSummary::Provider);
                 }}});
}
