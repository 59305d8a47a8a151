#include "store/estimate_file.h"

#include "model/dates.h"
#include "tests/support/distinct_estimate.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

namespace {

struct Outcome {
    bool done;
    Estimate estimate;
    std::wstring path, error;
};

Outcome Save(const LocalStore& store, const Estimate& estimate) {
    Outcome outcome{false, estimate, L"", L""};
    outcome.done = SaveEstimate(store, outcome.estimate, outcome.path, outcome.error);
    return outcome;
}

Outcome Load(const LocalStore& store, const std::wstring& path) {
    Outcome outcome{false, {}, path, L""};
    outcome.done = LoadEstimateFile(store, path, outcome.estimate, outcome.error);
    return outcome;
}

Estimate WithId(const wchar_t* id) {
    Estimate estimate = DistinctEstimate();
    estimate.EstimateId = id;
    return estimate;
}

}  // namespace

TEST_CASE("A saved estimate comes back, stamped") {
    const TemporaryStore store;
    const std::int64_t before = NowSeconds();
    const Outcome saved = Save(store, DistinctEstimate());
    REQUIRE(saved.done);
    CHECK(Differences(saved.estimate, DistinctEstimate()) == L"LastModifiedOn ");
    CHECK(saved.estimate.LastModifiedOn >= before);
    const Outcome loaded = Load(store, saved.path);
    REQUIRE(loaded.done);
    CHECK(Differences(loaded.estimate, saved.estimate) == L"");
}

TEST_CASE("What a first save finds missing it fills in, the folders too") {
    const TemporaryStore store;
    std::filesystem::remove_all(store->BaseFolder);
    Estimate blank;
    blank.CreatedOn = -5;
    const Outcome saved = Save(store, blank);
    REQUIRE(saved.done);
    CHECK(saved.estimate.EstimateId.starts_with(L"GFE-"));
    CHECK(saved.estimate.RootEstimateId == saved.estimate.EstimateId);
    CHECK(saved.estimate.CreatedOn == saved.estimate.LastModifiedOn);
    CHECK(saved.path == store.Path(saved.estimate.EstimateId + L".gfe"));
    CHECK(std::filesystem::exists(saved.path));
}

TEST_CASE("Identifiers that clean to one name share a file, and the later save stays") {
    const TemporaryStore store;
    CHECK(Save(store, WithId(L"GFE:1/R1")).path == store.Path(L"GFE-1-R1.gfe"));
    Estimate shorter;
    shorter.EstimateId = L"GFE-1?R1";
    CHECK(Save(store, shorter).done);
    CHECK(Load(store, store.Path(L"GFE-1-R1.gfe")).estimate.EstimateId == L"GFE-1?R1");
}

TEST_CASE("A file that cannot be written fails the save, which keeps its stamps") {
    const TemporaryStore store;
    LocalStore blocked = store;
    blocked.EstimatesFolder = store.Path(L"file");
    EnsureFolder(store.Path(L"a.gfe"));
    store.Put(L"file", Bytes(1));
    for (const LocalStore& folder : {LocalStore(store), blocked}) {
        const Outcome saved = Save(folder, WithId(L"a"));
        CHECK_FALSE(saved.done);
        CHECK(saved.error == L"Could not write the estimate file.");
        CHECK(saved.path == folder.EstimatesFolder + L"\\a.gfe");
        CHECK(saved.estimate.LastModifiedOn >= NowSeconds() - 10);
    }
}

TEST_CASE("Each file that is no estimate has its message") {
    const TemporaryStore store;
    const std::wstring path = store.Path(L"a.gfe");
    const auto file = [&](const std::wstring& content) {
        store.Put(L"a.gfe", Bytes(content.begin(), content.end()));
        const Outcome loaded = Load(store, path);
        CHECK_FALSE(loaded.done);
        // What follows is the system's.
        return loaded.error.substr(0, loaded.error.find(L": "));
    };
    CheckRules(L"files.txt", {{L"file", file}});
    std::wstring error;
    store.Put(L"a.gfe", ProtectEstimateData(Bytes(300), error));
    CHECK(Load(store, path).error == L"The estimate file is not a native GFE file.");
}

TEST_CASE("A file that is missing, a folder or locked cannot be read") {
    const TemporaryStore store;
    store.PutEstimate(L"a.gfe", Estimate());
    const FileOwner lock = store.Lock(L"a.gfe");
    for (const std::wstring& path :
         {store.Path(L"missing.gfe"), store->EstimatesFolder, store.Path(L"a.gfe")}) {
        CHECK(Load(store, path).error == L"Could not read the estimate file.");
    }
}
