// What is promised of the program and cannot be seen in it.
#include <array>
#include <cstring>
#include <memory>

#include "legacy/document_memory.h"
#include "store/estimate_file.h"
#include "tests/support/readable.h"
#include "tests/support/record_values.h"
#include "tests/support/stand_in.h"
#include "tests/ui/running_program.h"

using namespace tessaline;

TEST_CASE("The form is saved every 45 seconds") {
    static const auto set = __imp_SetTimer;
    static UINT period = 0;
    const StandIn timer(__imp_SetTimer, [](HWND window, UINT_PTR id, UINT time, TIMERPROC call) {
        if (window != nullptr) period = time;
        return set(window, id, time, call);
    });
    const RunningProgram program(96);
    CHECK(period == 45'000);
}

TEST_CASE("Folders have the rights that any folder there has") {
    const TemporaryStore store;
    const auto rights = [](const std::wstring& folder) {
        Bytes bytes(1000);
        DWORD size = 0;
        CHECK(GetFileSecurityW(folder.c_str(), DACL_SECURITY_INFORMATION, bytes.data(), 1000,
                               &size));
        return bytes;
    };
    const std::wstring other = store.BaseFolder + L"\\other";
    CHECK(CreateDirectoryW(other.c_str(), nullptr));
    CHECK(rights(store.EstimatesFolder) == rights(other));
}

TEST_CASE("No memory is given back with something secret in it") {
    static const auto free = __imp_LocalFree;
    const StandIn local(__imp_LocalFree, [](HLOCAL memory) {
        LookFor(memory, LocalSize(memory));
        return free(memory);
    });
    const auto timesGivenBack = [](std::string_view secret, const auto& work) {
        const StandIn seek(sought, secret);
        timesFound = 0;
        work();
        return timesFound;
    };
    constexpr char kNotes[] = "xxxxxxxxxxxxxxxxxxxx";
    CHECK(timesGivenBack(kNotes, [] { Bytes(100, 'x'); }) == 1);

    const TemporaryStore store;
    Estimate estimate = DistinctEstimate();
    estimate.ProviderNotes.assign(1000, L'x');
    std::wstring path, error;
    CHECK(timesGivenBack(kNotes, [&] {
              CHECK(SaveEstimate(store, estimate, path, error));
              CHECK(LoadEstimateFile(store, path, estimate, error));
          }) == 0);

    const Bytes file = TestData(L"legacy-data.key");
    const std::string key(file.begin(), file.end());
    CHECK(store.Put(L"..\\data.key", file));
    CHECK(store.Put(L"older.gfe", TestData(L"legacy-estimate.gfe")));
    for (const std::string& secret : {key, std::string("PrimaryDiagnosisCode")}) {
        CHECK(timesGivenBack(secret, [&] {
                  CHECK(LoadEstimateFile(store, store.Path(L"older.gfe"), estimate, error));
              }) == 0);
    }

    // What a document fits in, and what goes beyond; the first look is before it ends.
    alignas(DocumentMemory) static std::array<char, sizeof(DocumentMemory)> place;
    CHECK(timesGivenBack(kNotes, [] {
              auto* const memory = new (place.data()) DocumentMemory;
              for (const std::size_t size : {1'000U, 1'000'000U}) {
                  std::memset(memory->Get()->allocate(size), 'x', size);
              }
              LookFor(place.data(), place.size());
              std::destroy_at(memory);
              LookFor(place.data(), place.size());
          }) == 1);
}
