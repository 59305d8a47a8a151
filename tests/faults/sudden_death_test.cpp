// A program that is killed while it saves. Played by sudden_death_test.sh, again and again.
#include <windows.h>

#include <cstdio>

#include "platform/files.h"
#include "store/estimate_file.h"
#include "tests/support/readable.h"
#include "tests/support/record_values.h"

using namespace tessaline;

TEST_CASE("What was saved before a sudden death loads" * doctest::skip()) {
    const LocalStore store = LocalStoreBelow(_wgetenv(L"TESSALINE_FOLDER"));
    const std::wstring log = store.BaseFolder + L"\\saving";
    const std::wstring lastName = FromUtf8(ReadFileBytes(log));
    std::wstring path, error;
    int loaded = 0, torn = 0;
    ForEachFile(store.EstimatesFolder, L"*.gfe", [&](const std::wstring& name) {
        Estimate estimate;
        path = store.EstimatesFolder + L"\\" + name;
        if (LoadEstimateFile(store, path, estimate, error)) return ++loaded > 0;
        REQUIRE(name == lastName);
        return DeleteFileW(path.c_str()) != 0 && ++torn > 0;
    });
    std::printf("%d loaded, %d torn\n", loaded, torn);
    std::fflush(stdout);
    for (int number = 1; _wgetenv(L"TESSALINE_LAST") == nullptr; ++number) {
        // Of every size, from nearly nothing on.
        Estimate estimate = DistinctEstimate();
        estimate.EstimateId = L"GFE-" + std::to_wstring(number % 20);
        estimate.Lines.resize(static_cast<std::size_t>(number * 7 % 60));
        estimate.ProviderNotes.assign(estimate.Lines.size() * 500, L'x');
        SecretBytes name;
        AppendUtf8(name, estimate.EstimateId + L".gfe");
        REQUIRE(WriteFileBytes(log, name));
        REQUIRE(SaveEstimate(store, estimate, path, error));
    }
    CHECK(loaded > 0);
}
