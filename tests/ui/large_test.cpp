// Contents of a size that nobody types, but a file may hold.
#include <windows.h>

#include <psapi.h>

#include "document/preview.h"
#include "tests/support/record_values.h"
#include "tests/ui/running_program.h"
#include "ui/form/binding.h"

using namespace tessaline;

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
