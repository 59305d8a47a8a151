#include "tests/ui/told_window.h"

#include <commctrl.h>

#include <climits>
#include <sstream>
#include <string_view>
#include <vector>

#include "platform/controls.h"
#include "platform/handles.h"
#include "platform/scale.h"
#include "tests/support/readable.h"

namespace tessaline {
namespace {

// clang-format off
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE, kStop = kChild | WS_TABSTOP;
constexpr DWORD kType = kStop | ES_AUTOHSCROLL, kFrame = WS_EX_CLIENTEDGE;
constexpr DWORD kPopup = WS_CAPTION | WS_SYSMENU | WS_VISIBLE | WS_CLIPSIBLINGS;
constexpr DWORD kModal = WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE;
constexpr struct { std::wstring_view kind, className; DWORD style, extended; } kKinds[] = {
    {L"label", L"Static", kChild, 0}, {L"hidden", L"Static", WS_CHILD, 0},
    {L"rule", L"Static", kChild | SS_ETCHEDHORZ, WS_EX_STATICEDGE},
    {L"group", L"Button", kChild | BS_GROUPBOX, 0}, {L"button", L"Button", kStop, 0},
    {L"check", L"Button", kStop | BS_AUTOCHECKBOX, 0}, {L"edit", L"Edit", kType, kFrame},
    {L"notes", L"Edit", kType | ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL, kFrame},
    {L"choice", L"ComboBox", kStop | CBS_DROPDOWNLIST, 0},
    {L"list", L"SysListView32", kStop | LVS_REPORT | LVS_SINGLESEL, kFrame},
    {L"panel", L"NORVAK_GFE_NATIVE_TOTAL", kChild, kFrame},
    {L"header", L"NORVAK_GFE_NATIVE_HEADER", kChild, 0},
    {L"bar", L"NORVAK_GFE_NATIVE_BAR", kChild, kFrame},
    {L"scroll", L"NORVAK_GFE_NATIVE_SCROLL", kChild | WS_CLIPCHILDREN | WS_VSCROLL, 0},
    {L"item", L"GFE_LineDialog", kPopup, kModal}, {L"separate", L"GFE_SepDialog", kPopup, kModal},
    {L"lookup", L"GFE_Lookup", kPopup | WS_THICKFRAME, kModal},
    {L"about", L"GFE_About", kPopup | WS_CLIPCHILDREN, kModal},
    {L"preview", L"GFE_Native_Preview", WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPSIBLINGS,
     WS_EX_APPWINDOW | WS_EX_WINDOWEDGE},
    {L"turn", L"Button", kChild, 0}, {L"page", L"Static", kChild | SS_CENTER, 0}};
constexpr struct { std::wstring_view name; int points, weight; } kFonts[] = {
    {L"ui", 9, 400}, {L"label", 8, 400}, {L"small", 7, 400}, {L"bold", 9, 600},
    {L"title", 20, 600}, {L"section", 12, 600}, {L"total", 17, 600}, {L"none", 0, 0}};
// clang-format on

// The columns of a list with their widths, in which the titles fit.
std::wstring Columns(HWND list) {
    std::wstring columns;
    wchar_t text[256] = L"";
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
    column.pszText = text;
    column.cchTextMax = 256;
    for (int index = 0; ListView_GetColumn(list, index, &column); ++index) {
        const bool right = (column.fmt & LVCFMT_JUSTIFYMASK) == LVCFMT_RIGHT;
        columns += (index == 0 ? L"" : L", ") + std::wstring(text) + L" " +
                   std::to_wstring(Unscale(column.cx)) + (right ? L" right" : L"");
        CHECK(column.cx >= ListView_GetStringWidth(list, text));
    }
    CHECK(ListView_GetExtendedListViewStyle(list) ==
          (LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES | LVS_EX_DOUBLEBUFFER));
    return columns;
}

// What a choice offers, the chosen one in front.
std::wstring Entries(HWND choice) {
    std::wstring entries = ChoiceText(choice) + L":";
    wchar_t text[256] = L"";
    const LRESULT count = SendMessageW(choice, CB_GETCOUNT, 0, 0);
    for (LRESULT index = 0; index < count; ++index) {
        SendMessageW(choice, CB_GETLBTEXT, WPARAM(index), reinterpret_cast<LPARAM>(text));
        entries += (index == 0 ? L" " : L", ") + std::wstring(text);
    }
    return entries;
}

std::wstring KindOf(HWND window) {
    const std::wstring className = ClassOf(window);
    const auto extended = static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE));
    // Windows adds strings to a choice, and a scroll bar to what is wide.
    const DWORD style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE)) &
                        ~DWORD{WS_HSCROLL} &
                        ~(className == L"ComboBox" ? DWORD{CBS_HASSTRINGS} : 0);
    for (const auto& [kind, name, kindStyle, kindExtended] : kKinds) {
        if (name == className && kindStyle == style && kindExtended == extended) {
            return std::wstring(kind);
        }
    }
    return className + L" of an unknown style";
}

