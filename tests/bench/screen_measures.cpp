// What the screen costs: a keystroke in the search box, the pages, the start.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "document/estimate_pages.h"
#include "platform/controls.h"
#include "platform/handles.h"
#include "platform/theme.h"
#include "store/lookup_window.h"
#include "tests/bench/bench.h"
#include "ui/sample_estimate.h"
#include "ui/window_names.h"

namespace tessaline::bench {
namespace {

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
double StartTime(std::wstring commandLine, const wchar_t* windowClass) {
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    const double time = Milliseconds([&] {
        Demand(CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                              nullptr, &startup, &process));
        HWND window = nullptr;
        while (!IsWindowVisible(window)) {
            Sleep(1);
            window = FindWindowW(windowClass, nullptr);
        }
        SendMessageW(window, WM_NULL, 0, 0);
    });
    TerminateProcess(process.hProcess, 0);
    const FileOwner running(process.hProcess);
    const FileOwner thread(process.hThread);
    WaitForSingleObject(running.Get(), 10'000);
    return time;
}

}  // namespace

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
        Race(21, {[] { return StartTime(L"build\\release\\Tessaline.exe", kMainClass); },
                  [] { return StartTime(L"build\\release\\bare_windows.exe", L"BARE"); }});
    Report("start to a painted form", times[0], times[1], 1.15);
}

}  // namespace tessaline::bench
