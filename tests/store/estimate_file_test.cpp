#include "store/estimate_file.h"

#include "model/dates.h"
#include "tests/support/record_values.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

TEST_CASE("A saved estimate comes back, stamped") {
    const TemporaryStore store;
    const std::int64_t before = NowSeconds();
    Estimate estimate = DistinctEstimate();
    estimate.EstimateId = L"GFE:1/R1";
    Estimate saved = estimate;
    std::wstring path, error;
    REQUIRE(SaveEstimate(store, saved, path, error));
    CHECK(path == store.Path(L"GFE-1-R1.gfe"));
    CHECK(Differences(saved, estimate) == L"LastModifiedOn ");
    CHECK(saved.LastModifiedOn >= before);
    Estimate loaded;
    REQUIRE(LoadEstimateFile(store, path, loaded, error));
    CHECK(Differences(loaded, saved) == L"");
}

TEST_CASE("A save that fails has filled in what was missing all the same") {
    const TemporaryStore store;
    LocalStore blocked = store;
    blocked.EstimatesFolder = store.Path(L"file");
    REQUIRE(store.Put(L"file", Bytes(1)));
    Estimate blank;
    blank.CreatedOn = -5;
    std::wstring path, error;
    CHECK_FALSE(SaveEstimate(blocked, blank, path, error));
    CHECK(error == L"Could not write the estimate file.");
    CHECK(path == store.Path(L"file\\" + blank.EstimateId + L".gfe"));
    CHECK(blank.EstimateId.starts_with(L"GFE-"));
    CHECK(blank.RootEstimateId == blank.EstimateId);
    CHECK(blank.CreatedOn >= NowSeconds() - 10);
    CHECK(blank.LastModifiedOn == blank.CreatedOn);
}

TEST_CASE("Each file that is no estimate has its message") {
    const TemporaryStore store;
    const auto load = [&store](ByteView content) {
        Estimate estimate;
        std::wstring error;
        store.Put(L"a.gfe", content);
        CHECK_FALSE(LoadEstimateFile(store, store.Path(L"a.gfe"), estimate, error));
        // What follows is the system's.
        return error.substr(0, error.find(L": "));
    };
    CheckRules(L"files.txt", {{L"file", [&](const std::wstring& content) {
                                   return load(Bytes(content.begin(), content.end()));
                               }}});
    std::wstring error;
    CHECK(load(ProtectEstimateData(Bytes(300), error)) ==
          L"The estimate file is not a native GFE file.");
}