std::wstring FontOf(HWND window) {
    LOGFONTW font{};
    const LRESULT handle = SendMessageW(window, WM_GETFONT, 0, 0);
    GetObjectW(reinterpret_cast<HFONT>(handle), sizeof(font), &font);
    CHECK((handle == 0 || font.lfFaceName == std::wstring(L"Segoe UI")));
    for (const auto& [name, points, weight] : kFonts) {
        if (font.lfHeight == -MulDiv(points, ScreenDpi(), 72) && font.lfWeight == weight) {
            return std::wstring(name);
        }
    }
    return L"unknown font";
}

// A window as the pictures have it: kind, ID, font where it is not the kind's usual one, place
// where it is computed, text.
std::wstring Told(HWND window) {
    const std::wstring kind = KindOf(window), font = FontOf(window);
    RECT place = PlaceOf(window);
    if (kind == L"choice") place.bottom = 0;  // closed, it has the height that its font asks for
    for (const LONG side : {place.left, place.top, place.right, place.bottom}) {
        CHECK((kind == L"rule" || Scale(Unscale(side)) == side));
    }
    std::wostringstream told;
    told << kind;
    if (const int id = GetDlgCtrlID(window); id > 0 && id < 0xFFFF) told << L' ' << id;
    if (font != (kind == L"label" ? L"label" : L"ui") && font != L"none") told << L' ' << font;
    const bool isComputed = kind == L"group" || GetWindow(window, GW_OWNER) != nullptr ||
                            ClassOf(GetParent(window)).starts_with(L"NORVAK_GFE_NATIVE_BAR") ||
                            ClassOf(GetParent(window)).starts_with(L"NORVAK_GFE_NATIVE_MAIN");
    if (isComputed) {
        told << L' ' << Unscale(place.left) << L',' << Unscale(place.top);
        if (kind != L"choice")
            told << L' ' << Unscale(place.right) << L'x' << Unscale(place.bottom);
    }
    const std::wstring text = kind == L"list"     ? Columns(window)
                              : kind == L"choice" ? Entries(window)
                                                  : WindowText(window);
    return told.str() + (text.empty() ? L"" : L" '" + text + L"'");
}

bool HasText(HWND control) {
    const std::wstring kind = ClassOf(control);
    return (kind == L"Static" || kind == L"Button") && GetWindowTextLengthW(control) > 0;
}

