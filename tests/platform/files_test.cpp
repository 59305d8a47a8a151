#include "platform/files.h"

#include "platform/system_error.h"
#include "tests/support/readable.h"
#include "tests/support/stand_in.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

TEST_CASE("A file is replaced as a whole") {
    const TemporaryStore store;
    const std::wstring path = store.BaseFolder + L"\\new\\folders\\a";
    for (const Bytes& content : {Bytes(100'000, 7), Bytes{1, 0, 26, 13, 10}, Bytes()}) {
        REQUIRE(WriteFileBytes(path, content));
        CHECK(ReadFileBytes(path) == content);
    }
}

TEST_CASE("A disk without flushing has the file all the same, a failing one does not") {
    static DWORD code = 0;
    const TemporaryStore store;
    const StandIn flush(__imp_FlushFileBuffers, [](HANDLE) {
        SetLastError(code);
        return FALSE;
    });
    for (const int given : {ERROR_INVALID_FUNCTION, ERROR_NOT_SUPPORTED, ERROR_DISK_FULL}) {
        code = static_cast<DWORD>(given);
        CHECK(store.Put(L"a", Bytes{1}) == (given != ERROR_DISK_FULL));
    }
}

TEST_CASE("A file that the disk takes only a part of is not written") {
    static BOOL succeeds = FALSE;
    const TemporaryStore store;
    const StandIn write(__imp_WriteFile, [](HANDLE, LPCVOID, DWORD, LPDWORD written, auto) {
        *written = succeeds ? 1 : 2;
        return succeeds;
    });
    for (const BOOL result : {FALSE, TRUE}) {
        succeeds = result;
        CHECK_FALSE(store.Put(L"a", Bytes(2)));
    }
}

TEST_CASE("A file of more than 256 MB is not read") {
    const TemporaryStore store;
    store.Put(L"a", Bytes{1});
    std::filesystem::resize_file(store.Path(L"a"), 256 * 1024 * 1024 + 1);
    CHECK(ReadFileBytes(store.Path(L"a")).empty());
}

TEST_CASE("A file that others have open is read and replaced all the same") {
    const TemporaryStore store;
    store.Put(L"a", Bytes{1});
    const FileOwner open = store.Lock(L"a", FILE_SHARE_READ | FILE_SHARE_WRITE);
    REQUIRE(open.Get() != INVALID_HANDLE_VALUE);
    CHECK(ReadFileBytes(store.Path(L"a")) == Bytes{1});
    CHECK(store.Put(L"a", Bytes{2}));
}

TEST_CASE("A folder is made with all that is missing above it, but not below a file") {
    const TemporaryStore store;
    CHECK(EnsureFolder(store.Path(L"a\\b/c\\")));
    CHECK(EnsureFolder(store.Path(L"a\\b\\c")));
    CHECK(std::filesystem::is_directory(store.Path(L"a\\b\\c")));
    store.Put(L"file", Bytes{1});
    CHECK_FALSE(EnsureFolder(store.Path(L"file")));
    CHECK_FALSE(EnsureFolder(store.Path(L"file\\below")));
}

TEST_CASE("A listing has the files that match, and no folder, until the visitor has enough") {
    const TemporaryStore store;
    for (const wchar_t* name : {L"b", L"a1", L"a2", L"a3"}) store.Put(name, Bytes{1});
    EnsureFolder(store.Path(L"a0"));
    std::wstring seen;
    const auto visit = [&seen](const std::wstring& name) {
        seen += name + L" ";
        return seen != L"a1 a2 ";
    };
    ForEachFile(store.Path(L"missing"), L"*", visit);
    ForEachFile(store.EstimatesFolder, L"a*", visit);
    CHECK(seen == L"a1 a2 ");
}

TEST_CASE("Error codes have the system's text on one line, or none") {
    const std::wstring text = SystemErrorText(ERROR_ACCESS_DENIED);
    CHECK_FALSE(text.empty());
    CHECK(text != L"Unknown error");
    CHECK(text.find_last_not_of(L" \r\n") == text.size() - 1);
    CHECK(SystemErrorText(0xE1234567) == L"Unknown error");
}
