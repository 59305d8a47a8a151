// What the screen costs: a keystroke in the search box, the pages, the start.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "document/estimate_pages.h"
#include "platform/controls.h"
#include "platform/files.h"
#include "platform/handles.h"
#include "platform/theme.h"
#include "store/lookup_window.h"
#include "tests/bench/bare_window.h"
#include "tests/bench/bench.h"
#include "ui/app_state.h"
#include "ui/main_window.h"
#include "ui/sample_estimate.h"

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

void AddKeystrokes(Measures& measures) {
    const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                        820, 525, nullptr, nullptr, nullptr, nullptr);
    const LookupState state = ManyEstimates(window);
    std::vector<const LookupRow*> all;
    for (const LookupRow& row : state.rows) all.push_back(&row);
    std::vector<const LookupRow*> few;
    for (std::size_t index = 0; index < all.size(); index += 1000) few.push_back(all[index]);
    const auto add = [&](const char* name, const wchar_t* search, int repeats, const auto& rows) {
        SetWindowTextW(state.searchBox, search);
        measures.push_back(Compare(
            name, repeats, 1.10, [&] { FillLookupList(state); },
            [&] { BareFill(state.list, rows); }));
        if (ListView_GetItemCount(state.list) != int(rows.size())) std::abort();
    };
    add("a keystroke, 10,000 rows shown", L"", 1, all);
    add("a keystroke, 10 of 10,000 rows shown", L"seldom", 20, few);
    DestroyWindow(window);
}

void AddPages(Measures& measures, const char* name, int width, int height, bool print) {
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
    measures.push_back(Compare(
        name, 20, 1.10, [&] { draw(memory.Get()); },
        [&] {
            PlayEnhMetaFile(memory.Get(), recorded, &place);
            GdiFlush();
        }));
    DeleteEnhMetaFile(recorded);
}

BareWindow Describe(HWND window, const std::vector<HWND>& earlier) {
    BareWindow row{};
    const auto indexOf = [&](auto same) {
        const auto found = std::find_if(earlier.begin(), earlier.end(), same);
        return found == earlier.end() ? -1 : int(found - earlier.begin());
    };
    GetClassNameW(window, row.className, 32);
    if (std::wstring(row.className).starts_with(L"GFE_")) wcscpy(row.className, L"BARE");
    GetWindowTextW(window, row.text, 128);
    row.style = DWORD(GetWindowLongW(window, GWL_STYLE));
    row.extendedStyle = DWORD(GetWindowLongW(window, GWL_EXSTYLE));
    row.parent = indexOf([&](HWND other) { return other == GetAncestor(window, GA_PARENT); });
    GetWindowRect(window, &row.box);
    row.box.right -= row.box.left;
    row.box.bottom -= row.box.top;
    MapWindowPoints(nullptr, GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&row.box),
                    1);
    const LRESULT font = SendMessageW(window, WM_GETFONT, 0, 0);
    row.fontOf =
        indexOf([&](HWND other) { return SendMessageW(other, WM_GETFONT, 0, 0) == font; });
    if (font == 0)
        row.fontOf = -1;
    else if (row.fontOf < 0)
        row.fontOf = int(earlier.size());
    GetObjectW(reinterpret_cast<HFONT>(font), sizeof(row.font), &row.font);
    return row;
}

// The windows of the real form, for the bare program.
void DescribeForm(const std::wstring& path) {
    AppState app;
    app.store = LocalStoreBelow(path);
    PublishAppState(&app);
    const HWND main = CreateMainWindow();
    std::vector<HWND> windows = {main};
    EnumChildWindows(
        main,
        [](HWND child, LPARAM list) -> BOOL {
            // A list view makes its header itself.
            wchar_t name[32];
            GetClassNameW(child, name, 32);
            if (name != std::wstring(WC_HEADERW)) {
                reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    std::vector<BareWindow> rows;
    std::vector<HWND> earlier;
    for (const HWND window : windows) {
        rows.push_back(Describe(window, earlier));
        earlier.push_back(window);
    }
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(rows.data());
    if (!WriteFileBytes(path, {bytes, rows.size() * sizeof(BareWindow)})) std::abort();
    DestroyWindow(main);
    PublishAppState(nullptr);
}

// Milliseconds until a program has painted its window: it then waits for input.
double StartTime(std::wstring commandLine) {
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    const double time = Milliseconds([&] {
        if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                            nullptr, &startup, &process)) {
            std::abort();
        }
        WaitForInputIdle(process.hProcess, 10'000);
    });
    TerminateProcess(process.hProcess, 0);
    const FileOwner running(process.hProcess);
    const FileOwner thread(process.hThread);
    WaitForSingleObject(running.Get(), 10'000);
    return time;
}

void AddStart(Measures& measures, const std::wstring& folder) {
    DescribeForm(folder + L"\\bare_windows.bin");
    const std::vector<double> times =
        Race(15, {[&] { return StartTime(folder + L"\\Tessaline.exe"); },
                  [&] {
                      return StartTime(folder + L"\\bare_windows.exe " + folder +
                                       L"\\bare_windows.bin");
                  }});
    measures.push_back(Ratio("start to a painted form", times[0], times[1], 1.15));
}

}  // namespace

void AddScreenMeasures(Measures& measures, const std::wstring& folder) {
    CreateTheme();
    AddKeystrokes(measures);
    AddPages(measures, "both pages at preview size", 685, 886, false);
    AddPages(measures, "both pages at 600 dpi", 4692, 6138, true);
    AddStart(measures, folder);
    const double size =
        double(std::filesystem::file_size(folder + L"\\Tessaline.exe")) / (1024 * 1024);
    measures.push_back({"size of Tessaline.exe", size, {}, "MB", size, 1.5});
    ReleaseTheme();
}

}  // namespace tessaline::bench
