#include "store/estimate_file.h"

#include "model/dates.h"
#include "tests/support/record_values.h"
#include "tests/support/stand_in.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

TEST_CASE("A saved estimate comes back, stamped") {
    const TemporaryStore store;
    const std::int64_t before = NowSeconds();
    Estimate estimate = DistinctEstimate(), loaded;
    estimate.EstimateId = L"GFE:1/R1";
    Estimate saved = estimate;
    std::wstring path, error;
    REQUIRE(SaveEstimate(store, saved, path, error));
    CHECK(path == store.Path(L"GFE-1-R1.gfe"));
    CHECK(Differences(saved, estimate) == L"LastModifiedOn ");
    CHECK(saved.LastModifiedOn >= before);
    REQUIRE(LoadEstimateFile(store, path, loaded, error));
    CHECK(Differences(loaded, saved) == L"");
}

TEST_CASE("A save that fails has filled in what was missing all the same") {
    TemporaryStore store;
    REQUIRE(store.Put(L"file", Bytes(1)));
    store.EstimatesFolder += L"\\file";
    Estimate blank;
    blank.CreatedOn = -5;
    std::wstring path, error;
    CHECK_FALSE(SaveEstimate(store, blank, path, error));
    CHECK(error == L"Could not write the estimate file.");
    CHECK(path == store.Path(blank.EstimateId + L".gfe"));
    CHECK(blank.EstimateId.starts_with(L"GFE-"));
    CHECK(blank.RootEstimateId == blank.EstimateId);
    CHECK(blank.CreatedOn >= NowSeconds() - 10);
    CHECK(blank.LastModifiedOn == blank.CreatedOn);
}

TEST_CASE(
    "A file of the older edition is moved aside unchanged before a save, or nothing is done") {
    using FileTime = std::filesystem::file_time_type;
    const TemporaryStore store;
    const std::wstring path = store.Path(L"GFE-1.gfe");
    const std::wstring aside = store.BaseFolder + L"\\Older edition";
    const Bytes older = TestData(L"legacy-estimate.gfe");
    const FileTime time = std::chrono::floor<std::chrono::days>(FileTime::clock::now());
    Estimate estimate = RecordWith(L"EstimateId: GFE-1");
    const auto save = [&] {
        std::wstring written, error;
        const bool isSaved = SaveEstimate(store, estimate, written, error);
        CHECK(error == (isSaved ? L"" : L"Could not write the estimate file."));
        return isSaved;
    };
    const auto put = [&] {
        REQUIRE(store.Put(L"GFE-1.gfe", older));
        std::filesystem::last_write_time(path, time);
    };
    const auto isKept = [&](const std::wstring& file) {
        return ReadFileBytes(file) == older && std::filesystem::last_write_time(file) == time;
    };
    REQUIRE(WriteFileBytes(aside, Bytes{1}));  // a file where the folder should be
    put();
    CHECK_FALSE(save());
    CHECK(isKept(path));
    std::filesystem::remove(aside);
    for (const DWORD share : {0UL, DWORD{FILE_SHARE_READ}, DWORD{FILE_SHARE_WRITE}}) {
        const FileOwner lock = store.Lock(L"GFE-1.gfe", share);
        CHECK_FALSE(save());
    }
    CHECK(isKept(path));
    for (const wchar_t* const name : {L"\\GFE-1.gfe", L"\\GFE-1 (2).gfe", L"\\GFE-1 (3).gfe"}) {
        put();
        CHECK(save());
        CHECK(isKept(aside + name));
    }
    // A native file stays where it is, also an unfinished one.
    for (const std::size_t size : {0U, 4U}) {
        REQUIRE(store.Put(L"GFE-1.gfe", Bytes(size, 'G')));
        CHECK(save());
    }
    CHECK_FALSE(std::filesystem::exists(aside + L"\\GFE-1 (4).gfe"));
}

template <typename Description>
BOOL WINAPI Refuse(DATA_BLOB*, Description, DATA_BLOB*, PVOID, CRYPTPROTECT_PROMPTSTRUCT*, DWORD,
                   DATA_BLOB*) {
    SetLastError(0xE1234567);
    return FALSE;
}

TEST_CASE("What Windows does not protect is not saved, and what it does not open is not loaded") {
    const TemporaryStore store;
    REQUIRE(store.PutEstimate(L"a.gfe", DistinctEstimate()));
    const StandIn protect(__imp_CryptProtectData, Refuse<LPCWSTR>);
    const StandIn unprotect(__imp_CryptUnprotectData, Refuse<LPWSTR*>);
    Estimate estimate;
    std::wstring path, error;
    CHECK_FALSE(SaveEstimate(store, estimate, path, error));
    CHECK(error == L"Could not protect local estimate data: Unknown error");
    CHECK_FALSE(LoadEstimateFile(store, store.Path(L"a.gfe"), estimate, error));
    CHECK(error == L"Could not decrypt this estimate for the current Windows user: Unknown error");
    CHECK(std::filesystem::remove(store.Path(L"a.gfe")));
    CHECK(std::filesystem::is_empty(store.EstimatesFolder));
}

TEST_CASE("Each file that is no estimate has its message") {
    const TemporaryStore store;
    std::wstring error;
    const auto load = [&](const Bytes& content) {
        Estimate estimate;
        store.Put(L"a.gfe", content);
        CHECK_FALSE(LoadEstimateFile(store, store.Path(L"a.gfe"), estimate, error));
        return error.substr(0, error.find(L": "));  // the system's words follow
    };
    const auto loadText = [&](const std::wstring& content) {
        return load(Bytes(content.begin(), content.end()));
    };
    CheckRules(L"files.txt", {{L"file", loadText}});
    CHECK(load(ProtectEstimateData(Bytes(300), error)) ==
          L"The estimate file is not a native GFE file.");
}
