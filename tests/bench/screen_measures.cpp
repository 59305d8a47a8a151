// What the screen costs: a keystroke in the search box, the pages, the start.
#include <windows.h>

#include <commctrl.h>

#include <cstdlib>

#include "document/estimate_pages.h"
#include "platform/handles.h"
#include "platform/theme.h"
#include "store/lookup_window.h"
#include "tests/bench/measure.h"
#include "ui/sample_estimate.h"

namespace tessaline::bench {
namespace {

constexpr int kRows = 10'000;

using EnhancedMetafile = Owner<HENHMETAFILE, DeleteEnhMetaFile>;

LookupState ManyEstimates(HWND window) {
    LookupState state;
    state.Mode = LookupMode::kEstimates;
    for (int number = 0; number < kRows; ++number) {
        SavedEstimateEntry entry{L"", SampleEstimate()};
        entry.Record.EstimateId = L"GFE-20260307-" + std::to_wstring(100000 + number);
        // One in a thousand holds the text that the second search looks for.
        if (number % 1000 == 0) entry.Record.PrimaryService = L"Seldom done";
        state.estimates.push_back(std::move(entry));
    }
    state.rows = MakeLookupRows(state.estimates);
    state.searchBox = MakeEdit(window, 1, {20, 38, 760, 25});
    state.list = MakeListView(window, 2, {20, 76, 760, 340}, EstimateColumns());
    return state;
}

// Inserts ready-made rows with bare list-view messages.
void BareFill(HWND list, const std::vector<const LookupRow*>& rows) {
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LVM_DELETEALLITEMS, 0, 0);
    SendMessageW(list, LVM_SETITEMCOUNT, rows.size(), 0);
    LVITEMW item{};
    for (const LookupRow* row : rows) {
        for (item.iSubItem = 0; item.iSubItem < 6; ++item.iSubItem) {
            item.mask = item.iSubItem == 0 ? LVIF_TEXT | LVIF_PARAM : LVIF_TEXT;
            const auto& cell = row->cells[static_cast<std::size_t>(item.iSubItem)];
            item.pszText = const_cast<wchar_t*>(cell.c_str());
            const UINT message = item.iSubItem == 0 ? LVM_INSERTITEMW : LVM_SETITEMW;
            SendMessageW(list, message, 0, reinterpret_cast<LPARAM>(&item));
        }
        ++item.iItem;
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

void AddKeystroke(Measures& measures, const LookupState& state, const char* name,
                  const wchar_t* search, std::size_t shown) {
    SetWindowTextW(state.searchBox, search);
    FillLookupList(state);
    std::vector<const LookupRow*> rows;
    const LRESULT count = SendMessageW(state.list, LVM_GETITEMCOUNT, 0, 0);
    for (LRESULT index = 0; index < count; ++index) {
        LVITEMW item{};
        item.mask = LVIF_PARAM;
        item.iItem = static_cast<int>(index);
        SendMessageW(state.list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        rows.push_back(&state.rows[static_cast<std::size_t>(item.lParam)]);
    }
    if (rows.size() != shown) std::abort();
    const int rounds = shown > 100 ? 7 : 101;
    // Each fill first empties the list, so both start from the same rows.
    measures.push_back(Compare(
        name, rounds, 1.10, [&] { FillLookupList(state); }, [&] { BareFill(state.list, rows); }));
}

void AddKeystrokes(Measures& measures) {
    const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                        820, 525, nullptr, nullptr, nullptr, nullptr);
    const LookupState state = ManyEstimates(window);
    AddKeystroke(measures, state, "keystroke, 10,000 rows shown", L"", kRows);
    AddKeystroke(measures, state, "keystroke, 10 rows shown", L"seldom", 10);
    DestroyWindow(window);
}

void DrawBoth(HDC context, const PageTransform& transform, const Estimate& estimate, bool print) {
    for (int page = 0; page < PageCount(estimate); ++page) {
        DrawEstimatePage(context, transform, estimate, page, print);
    }
}

// Draws into a picture in memory, and plays back what was recorded of the same drawing.
void AddPages(Measures& measures, const char* name, int width, int height, bool print) {
    const Estimate estimate = SampleEstimate();
    const PageTransform transform = StretchPageOver({0, 0, width, height});
    const WindowDeviceContext screen(nullptr);
    const DeviceContextOwner memory(CreateCompatibleDC(screen.Get()));
    const BitmapOwner bitmap(CreateCompatibleBitmap(screen.Get(), width, height));
    const SelectGuard selected(memory.Get(), bitmap.Get());
    const HDC recorder = CreateEnhMetaFileW(screen.Get(), nullptr, nullptr, nullptr);
    DrawBoth(recorder, transform, estimate, print);
    const EnhancedMetafile recorded(CloseEnhMetaFile(recorder));
    ENHMETAHEADER header{};
    GetEnhMetaFileHeader(recorded.Get(), sizeof(header), &header);
    // Played into the rectangle that it fills, nothing is scaled.
    const RECT place{header.rclBounds.left, header.rclBounds.top, header.rclBounds.right,
                     header.rclBounds.bottom};
    constexpr int kRepeats = 20;
    measures.push_back(Compare(
        name, 15, 1.10,
        [&] {
            for (int i = 0; i < kRepeats; ++i) {
                DrawBoth(memory.Get(), transform, estimate, print);
            }
            GdiFlush();
        },
        [&] {
            for (int i = 0; i < kRepeats; ++i) {
                PlayEnhMetaFile(memory.Get(), recorded.Get(), &place);
            }
            GdiFlush();
        }));
}

// Milliseconds until a program has painted its window: it then waits for input.
double StartTime(const std::wstring& path) {
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    const double time = Time([&] {
        if (!CreateProcessW(path.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                            &startup, &process)) {
            std::abort();
        }
        WaitForInputIdle(process.hProcess, 10'000);
    });
    TerminateProcess(process.hProcess, 0);
    WaitForSingleObject(process.hProcess, 10'000);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return time;
}

void AddStart(Measures& measures, const std::wstring& folder) {
    measures.push_back(CompareTimes(
        "start to a painted form", 15, 1.15,
        [&] { return StartTime(folder + L"\\Tessaline.exe"); },
        [&] { return StartTime(folder + L"\\bare_windows.exe"); }));
}

void AddSize(Measures& measures, const std::wstring& folder) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    GetFileAttributesExW((folder + L"\\Tessaline.exe").c_str(), GetFileExInfoStandard, &data);
    const double megabytes = static_cast<double>(data.nFileSizeLow) / 1e6;
    measures.push_back({"size of Tessaline.exe", megabytes, std::nullopt, "MB", megabytes, 1.5});
}

}  // namespace

void AddScreenMeasures(Measures& measures, const std::wstring& programFolder) {
    CreateTheme();
    AddKeystrokes(measures);
    AddPages(measures, "both pages at preview size", 685, 886, false);
    AddPages(measures, "both pages at 600 dpi", 4692, 6138, true);
    AddStart(measures, programFolder);
    AddSize(measures, programFolder);
    ReleaseTheme();
}

}  // namespace tessaline::bench
