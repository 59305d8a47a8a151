// Contents of a size that nobody types, but a file may hold.
#include <windows.h>

#include <commctrl.h>
#include <psapi.h>

#include "document/preview.h"
#include "store/lookup_window.h"
#include "tests/support/record_values.h"
#include "tests/ui/running_program.h"
#include "ui/binding.h"

using namespace tessaline;

TEST_CASE("Among 10,000 estimates a search finds a few, and the one chosen is given back") {
    RunningProgram program(96);
    LookupState state;
    state.owner = program.app.mainWindow;
    state.Mode = LookupMode::kEstimates;
    state.estimates.resize(10'000);
    for (std::size_t i = 0; i < state.estimates.size(); ++i) {
        state.estimates[i].Record.EstimateId = L"GFE-" + std::to_wstring(i);
    }
    const ULONGLONG start = GetTickCount64();
    program.LeaveTo([&](HWND lookup) {
        CHECK(ListView_GetItemCount(state.list) == 10'000);
        SetWindowTextW(state.searchBox, L"fe-777");
        CHECK(ListView_GetItemCount(state.list) == 11);  // 777 and 7770 to 7779
        ListView_SetItemState(state.list, 2, LVIS_SELECTED, LVIS_SELECTED);
        SendMessageW(FindWindowExW(lookup, nullptr, L"BUTTON", nullptr), BM_CLICK, 0, 0);
    });
    CHECK(ShowLookup(state, L"Open Saved Estimate") == kLookupChosen);
    CHECK(state.Selected == 7771);
    CHECK(GetTickCount64() - start < 20'000);
}

TEST_CASE("Texts of a million characters come back from the form, and previews let go of them") {
    RunningProgram program(96);
    Estimate estimate;
    estimate.Patient.FirstName = estimate.ProviderNotes = std::wstring(1'000'000, L'x');
    BindToForm(estimate);
    ReadForm();
    CHECK(Differences(program.app.currentEstimate, estimate) == L"LastModifiedOn ");
    const auto memoryInUse = [] {
        PROCESS_MEMORY_COUNTERS counters{};
        GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
        return counters.PagefileUsage;
    };
    const SIZE_T before = memoryInUse();
    for (int i = 0; i < 10; ++i) {
        ShowPrintPreview(program.app.mainWindow, estimate);
        DestroyWindow(FindWindowExW(nullptr, nullptr, L"GFE_Native_Preview", nullptr));
    }
    CHECK(memoryInUse() < before + 10'000'000);
}
