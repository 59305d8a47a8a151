// Contents of a size that nobody types, but a file may hold.
#include <windows.h>

#include <psapi.h>

#include <climits>

#include "document/estimate_pages.h"
#include "document/preview.h"
#include "tests/support/record_values.h"
#include "tests/ui/running_program.h"
#include "ui/control_ids.h"
#include "ui/form/binding.h"

using namespace tessaline;

TEST_CASE("Texts of a million characters come back, are drawn, and are let go of again") {
    RunningProgram program(96);
    Estimate estimate;
    estimate.Patient.FirstName = estimate.ProviderNotes = std::wstring(1'000'000, L'x');
    const std::wstring& word = estimate.ProviderNotes;
    estimate.Lines.assign(7, {word, word, word, word, word, INT_MIN, 1e308});
    estimate.SeparateItems = {{word, word}};
    BindToForm(estimate);
    ReadForm();
    CHECK(Differences(program.app.currentEstimate, estimate) == L"LastModifiedOn ");
    const WindowDeviceContext screen(nullptr);
    for (const int page : {0, 1}) {
        DrawEstimatePage(screen.Get(), PreviewTransform(884, 941), estimate, page, false);
    }
    const auto memoryInUse = [] {
        PROCESS_MEMORY_COUNTERS counters{};
        GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
        return counters.PagefileUsage;
    };
    SIZE_T before = 0;
    REQUIRE(program.store.PutEstimate(L"a.gfe", estimate));
    program.LeaveTo([](HWND lookup) { SendMessageW(lookup, WM_CLOSE, 0, 0); });
    for (int i = 0; i < 10; ++i) {
        SendMessageW(ControlById(kOpenButton), BM_CLICK, 0, 0);
        ShowPrintPreview(program.app.mainWindow, estimate);
        program.CloseOutput();
        // Windows keeps some of what the first round took.
        if (i == 0) before = memoryInUse();
    }
    CHECK(memoryInUse() < before + 10'000'000);
}
