#include "document/preview.h"

#include <windows.h>

#include <psapi.h>

#include <set>

#include "document/page_transform.h"
#include "platform/controls.h"
#include "platform/handles.h"
#include "tests/support/readable.h"

using namespace tessaline;

namespace {

constexpr int kPrevious = 1;
constexpr int kNext = 2;

std::set<HWND> OpenPreviews() {
    std::set<HWND> found;
    HWND last = nullptr;
    while ((last = FindWindowExW(nullptr, last, L"GFE_Native_Preview", nullptr)) != nullptr) {
        if (GetWindowThreadProcessId(last, nullptr) == GetCurrentThreadId()) found.insert(last);
    }
    return found;
}

using WindowOwner = Owner<HWND, DestroyWindow>;

/// A window to open previews over; they go with it at the end of the test.
WindowOwner Desk() {
    return WindowOwner(CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100,
                                       60, 1200, 1000, nullptr, nullptr, nullptr, nullptr));
}

HWND Preview(const WindowOwner& desk, const Estimate& estimate) {
    const std::set<HWND> before = OpenPreviews();
    ShowPrintPreview(desk.Get(), estimate);
    std::set<HWND> opened = OpenPreviews();
    for (HWND window : before) opened.erase(window);
    REQUIRE(opened.size() == 1);
    return *opened.begin();
}

Estimate EstimateOfPages(int pages) {
    Estimate estimate;
    if (pages == 2) estimate.ProviderNotes = L"Notes";
    return estimate;
}

HWND PageLabel(HWND preview) {
    return FindWindowExW(preview, nullptr, L"STATIC", nullptr);
}

/// Position in the parent's client area, or on the screen, and size.
std::wstring Place(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&place), 2);
    return std::to_wstring(place.left) + L"," + std::to_wstring(place.top) + L" " +
           std::to_wstring(place.right - place.left) + L"x" +
           std::to_wstring(place.bottom - place.top);
}

void Press(HWND preview, int button) {
    SendMessageW(preview, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(preview, button)));
}

/// The colour on the screen in the middle of a rectangle of the page.
COLORREF ColourAt(HWND preview, const PageRect& rect) {
    UpdateWindow(preview);
    GdiFlush();
    RECT client{};
    GetClientRect(preview, &client);
    const RECT place = MapRect(PreviewTransform(client.right, client.bottom), rect);
    const WindowDeviceContext screen(preview);
    return GetPixel(screen.Get(), (place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

SIZE_T MemoryInUse() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return counters.PagefileUsage;
}

constexpr PageRect kFirstPageRule{42, 117, 732, 4};
constexpr PageRect kSecondPageRule{42, 96, 732, 3};
constexpr COLORREF kRuleColour = RGB(30, 139, 144);

}  // namespace

TEST_CASE("A preview opens over its owner with its buttons and label") {
    const WindowOwner desk = Desk();
    HWND preview = Preview(desk, EstimateOfPages(1));
    CHECK(WindowText(preview) == L"Print Preview \u2014 Good Faith Estimate");
    CHECK(GetWindow(preview, GW_OWNER) == desk.Get());
    CHECK((GetWindowLongPtrW(preview, GWL_EXSTYLE) & WS_EX_APPWINDOW) != 0);
    CHECK(GetClassLongPtrW(preview, GCLP_HBRBACKGROUND) == COLOR_BTNFACE + 1);
    CHECK(Place(preview) == L"250,70 900x980");  // over a window at 100,60 of 1200x1000

    struct Child {
        HWND window;
        const wchar_t* text;
        const wchar_t* place;
    };
    const Child children[] = {
        {GetDlgItem(preview, kPrevious), L"< Previous", L"18,12 92x28"},
        {GetDlgItem(preview, kNext), L"Next >", L"116,12 80x28"},
        {PageLabel(preview), L"Page 1 of 1", L"210,18 180x20"},
    };
    for (const Child& child : children) {
        CHECK(WindowText(child.window) == child.text);
        CHECK(Place(child.window) == child.place);
        CHECK(IsWindowVisible(child.window));
    }
    CHECK((GetWindowLongPtrW(PageLabel(preview), GWL_STYLE) & SS_TYPEMASK) == SS_CENTER);
}

TEST_CASE("The buttons turn the pages and stop at both ends") {
    const WindowOwner desk = Desk();
    HWND preview = Preview(desk, EstimateOfPages(2));
    CHECK(ColourAt(preview, kFirstPageRule) == kRuleColour);
    struct Step {
        int button;
        const wchar_t* label;
        PageRect rule;
    };
    const Step steps[] = {
        {kPrevious, L"Page 1 of 2", kFirstPageRule}, {kNext, L"Page 2 of 2", kSecondPageRule},
        {kNext, L"Page 2 of 2", kSecondPageRule},    {77, L"Page 2 of 2", kSecondPageRule},
        {kPrevious, L"Page 1 of 2", kFirstPageRule},
    };
    for (const Step& step : steps) {
        Press(preview, step.button);
        CHECK(WindowText(PageLabel(preview)) == step.label);
        CHECK(ColourAt(preview, step.rule) == kRuleColour);
    }
}

TEST_CASE("Previews know nothing of each other and of later changes") {
    const WindowOwner desk = Desk();
    Estimate estimate = EstimateOfPages(2);
    HWND first = Preview(desk, estimate);
    estimate = EstimateOfPages(1);
    HWND second = Preview(desk, estimate);
    Press(first, kNext);
    CHECK(WindowText(PageLabel(first)) == L"Page 2 of 2");
    SendMessageW(first, WM_CLOSE, 0, 0);
    CHECK(OpenPreviews() == std::set<HWND>{second});
    Press(second, kNext);
    CHECK(WindowText(PageLabel(second)) == L"Page 1 of 1");
    CHECK(ColourAt(second, kFirstPageRule) == kRuleColour);
}

TEST_CASE("A preview of any size can be painted") {
    const WindowOwner desk = Desk();
    HWND preview = Preview(desk, EstimateOfPages(2));
    for (const int size : {0, 50, 120, 200, 3000}) {
        SetWindowPos(preview, nullptr, 0, 0, size, size / 2, SWP_NOZORDER);
        CHECK(UpdateWindow(preview));
    }
}

TEST_CASE("Previews go with their owner") {
    {
        const WindowOwner desk = Desk();
        HWND first = Preview(desk, EstimateOfPages(1));
        CHECK(Preview(desk, EstimateOfPages(2)) != first);
    }
    CHECK(OpenPreviews().empty());
}

TEST_CASE("A closed preview gives back its copy of the record") {
    const WindowOwner desk = Desk();
    Estimate estimate;
    estimate.ProviderNotes.assign(5'000'000, L'n');
    const SIZE_T before = MemoryInUse();
    for (int i = 0; i < 10; ++i) SendMessageW(Preview(desk, estimate), WM_CLOSE, 0, 0);
    CHECK(MemoryInUse() < before + 20'000'000);
}
