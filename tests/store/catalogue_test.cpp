#include "store/catalogue.h"

#include <cstdio>
#include <random>

#include "store/lookup_rows.h"
#include "store/revision.h"
#include "tests/support/record_values.h"
#include "tests/support/stand_in.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

namespace {

// The file or its front, perhaps an end of it after that, and some bits of this flipped.
Bytes Damaged(const Bytes& whole, std::mt19937& random) {
    const auto place = [&] { return whole.begin() + random() % (whole.size() + 1); };
    Bytes bytes(whole.begin(), random() % 2 == 0 ? whole.end() : place());
    if (random() % 2 == 0) bytes.insert(bytes.end(), place(), whole.end());
    for (auto flips = bytes.empty() ? 0 : random() % 5; flips > 0; --flips) {
        bytes[random() % bytes.size()] ^= static_cast<std::uint8_t>(1U << random() % 8);
    }
    return bytes;
}

// The rows of all lists, and the number of the family's next revision. It has no sign here, since
// the number after the largest is the smallest.
std::pair<std::multiset<RowCells>, std::uint32_t> Look(const LocalStore& store) {
    std::multiset<RowCells> rows;
    const auto add = [&rows](const auto& list) {
        for (const auto& element : list) {
            rows.insert(LookupCells(element));
            rows.insert(RowCells{SearchText(element)});
        }
    };
    add(LoadAllEstimates(store));
    add(BuildPatientList(store));
    add(BuildProviderList(store));
    return {rows, MakeRevision(store, RecordWith(L"EstimateId: root")).RevisionNumber};
}

}  // namespace

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

TEST_CASE("A damaged file is one row of each list at most, and all others are as without it") {
    const unsigned seed = Setting(L"TESSALINE_SEED", 20260307);
    const unsigned rounds = Setting(L"TESSALINE_ROUNDS", 300);
    std::printf("TESSALINE_SEED=%u TESSALINE_ROUNDS=%u\n", seed, rounds);
    std::fflush(stdout);
    const StandIn opened(__imp_CryptUnprotectData, CopyBlob<LPWSTR*>);
    const StandIn quick(__imp_FlushFileBuffers, [](HANDLE) { return TRUE; });
    const TemporaryStore store;
    std::map<std::wstring, Bytes> files{{L"older.gfe", TestData(L"legacy-estimate.gfe")},
                                        {L"foreign.gfe", TestData(L"payload-v1-full.bin")},
                                        {L"empty.gfe", {}}};
    for (const wchar_t* const status : {L"Draft", L"Issued", L"Revised", L"Cancelled"}) {
        Estimate estimate = DistinctEstimate(100 * static_cast<int>(files.size()));
        estimate.EstimateStatus = status;
        estimate.RootEstimateId = L"root";
        const SecretBytes payload = WriteNativeEstimate(estimate);
        Bytes& content = files[status + std::wstring(L".gfe")] = {'G', 'F', 'N', '1'};
        content.insert(content.end(), payload.begin(), payload.end());
    }
    for (const auto& [name, content] : files) REQUIRE(store.Put(name, content));
    REQUIRE(store.Put(L"..\\data.key", TestData(L"legacy-data.key")));
    REQUIRE(store.Put(L"folder.gfe\\within.gfe", files[L"older.gfe"]));
    std::map<std::wstring, decltype(Look(store))> without;
    for (const auto& [name, content] : files) {
        DeleteFileW(store.Path(name).c_str());
        without[name] = Look(store);
        REQUIRE(store.Put(name, content));
    }
    std::mt19937 random(seed);
    for (unsigned round = 0; round < rounds; ++round) {
        const auto& [name, content] = *std::next(files.begin(), round % files.size());
        CAPTURE(round);
        REQUIRE(store.Put(name, Damaged(content, random)));
        const auto& [others, number] = without[name];
        const auto [rows, highest] = Look(store);
        CHECK(std::ranges::includes(rows, others));
        CHECK(rows.size() <= others.size() + 6);
        CHECK(highest >= number);
        REQUIRE(store.Put(name, content));
    }
}
