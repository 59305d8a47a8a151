// Every allocation fails once, in everything that the program does.
#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <new>
#include <regex>

#include "platform/controls.h"
#include "store/catalogue.h"
#include "tests/support/readable.h"
#include "tests/support/record_values.h"
#include "tests/support/stand_in.h"
#include "tests/ui/running_program.h"
#include "tests/ui/told_window.h"
#include "ui/commands/sample_estimate.h"
#include "ui/control_ids.h"
#include "ui/form/binding.h"

using namespace tessaline;

void* operator new(std::size_t size) {
    const bool fails = allocationsLeft > 0 && --allocationsLeft == 0;
    void* const memory = fails ? nullptr : HeapAlloc(GetProcessHeap(), 0, size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept {
    if (!sought.empty() && memory) LookFor(memory, HeapSize(GetProcessHeap(), 0, memory));
    HeapFree(GetProcessHeap(), 0, memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

namespace {

// One of the main window's buttons, the estimate for which it is pressed, and whether that counts
// as saved; no button stands for the automatic save.
struct Command {
    const char* name;
    int button;
    const wchar_t* status = kStatusIssued;
    bool isClean = false;
};

// clang-format off
constexpr Command kCommandsToFail[] = {
    {"New", kNewButton}, {"Open", kOpenButton}, {"Sample", kSampleButton},
    {"Save", kSaveButton, kStatusDraft}, {"Save a revision", kSaveButton},
    {"Patient Lookup", kPatientLookupButton}, {"Provider Lookup", kProviderLookupButton},
    {"Add Item", kAddLineButton}, {"Edit Item", kEditLineButton},
    {"Remove Item", kRemoveLineButton}, {"Add", kAddSeparateButton},
    {"Edit", kEditSeparateButton}, {"Remove", kRemoveSeparateButton},
    {"Print Preview", kPreviewButton, kStatusDraft},
    {"Print", kPrintButton, kStatusDraft, true}, {"automatic save", 0}};
// clang-format on

struct Form {
    RunningProgram program{96};
    AppState& app = program.app;
    int boxes = 0;  // that say that memory has run out
    int looks = 0;  // at a dialog that stays

    Form() {
        program.LeaveTo([this](HWND modal) { Answer(modal); });
        // No automatic save may come in between.
        SetTimer(app.mainWindow, 1, USER_TIMER_MAXIMUM, nullptr);
    }

    // Presses the first button, in a dialog after filling in what all of them accept.
    void Answer(HWND modal) {
        HWND first = FindWindowExW(modal, nullptr, L"Button", nullptr);
        CHECK_FALSE(IsWaiting());
        if (IsBox(modal)) {
            const StandIn sound(allocationsLeft, 0);
            boxes += DescribeBox(modal, L"", first) ==
                     L"x Good Faith Estimate: There is not enough memory to do this. What you "
                     L"entered is kept. Close other programs and try again. [OK]";
        } else if (++looks == 1) {
            SetWindowTextW(GetDlgItem(modal, 1), L"e");
            SetWindowTextW(GetDlgItem(modal, 7), L"1");
        }
        ListView_SetItemState(GetDlgItem(modal, 2), 0, LVIS_SELECTED, LVIS_SELECTED);
        PostMessageW(looks < 9 ? first : modal, looks < 9 ? BM_CLICK : WM_CLOSE, 0, 0);
    }

    void Begin(const Command& command) {
        for (const auto& entry : LoadAllEstimates(program.store)) {
            DeleteFileW(entry.FilePath.c_str());
        }
        Estimate estimate = SampleEstimate();
        estimate.EstimateId = estimate.RootEstimateId = L"GFE-1";
        estimate.EstimateStatus = command.status;
        estimate.ProviderNotes.clear();
        estimate.Lines.pop_back();
        estimate.SeparateItems.pop_back();
        program.store.PutEstimate(L"GFE-1.gfe", estimate);
        program.PutFiles();
        BindToForm(estimate);
        app.CurrentFilePath = program.store.Path(L"GFE-1.gfe");
        for (const HWND list : {app.linesList, app.separateList}) {
            ListView_SetItemState(list, 0, LVIS_SELECTED, LVIS_SELECTED);
        }
        if (!command.isClean) SetWindowTextW(ControlById(kPrimaryServiceEdit), L"Something else");
        boxes = looks = 0;
    }

    // Everything that the form shows, a new identifier as "now".
    [[nodiscard]] std::wstring Shown() const {
        static const std::wregex clock(L"GFE-\\d{8}-\\d{6}");
        std::wstring shown = Cells(app.linesList) + Cells(app.separateList);
        for (const auto& [id, control] : app.controlById) shown += WindowText(control) + L"\n";
        return std::regex_replace(shown + WindowText(app.totalAmount), clock, L"now");
    }

    // The lists show what the record holds.
    void CheckRecord() const {
        const Estimate& record = app.currentEstimate;
        CHECK(ListView_GetItemCount(app.linesList) == int(record.Lines.size()));
        CHECK(ListView_GetItemCount(app.separateList) == int(record.SeparateItems.size()));
    }
};

}  // namespace

// The last allocations first, where most has been done already; the short version leaves out more
// and more of those before.
TEST_CASE("A command that runs out of memory says so once and keeps the form whole") {
    PretendPrinter();
    Form form;
    const AppState& app = form.app;
    const bool all = _wgetenv(L"TESSALINE_SOAK") != nullptr;
    constexpr long long kPlenty = 1'000'000;
    for (const Command& command : kCommandsToFail) {
        INFO(doctest::String(command.name));
        std::wstring after;
        bool isModifiedAfter = false;
        long long total = 0, failed = 0;
        // The first time, none fails.
        for (long long back = 0; back <= total; back += all ? 1 : 1 + back / 6) {
            CAPTURE(back);
            form.Begin(command);
            const std::wstring before = form.Shown(), path = app.CurrentFilePath;
            allocationsLeft = back == 0 ? kPlenty : total - back + 1;
            if (command.button == 0) SendMessageW(app.mainWindow, WM_TIMER, 1, 0);
            SendMessageW(ControlById(command.button), BM_CLICK, 0, 0);
            const long long left = std::exchange(allocationsLeft, 0);
            const std::wstring shown = form.Shown();
            if (back == 0) after = shown, isModifiedAfter = app.IsModified, total = kPlenty - left;
            failed += left == 0 ? 1 : 0;
            CHECK((shown == before || shown == after));
            if (shown != after) CHECK(app.CurrentFilePath == path);
            // Sorting, for one, can do without the memory that it asks for.
            CHECK(form.boxes <= (left > 0 || command.button == 0 ? 0 : 1));
            if (form.boxes == 0 && command.button != 0) {
                CHECK((shown == after && app.IsModified == isModifiedAfter));
            }
            // Only output goes on after what it saves, and an Open list that could not be filled
            // opens what a search finds then.
            const bool isOpened = command.button == kOpenButton && shown == after;
            if (form.boxes > 0 && command.button < kPreviewButton) {
                CHECK(app.IsModified != isOpened);
            }
            // What was typed into a dialog stays there until it is kept.
            const bool isItem = command.button >= kAddLineButton && command.button < kNotesEdit;
            if (isItem && form.looks > 0) CHECK(shown == after);
            form.CheckRecord();
            form.program.CheckFiles();
            form.program.CheckForm();
            CHECK(IsWindowEnabled(app.mainWindow));
            form.program.CloseOutput();
        }
        std::printf("%s: %lld allocations failed\n", command.name, failed);
        CHECK(failed > 2);
    }
    CHECK(printJobs.aborted > 0);
}
