#include "tests/ui/told_window.h"

#include <commctrl.h>

#include <regex>
#include <sstream>
#include <string_view>

#include "platform/controls.h"
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

std::wstring Columns(HWND list) {
    std::wostringstream columns;
    wchar_t text[256] = L"";
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
    column.pszText = text;
    column.cchTextMax = 256;
    for (int index = 0; ListView_GetColumn(list, index, &column); ++index) {
        columns << (index == 0 ? L"" : L"|") << text << L' ' << Unscale(column.cx)
                << ((column.fmt & LVCFMT_JUSTIFYMASK) == LVCFMT_RIGHT ? L" right" : L"");
    }
    CHECK(ListView_GetExtendedListViewStyle(list) ==
          (LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES | LVS_EX_DOUBLEBUFFER));
    return columns.str();
}

// The window as a line of the file has it.
std::wstring Line(HWND window) {
    const std::wstring className = ClassOf(window);
    auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE)) & ~DWORD{WS_HSCROLL};
    const auto extended = static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE));
    RECT place = PlaceOf(window);
    std::wstring text = WindowText(window);
    if (className == L"ComboBox") {
        // With its list, as it was made. Windows counts the closed box in; Wine leaves it out.
        RECT opened{};
        SendMessageW(window, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&opened));
        const int height = Unscale(opened.bottom - opened.top);
        place.bottom = Scale(height > 190 && height < 220 ? 220 : height);
        style &= ~DWORD{CBS_HASSTRINGS};  // which Windows adds
    }
    if (className == L"SysListView32") text = Columns(window);
    if (extended == WS_EX_STATICEDGE) place.right = place.bottom = 0;  // measures itself
    LOGFONTW font{};
    const LRESULT handle = SendMessageW(window, WM_GETFONT, 0, 0);
    GetObjectW(reinterpret_cast<HFONT>(handle), sizeof(font), &font);
    std::wostringstream told;
    for (const auto& [kind, name, kindStyle, kindExtended] : kKinds) {
        if (name == className && kindStyle == style && kindExtended == extended) told << kind;
    }
    if (told.str().empty()) told << className << std::hex << style << L' ' << extended << std::dec;
    told << L' ' << GetDlgCtrlID(window);
    for (const LONG side : {place.left, place.top, place.right, place.bottom}) {
        CHECK(Scale(Unscale(side)) == side);
        told << L' ' << Unscale(side);
    }
    CHECK((handle == 0 || font.lfFaceName == std::wstring(L"Segoe UI")));
    for (const auto& [name, points, weight] : kFonts) {
        if (font.lfHeight == -MulDiv(points, ScreenDpi(), 72) && font.lfWeight == weight) {
            told << L' ' << name;
        }
    }
    return told.str() + (text.empty() ? L"" : L" " + text);
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

std::wstring Section(const std::wstring& name) {
    const std::wstring file = FromUtf8(TestData(L"ui/windows.txt"));
    const std::size_t start = file.find(L"[" + name + L"]\n");
    CHECK(start != std::wstring::npos);
    const std::size_t first = start + name.size() + 3;
    const std::wstring lines = file.substr(first, file.find(L"\n\n", first) - first);
    return std::regex_replace(lines, std::wregex(L" +"), L" ");
}

std::vector<std::wstring> ToldWindow(HWND window) {
    std::vector<std::wstring> lines;
    if (GetWindow(window, GW_OWNER)) lines.push_back(Line(window));
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        lines.push_back(Line(child));
    return lines;
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
