// bench GROUP FOLDER: times ours against a floor, bare calls that do the least the platform must
// do for the same result, and prints one line of fields between tabs for each measure of the
// group. FOLDER is empty; the program and the tests' data stand below the current one.
#include <windows.h>

#include <commctrl.h>
#include <psapi.h>
#include <windowsx.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include "legacy/legacy_cipher.h"
#include "legacy/legacy_file.h"
#include "platform/files.h"
#include "platform/scale.h"
#include "platform/theme.h"
#include "store/estimate_file.h"
#include "store/lookup_window.h"
#include "store/revision.h"
#include "tests/support/stand_in.h"
#include "ui/app_state.h"
#include "ui/commands/sample_estimate.h"
#include "ui/form/binding.h"
#include "ui/form/form_rows.h"
#include "ui/frame/main_window.h"

namespace tessaline {
namespace {

using Runner = std::function<double()>;  // gives milliseconds
using Results = std::vector<double>;
using Rows = std::vector<std::vector<std::wstring>>;

LocalStore store;

// A floor that does not do its work measures nothing.
void Demand(bool done) {
    if (!done) std::abort();
}

double Quantile(Results values, int percent) {
    std::sort(values.begin(), values.end());
    return values[values.size() * static_cast<std::size_t>(percent) / 100];
}

double Now() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::milli>(now).count();
}

Runner Timed(const std::function<void()>& work) {
    return [work] {
        const double start = Now();
        work();
        return Now() - start;
    };
}

// Says how many times the floor we take, which is to be `aim` at most; 0 is no aim. It is the
// median of the rounds, each against its own floor, since what slows the machine slows a round as
// a whole; the spread is that of their middle half.
void Report(const char* name, const char* unit, double aim, const Results& ours,
            const Results& floor) {
    Results times(ours.size());
    std::transform(ours.begin(), ours.end(), floor.begin(), times.begin(), std::divides<>());
    std::printf("%s\t%.4g\t%.4g\t%s\t%.3f\t%.3f\t%g\n", name, Quantile(ours, 50),
                Quantile(floor, 50), unit, Quantile(times, 50),
                Quantile(times, 75) - Quantile(times, 25), aim);
}

// Lets both run in turns, a round to warm up first.
void Compare(const char* name, double aim, int rounds, const Runner& ours, const Runner& floor) {
    Results results[2];
    for (int round = 0; round <= rounds; ++round) {
        for (const int half : {0, 1}) {
            // Who comes second finds warmer caches, so that changes.
            const int runner = (round + half) % 2;
            const double result = runner == 0 ? ours() : floor();
            if (round > 0) results[runner].push_back(result);
        }
    }
    Report(name, "ms", aim, results[0], results[1]);
}

Estimate SampleWith(std::size_t lines, int number = 0) {
    Estimate estimate = SampleEstimate();
    estimate.Lines.resize(lines, ServiceLine(estimate.Lines[0]));
    estimate.EstimateId += std::to_wstring(number);
    estimate.Patient.LastName += std::to_wstring(number % 100);
    estimate.Provider.OrganizationName += std::to_wstring(number % 100);
    return estimate;
}

void FillStore() {
    const StandIn quick(__imp_FlushFileBuffers, [](HANDLE) { return TRUE; });
    std::wstring path, error;
    for (int number = 0; number < 10'000; ++number) {
        Estimate estimate = SampleWith(6, number);
        Demand(SaveEstimate(store, estimate, path, error));
    }
}

// Lists, opens, reads, copies.
void BareCatalogue() {
    static BYTE room[100'000];
    WIN32_FIND_DATAW found{};
    const FindOwner search(FindFirstFileW((store.EstimatesFolder + L"\\*.gfe").c_str(), &found));
    do {
        const std::wstring path = store.EstimatesFolder + L"\\" + found.cFileName;
        const FileOwner file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                         OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        DATA_BLOB read{0, room}, copy{};
        Demand(ReadFile(file.Get(), room, sizeof(room), &read.cbData, nullptr));
        CopyBlob(&read, nullptr, nullptr, nullptr, nullptr, 0, &copy);
        LocalFree(copy.pbData);
    } while (FindNextFileW(search.Get(), &found));
}

void MeasureCatalogue() {
    FillStore();
    const Runner load = Timed([] { Demand(LoadAllEstimates(store).size() == 10'000); });
    Compare("catalogue of 10,000", 1.30, 15, load, Timed(BareCatalogue));
    Compare("patients of 10,000", 1.10, 11,
            Timed([] { Demand(BuildPatientList(store).size() == 100); }), load);
    Compare("providers of 10,000", 1.10, 11,
            Timed([] { Demand(BuildProviderList(store).size() == 100); }), load);
    Compare("a revision among 10,000", 1.05, 11,
            Timed([] { Demand(MakeRevision(store, SampleWith(6)).RevisionNumber > 0); }), load);
}

void MeasureFile() {
    Estimate estimate = SampleWith(6);
    std::wstring path, error;
    const auto save = [&] { Demand(SaveEstimate(store, estimate, path, error)); };
    save();
    const Bytes content = ReadFileBytes(path);
    const auto write = [&, bare = path + L".bare"] {
        const FileOwner file(CreateFileW(bare.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                         FILE_ATTRIBUTE_NORMAL, nullptr));
        DWORD written = 0;
        Demand(WriteFile(file.Get(), content.data(), DWORD(content.size()), &written, nullptr));
        Demand(FlushFileBuffers(file.Get()));
    };
    Compare("a save of 6 lines", 1.15, 301, Timed(save), Timed(write));

    Demand(CopyFileW(L"tests\\data\\legacy-data.key", (store.BaseFolder + L"\\data.key").c_str(),
                     FALSE));
    const std::wstring older = L"tests\\data\\legacy-hundred-lines.gfe";
    const Runner open = Timed(
        [&] { Demand(ReadLegacyEstimate(ReadFileBytes(older), store, estimate = {}, error)); });
    const auto decrypt = [&] { return DecryptLegacyFile(ReadFileBytes(older), store, error); };
    std::wstring text(1'000'000, L' ');
    const auto look = [&] {
        const SecretBytes plain = decrypt();
        const int length = MultiByteToWideChar(CP_UTF8, 0, LPCCH(plain.data()), int(plain.size()),
                                               text.data(), int(text.size()));
        Demand(std::count(text.begin(), text.begin() + length, L'"') > 100);
    };
    Compare("older file of 100 lines, to its texts", 2, 3001, open, Timed(look));
    Compare("older file of 100 lines, to its bytes", 0, 3001, open,
            Timed([&] { Demand(!decrypt().empty()); }));
}

void BareFill(HWND list, const Rows& rows) {
    SetWindowRedraw(list, FALSE);
    ListView_DeleteAllItems(list);
    ListView_SetItemCount(list, rows.size());
    LVITEMW item{};
    for (const auto& row : rows) {
        for (item.iSubItem = 0; item.iSubItem < int(row.size()); ++item.iSubItem) {
            item.mask = item.iSubItem == 0 ? LVIF_TEXT | LVIF_PARAM : LVIF_TEXT;
            item.pszText = const_cast<wchar_t*>(row[std::size_t(item.iSubItem)].c_str());
            SendMessageW(list, item.iSubItem == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0,
                         LPARAM(&item));
        }
        ++item.iItem;
    }
    SetWindowRedraw(list, TRUE);
    InvalidateRect(list, nullptr, TRUE);
}

// Milliseconds until the lookup over a catalogue is painted, which is closed then.
double LookupTime(std::vector<SavedEstimateEntry>& estimates) {
    static double painted;
    LookupState state;
    state.owner = App()->mainWindow;
    state.Mode = LookupMode::kEstimates;
    state.estimates.swap(estimates);
    const double start = Now();
    // Timers come when all is painted. This one is over by then, so nothing waits for it.
    const UINT_PTR timer = SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) {
        painted = Now();
        PostMessageW(GetLastActivePopup(App()->mainWindow), WM_CLOSE, 0, 0);
    });
    Demand(ShowLookup(state, L"Open") == kLookupCancelled);
    KillTimer(nullptr, timer);
    state.estimates.swap(estimates);
    return painted - start;
}

double BareLookupTime(const Rows& rows) {
    const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 200, 100, 820,
                                        525, App()->mainWindow, nullptr, nullptr, nullptr);
    const HWND list = MakeListView(window, 2, {20, 76, 760, 340}, EstimateColumns());
    UpdateWindow(window);
    const double start = Now();
    BareFill(list, rows);
    UpdateWindow(list);
    const double time = Now() - start;
    DestroyWindow(window);
    return time;
}

double Megabytes(HANDLE process) {
    PROCESS_MEMORY_COUNTERS counters{};
    Demand(K32GetProcessMemoryInfo(process, &counters, sizeof(counters)));
    return static_cast<double>(counters.WorkingSetSize) / (1024 * 1024);
}

void MeasureLookup() {
    FillStore();
    const Results idle{Megabytes(GetCurrentProcess())};
    auto estimates = LoadAllEstimates(store);
    LookupTime(estimates);
    Report("working set, 10,000 looked through", "MB", 0, {Megabytes(GetCurrentProcess())}, idle);
    std::exchange(estimates, {});
    Report("working set, the lookup closed", "MB", 0, {Megabytes(GetCurrentProcess())}, idle);
    estimates = LoadAllEstimates(store);
    Rows rows;
    for (const auto& entry : estimates) rows.push_back(LookupCells(entry));
    Compare(
        "lookup of 10,000, to the painted list", 1.15, 31, [&] { return LookupTime(estimates); },
        [&] { return BareLookupTime(rows); });
    for (int round = 0; round < 10; ++round) {
        estimates = {};
        estimates = LoadAllEstimates(store);
    }
    std::exchange(estimates, {});
    std::exchange(rows, {});
    Report("working set, ten catalogues later", "MB", 0, {Megabytes(GetCurrentProcess())}, idle);
}

void MeasureForm() {
    const AppState& app = *App();
    const Estimate estimate = SampleWith(100);
    BindToForm(estimate);
    std::map<HWND, std::wstring> texts{{app.totalAmount, WindowText(app.totalAmount)}};
    ForEachFieldRow([&](const FieldRow& row) {
        const HWND control = ControlById(row.id);
        if (row.entries.empty() && row.text) texts[control] = WindowText(control);
    });
    const Rows lines(100, {L"Surgeon's fee, arthroscopy", L"400 Capitol Avenue", L"S83.242A",
                           L"CPT 29882", L"1", L"$4155.00", L"$4155.00"});
    const Rows separate(estimate.SeparateItems.size(), {L"Physical therapy", L"Ask the clinic"});
    const auto bare = [&] {
        for (const auto& [control, text] : texts) SetWindowTextW(control, text.c_str());
        BareFill(app.linesList, lines);
        BareFill(app.separateList, separate);
        RedrawForm();
    };
    Compare("form bound to 100 lines", 1.15, 101, Timed([&] { BindToForm(estimate); }),
            Timed(bare));
}

// Runs a program until it has painted its window and gives the milliseconds; `memory` gets its
// working set then. It answers when it asks for messages, which it does after painting.
double StartTime(const std::wstring& program, const wchar_t* title, Results& memory) {
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    const double start = Now();
    std::wstring path = L"build\\release\\" + program;
    Demand(CreateProcessW(nullptr, path.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                          &startup, &process));
    HWND window = nullptr;
    for (; !IsWindowVisible(window); window = FindWindowW(nullptr, title)) Sleep(1);
    SendMessageW(window, WM_NULL, 0, 0);
    const double time = Now() - start;
    const FileOwner running(process.hProcess), thread(process.hThread);
    memory.push_back(Megabytes(running.Get()));
    TerminateProcess(running.Get(), 0);
    WaitForSingleObject(running.Get(), 10'000);
    return time;
}

void MeasureStart() {
    DestroyWindow(App()->mainWindow);
    Results ours, floor;
    const auto start = [&] {
        return StartTime(L"Tessaline.exe", L"Tessaline | No Surprises Act", ours);
    };
    const auto startBare = [&] { return StartTime(L"bare_windows.exe", L"Bare", floor); };
    Compare("start to a painted form", 1.10, 61, start, startBare);
    Report("working set of the idle program", "MB", 0, ours, floor);
}

}  // namespace
}  // namespace tessaline

int wmain(int count, wchar_t** arguments) {
    using namespace tessaline;
    const std::map<std::wstring, void (*)()> groups = {{L"catalogue", MeasureCatalogue},
                                                       {L"file", MeasureFile},
                                                       {L"lookup", MeasureLookup},
                                                       {L"form", MeasureForm},
                                                       {L"start", MeasureStart}};
    Demand(count == 3 && groups.contains(arguments[1]));
    Write(__imp_CryptProtectData, CopyBlob<LPCWSTR>);
    Write(__imp_CryptUnprotectData, CopyBlob<LPWSTR*>);
    InitCommonControls();
    SetScreenDpi(96);
    CreateTheme();
    AppState app;
    PublishAppState(&app);
    ShowWindow(CreateMainWindow(), SW_SHOW);
    UpdateWindow(app.mainWindow);
    store = LocalStoreBelow(arguments[2]);
    groups.at(arguments[1])();
    return 0;
}