// What a control's text needs, broken into lines that are as wide as the control.
RECT SizeOfText(HWND control) {
    RECT needed{};
    GetClientRect(control, &needed);
    const WindowDeviceContext screen(control);
    const LRESULT font = SendMessageW(control, WM_GETFONT, 0, 0);
    const SelectGuard selected(screen.Get(), reinterpret_cast<HFONT>(font));
    DrawTextW(screen.Get(), WindowText(control).c_str(), -1, &needed,
              DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    return needed;
}

// What a thing covers of the screen, which of a label is its text.
RECT Covers(HWND window) {
    RECT covered{};
    GetWindowRect(window, &covered);
    if (ClassOf(window) != L"Static" || !HasText(window)) return covered;
    const RECT text = SizeOfText(window);
    return {covered.left, covered.top, covered.left + text.right, covered.top + text.bottom};
}

bool IsInside(HWND window, HWND frame) {
    RECT inner{}, outer{}, common{};
    GetWindowRect(window, &inner);
    GetWindowRect(frame, &outer);
    return IntersectRect(&common, &inner, &outer) && EqualRect(&common, &inner);
}

// What holds for a child of any window, the group that it stands in being the last one before it.
void CheckRules(HWND window, HWND child, HWND group) {
    CAPTURE(WindowText(child));
    CHECK(IsInside(child, window));
    CHECK((group == nullptr || IsInside(child, group)));
    CHECK(FitsIts(child));
    for (HWND other = child; (other = GetWindow(other, GW_HWNDNEXT)) != nullptr;) {
        const RECT one = Covers(child), two = Covers(other);
        RECT common{};
        const bool counts = KindOf(other) != L"group" && IsWindowVisible(other);
        CHECK_FALSE((counts && IntersectRect(&common, &one, &two)));
    }
}

}  // namespace

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    return name;
}

RECT PlaceOf(HWND window) {
    RECT place{}, around{};
    GetWindowRect(window, &place);
    place.right -= place.left;
    place.bottom -= place.top;
    if (const HWND owner = GetWindow(window, GW_OWNER)) {
        GetWindowRect(owner, &around);
        place.left -= around.left + (around.right - around.left - place.right) / 2;
        place.top -= around.top + (around.bottom - around.top - place.bottom) / 2;
    } else {
        const HWND parent = GetAncestor(window, GA_PARENT);
        MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 1);
    }
    return place;
}

std::wstring Picture(const std::wstring& name) {
    std::wstring file = FromUtf8(TestData(L"pictures.txt"));
    file.replace(file.find(L"@VERSION@"), 9, kProductVersion);
    const std::size_t start = file.find(L"[" + name + L"]\n");
    CAPTURE(name);
    REQUIRE(start != std::wstring::npos);
    const std::size_t first = start + name.size() + 3;
    return file.substr(first, file.find(L"\n\n", first) - first);
}

void CheckPicture(HWND window, const std::wstring& name) {
    std::vector<std::wstring> lines;
    if (GetWindow(window, GW_OWNER)) lines.push_back(Told(window));
    HWND group = nullptr;
    RECT last{LONG_MIN, LONG_MIN, 0, 0};
    bool isAfterLabel = false;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const RECT place = PlaceOf(child);
        const bool isLabel = KindOf(child) == L"label";
        const bool isLabelled = isAfterLabel && !isLabel && place.left == last.left;
        if (isLabelled) lines.back() += L" " + Told(child);
        if (!isLabelled && place.top == last.top) lines.back() += L" | " + Told(child);
        if (!isLabelled && place.top != last.top) lines.push_back(Told(child));
        if (!isLabelled) last = place;
        isAfterLabel = isLabel;
        if (KindOf(child) == L"group") group = child;
        if (child != group && IsWindowVisible(child)) CheckRules(window, child, group);
    }
    CheckLines(lines, Picture(name));
}

bool FitsIts(HWND control) {
    RECT inside{};
    GetClientRect(control, &inside);
    if (!HasText(control)) return true;
    const RECT needed = SizeOfText(control);
    return needed.right <= inside.right && needed.bottom <= inside.bottom;
}

std::wstring Cells(HWND list) {
    std::wstring cells;
    wchar_t text[256] = L"";
    const int columns = Header_GetItemCount(ListView_GetHeader(list));
    for (int cell = 0; cell < columns * ListView_GetItemCount(list); ++cell) {
        ListView_GetItemText(list, cell / columns, cell % columns, text, 256);
        cells += text + std::wstring((cell + 1) % columns == 0 ? L";" : L"|");
    }
    return cells;
}

}  // namespace tessaline
