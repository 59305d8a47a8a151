// bench GROUP FOLDER: times ours against a floor, bare calls that do the least the platform must
// do for the same result, and prints one line of fields between tabs for each measure of the
// group. All run in turns, so that what else the machine does falls on all alike. FOLDER is for
// files that the groups share.
#include <windows.h>

#include <commctrl.h>
#include <psapi.h>
#include <wincrypt.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "document/estimate_pages.h"
#include "legacy/legacy_cipher.h"
#include "legacy/legacy_file.h"
#include "platform/controls.h"
#include "platform/files.h"
#include "platform/handles.h"
#include "platform/theme.h"
#include "store/catalogue.h"
#include "store/envelope.h"
#include "store/local_store.h"
#include "store/lookup_window.h"
#include "store/native_format.h"
#include "store/revision.h"
#include "ui/sample_estimate.h"

namespace tessaline {
namespace {

using Work = std::function<void()>;
using Runners = std::vector<std::function<double()>>;

// A floor that does not do its work measures nothing.
void Demand(bool done) {
    if (!done) std::abort();
}

double Milliseconds(const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

// Lets all run in turns, and gives the median of each one's results.
std::vector<double> Race(int rounds, const Runners& runners) {
    std::vector<std::vector<double>> results(runners.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < runners.size(); ++i) {
            // Whoever comes later finds warmer caches, so every other round goes backwards.
            const std::size_t runner = round % 2 == 0 ? i : runners.size() - 1 - i;
            results[runner].push_back(runners[runner]());
        }
    }
    std::vector<double> medians;
    for (auto& times : results) {
        std::sort(times.begin(), times.end());
        medians.push_back(times[times.size() / 2]);
    }
    return medians;
}

// The value is how many times the floor we take, which is to be `aim` at most.
void Report(const char* name, double ours, double floor, double aim, const char* unit = "ms") {
    std::printf("%s\t%.4g\t%.4g\t%s\t%.3f\t%g\n", name, ours, floor, unit, ours / floor, aim);
}

// Races two pieces of work, each done `repeats` times in every round, and reports them.
void Compare(const char* name, int repeats, double aim, const Work& ours, const Work& floor) {
    const auto repeated = [repeats](const Work& work) {
        return [repeats, &work] {
            double all = 0;
            for (int i = 0; i < repeats; ++i) all += Milliseconds(work);
            return all / repeats;
        };
    };
    const std::vector<double> times = Race(11, {repeated(ours), repeated(floor)});
    Report(name, times[0], times[1], aim);
}

// What files cost: catalogue, lists, revisions, payloads, the older edition.

constexpr int kFew = 1'000;
constexpr int kMany = 10'000;
// Protecting is slow on some systems, so the files take their contents from a few estimates.
constexpr int kContents = 100;

Estimate SampleWith(std::size_t lines, int number = 0) {
    Estimate estimate = SampleEstimate();
    const ServiceLine line = estimate.Lines[0];
    estimate.Lines.resize(lines, line);
    estimate.Patient.LastName += std::to_wstring(number);
    estimate.Provider.OrganizationName += std::to_wstring(number);
    estimate.LastModifiedOn += number * 1000;
    return estimate;
}

// A store of so many files, made when it is first asked for.
LocalStore StoreOf(int files, const std::wstring& folder) {
    LocalStore store = LocalStoreBelow(folder + L"\\" + std::to_wstring(files));
    const bool isThere =
        GetFileAttributesW(store.EstimatesFolder.c_str()) != INVALID_FILE_ATTRIBUTES;
    Demand(EnsureFolder(store.EstimatesFolder));
    std::wstring error;
    for (int number = 0; number < kContents && !isThere; ++number) {
        const Bytes content =
            ProtectEstimateData(WriteNativeEstimate(SampleWith(6, number)), error);
        for (int copy = number; copy < files; copy += kContents) {
            const std::wstring path =
                store.EstimatesFolder + L"\\" + std::to_wstring(copy) + L".gfe";
            std::ofstream(std::filesystem::path(path), std::ios::binary)
                .write(reinterpret_cast<const char*>(content.data()), long(content.size()));
        }
    }
    return store;
}

// Opens, reads and unprotects one file by Windows' own calls, and gives the payload back at once.
std::size_t BareLoad(const std::wstring& path, std::vector<BYTE>& room) {
    wchar_t tag[] = L"KOVAL-DQX-STRATA-8391";
    DATA_BLOB entropy{sizeof(tag), reinterpret_cast<BYTE*>(tag)};
    const FileOwner file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD read = 0;
    Demand(ReadFile(file.Get(), room.data(), DWORD(room.size()), &read, nullptr));
    DATA_BLOB blob{read - 4, room.data() + 4};
    DATA_BLOB plain{};
    Demand(CryptUnprotectData(&blob, nullptr, &entropy, nullptr, nullptr,
                              CRYPTPROTECT_UI_FORBIDDEN, &plain));
    LocalFree(plain.pbData);
    return plain.cbData;
}

// The bytes of all payloads.
std::size_t BareCatalogue(const LocalStore& store) {
    std::vector<BYTE> room(100'000);
    std::size_t bytes = 0;
    WIN32_FIND_DATAW found{};
    const FindOwner search(FindFirstFileW((store.EstimatesFolder + L"\\*.gfe").c_str(), &found));
    do {
        bytes += BareLoad(store.EstimatesFolder + L"\\" + found.cFileName, room);
    } while (FindNextFileW(search.Get(), &found));
    return bytes;
}

double PeakMegabytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return static_cast<double>(counters.PeakWorkingSetSize) / (1024 * 1024);
}

// Converts the texts of every line to UTF-8 and back by Windows' own calls, and copies as many
// bytes. What it reads it keeps until the end, as a record does.
void BarePayload(const Estimate& estimate, std::vector<char>& room) {
    std::vector<std::wstring> texts;
    texts.reserve(estimate.Lines.size() * 5);
    char* at = room.data();
    for (const ServiceLine& line : estimate.Lines) {
        for (const std::wstring* text :
             {&line.ServiceItem, &line.ServiceAddress, &line.DiagnosisCode, &line.ServiceCodeType,
              &line.ServiceCode}) {
            std::wstring& back = texts.emplace_back(text->size(), L'\0');
            const int length = static_cast<int>(text->size());
            const int size =
                WideCharToMultiByte(CP_UTF8, 0, text->data(), length, at,
                                    int(room.data() + room.size() - at), nullptr, nullptr);
            MultiByteToWideChar(CP_UTF8, 0, at, size, back.data(), length);
            at += size;
        }
    }
    Demand(std::vector<char>(room.data(), at).size() > 1000);
}

void MeasureMemory(const std::wstring& folder) {
    const LocalStore store = StoreOf(kMany, folder);
    const double payloads = static_cast<double>(BareCatalogue(store)) / (1024 * 1024);
    const double before = PeakMegabytes();
    Demand(LoadAllEstimates(store).size() == kMany);
    Report("peak memory, catalogue of 10,000", PeakMegabytes() - before, payloads, 5, "MB");
}

void MeasureCatalogue(const std::wstring& folder) {
    const LocalStore few = StoreOf(kFew, folder), many = StoreOf(kMany, folder);
    const auto timed = [](auto run) { return [run] { return Milliseconds(run); }; };
    const auto loadFew = timed([&] { Demand(LoadAllEstimates(few).size() == kFew); });
    const std::vector<double> small =
        Race(7, {loadFew, timed([&] { Demand(BareCatalogue(few) > 0); })});
    const std::vector<double> large =
        Race(3, {timed([&] { Demand(LoadAllEstimates(many).size() == kMany); }),
                 timed([&] { Demand(BareCatalogue(many) > 0); }), loadFew,
                 timed([&] { Demand(BuildPatientList(many).size() == kContents); }),
                 timed([&] { Demand(BuildProviderList(many).size() == kContents); }),
                 timed([&] { Demand(MakeRevision(many, SampleWith(6)).RevisionNumber > 0); })});
    Report("catalogue of 1,000", small[0], small[1], 1.05);
    Report("catalogue of 10,000", large[0], large[1], 1.05);
    Report("catalogue, ten times the files", large[0], large[2], 10.5);
    Report("patients of 10,000", large[3], large[0], 1.05);
    Report("providers of 10,000", large[4], large[0], 1.05);
    Report("a revision among 10,000", large[5], large[0], 1.02);
}

void MeasurePayload(const std::wstring&) {
    const Estimate estimate = SampleWith(1000);
    std::vector<char> room(WriteNativeEstimate(estimate).size());
    const auto writeAndRead = [&] {
        Estimate read;
        std::wstring error;
        Demand(ReadNativeEstimate(WriteNativeEstimate(estimate), read, error));
    };
    Compare("payload of 1,000 lines, both ways", 50, 1.5, writeAndRead,
            [&] { BarePayload(estimate, room); });
}

// The file stands with the tests' data, below the folder that all was built from.
void MeasureOlderFile(const std::wstring& folder) {
    const LocalStore store = LocalStoreBelow(folder);
    const std::wstring path = L"tests\\data\\legacy-hundred-lines.gfe";
    const Bytes key = ReadFileBytes(L"tests\\data\\legacy-data.key");
    Demand(WriteFileBytes(store.BaseFolder + L"\\data.key", key));
    std::wstring error;
    const auto open = [&] {
        Estimate estimate;
        Demand(OpenLegacyEstimateFile(path, store, estimate, error));
    };
    Compare("older file of 100 lines", 50, 1.25, open,
            [&] { Demand(!DecryptLegacyFile(ReadFileBytes(path), store, error).empty()); });
}

// What the screen costs: a keystroke in the search box, the pages, the start.

LookupState ManyEstimates(HWND window) {
    LookupState state;
    state.Mode = LookupMode::kEstimates;
    for (int number = 0; number < 10'000; ++number) {
        SavedEstimateEntry& entry = state.estimates.emplace_back(L"", SampleEstimate());
        entry.Record.EstimateId = L"GFE-20260307-" + std::to_wstring(100000 + number);
        if (number % 1000 == 0) entry.Record.PrimaryService = L"Seldom done";
    }
    state.rows = MakeLookupRows(state.estimates);
    state.searchBox = MakeEdit(window, 1, {20, 38, 760, 25});
    state.list = MakeListView(window, 2, {20, 76, 760, 340}, EstimateColumns());
    return state;
}

void BareFill(HWND list, const std::vector<const LookupRow*>& rows) {
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LVM_DELETEALLITEMS, 0, 0);
    SendMessageW(list, LVM_SETITEMCOUNT, rows.size(), 0);
    LVITEMW item{};
    for (const LookupRow* row : rows) {
        for (item.iSubItem = 0; item.iSubItem < 6; ++item.iSubItem) {
            item.mask = item.iSubItem == 0 ? LVIF_TEXT | LVIF_PARAM : LVIF_TEXT;
            item.pszText = const_cast<wchar_t*>(row->cells[std::size_t(item.iSubItem)].c_str());
            SendMessageW(list, item.iSubItem == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0,
                         reinterpret_cast<LPARAM>(&item));
        }
        ++item.iItem;
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

void MeasureSearch(const LookupState& state, const char* name, const wchar_t* search,
                   std::size_t each) {
    std::vector<const LookupRow*> rows;
    for (std::size_t index = 0; index < state.rows.size(); index += each) {
        rows.push_back(&state.rows[index]);
    }
    SetWindowTextW(state.searchBox, search);
    Compare(
        name, static_cast<int>(std::min<std::size_t>(each, 20)), 1.10,
        [&] { FillLookupList(state); }, [&] { BareFill(state.list, rows); });
    Demand(ListView_GetItemCount(state.list) == static_cast<int>(rows.size()));
}

void MeasureDrawing(const char* name, int width, int height, bool print) {
    const Estimate estimate = SampleEstimate();
    const auto draw = [&](HDC dc) {
        DrawFirstPage(dc, StretchPageOver({0, 0, width, height}), estimate, print);
        DrawSecondPage(dc, StretchPageOver({0, 0, width, height}), estimate, print);
        GdiFlush();
    };
    const WindowDeviceContext screen(nullptr);
    const DeviceContextOwner memory(CreateCompatibleDC(screen.Get()));
    const BitmapOwner bitmap(CreateCompatibleBitmap(screen.Get(), width, height));
    const SelectGuard selected(memory.Get(), bitmap.Get());
    const HDC recorder = CreateEnhMetaFileW(screen.Get(), nullptr, nullptr, nullptr);
    draw(recorder);
    const HENHMETAFILE recorded = CloseEnhMetaFile(recorder);
    ENHMETAHEADER header{};
    GetEnhMetaFileHeader(recorded, sizeof(header), &header);
    // Played into the rectangle that it fills, nothing is scaled.
    const RECTL& bounds = header.rclBounds;
    const RECT place{bounds.left, bounds.top, bounds.right, bounds.bottom};
    Compare(
        name, 20, 1.10, [&] { draw(memory.Get()); },
        [&] {
            PlayEnhMetaFile(memory.Get(), recorded, &place);
            GdiFlush();
        });
    DeleteEnhMetaFile(recorded);
}

// Milliseconds until a program has painted its window. It answers when it asks for messages, which
// it does after painting.
double StartTime(std::wstring commandLine, const wchar_t* title) {
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    const double time = Milliseconds([&] {
        Demand(CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                              nullptr, &startup, &process));
        HWND window = nullptr;
        while (!IsWindowVisible(window)) {
            Sleep(1);
            window = FindWindowW(nullptr, title);
        }
        SendMessageW(window, WM_NULL, 0, 0);
    });
    TerminateProcess(process.hProcess, 0);
    const FileOwner running(process.hProcess);
    const FileOwner thread(process.hThread);
    WaitForSingleObject(running.Get(), 10'000);
    return time;
}

void MeasureKeystroke(const std::wstring&) {
    CreateTheme();
    const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                        820, 525, nullptr, nullptr, nullptr, nullptr);
    const LookupState state = ManyEstimates(window);
    MeasureSearch(state, "a keystroke, 10,000 rows shown", L"", 1);
    MeasureSearch(state, "a keystroke, 10 of 10,000 rows shown", L"seldom", 1000);
    DestroyWindow(window);
}

void MeasurePages(const std::wstring&) {
    MeasureDrawing("both pages at preview size", 685, 886, false);
    MeasureDrawing("both pages at 600 dpi", 4692, 6138, true);
}

// The programs stand below the folder that all was built from.
void MeasureStart(const std::wstring&) {
    const std::vector<double> times =
        Race(21, {[] {
                      return StartTime(L"build\\release\\Tessaline.exe",
                                       L"Tessaline | No Surprises Act");
                  },
                  [] { return StartTime(L"build\\release\\bare_windows.exe", L"Bare"); }});
    Report("start to a painted form", times[0], times[1], 1.15);
}

}  // namespace
}  // namespace tessaline

int wmain(int count, wchar_t** arguments) {
    using namespace tessaline;
    const struct {
        const wchar_t* name;
        void (*measure)(const std::wstring& folder);
    } groups[] = {{L"memory", MeasureMemory},       {L"catalogue", MeasureCatalogue},
                  {L"payload", MeasurePayload},     {L"older", MeasureOlderFile},
                  {L"keystroke", MeasureKeystroke}, {L"pages", MeasurePages},
                  {L"start", MeasureStart}};
    for (const auto& group : groups) {
        if (count != 3 || std::wstring(arguments[1]) != group.name) continue;
        group.measure(arguments[2]);
        return 0;
    }
    return 2;
}
