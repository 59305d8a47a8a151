#include "store/catalogue.h"

#include "tests/support/record_values.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

TEST_CASE("Estimates come newest first, each with its path, and what is none is left out") {
    const TemporaryStore store;
    store.PutEstimate(L"b.gfe", DistinctEstimate(300));
    store.PutEstimate(L"a.GFE", DistinctEstimate(900));
    store.PutEstimate(L"c.gfe", DistinctEstimate(-500));
    store.PutEstimate(L"d.gfe", DistinctEstimate(600));
    store.PutEstimate(L"e.gfx", DistinctEstimate(700));
    store.Put(L"short.gfe", Bytes{'G', 'F', 'E'});
    CHECK_FALSE(HasLegacyFiles(store));
    // The first, and not readable.
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
    const TemporaryStore store;
    int files = 0;
    // Each summary is told as "last used x count;". What is shown must be of the estimate used
    // last, whose time is its phone number.
    const auto saveAndList = [&](auto build, auto block) {
        return [&, build, block](Cell given, Cell used) {
            auto estimate = RecordWith(given);
            estimate.Patient.Phone = estimate.Provider.Phone = used;
            estimate.LastModifiedOn = std::stoi(used);
            REQUIRE(store.PutEstimate(std::to_wstring(++files) + L".gfe", estimate));
            std::wstring told;
            for (const auto& summary : build(store)) {
                CHECK((summary.*block).Phone == Told(summary.LastUsed));
                told += Told(summary.LastUsed) + L"x" + Told(summary.EstimateCount) + L";";
            }
            return told;
        };
    };
    CheckRules(L"catalogue.txt",
               {{L"patient", saveAndList(BuildPatientList, &PatientSummary::Patient)},
                {L"provider", saveAndList(BuildProviderList, &ProviderSummary::Provider)}});
}
