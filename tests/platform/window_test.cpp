#include "platform/window.h"

#include "platform/handles.h"
#include "tests/support/rule_table.h"
#include "tests/support/stand_in.h"

using namespace tessaline;

namespace {

RECT workArea;
using WindowOwner = Owner<HWND, DestroyWindow>;

RECT RectOf(Cell text) {
    RECT rect{};
    std::wistringstream(text) >> rect.left >> rect.top >> rect.right >> rect.bottom;
    return rect;
}

WindowOwner MakeWindow(Cell place) {
    const RECT rect = RectOf(place);
    return WindowOwner(CreateWindowExW(0, L"STATIC", L"", WS_POPUP, rect.left, rect.top,
                                       rect.right, rect.bottom, nullptr, nullptr, nullptr,
                                       nullptr));
}

}  // namespace

TEST_CASE("Windows stand in the middle of others, but no title bar leaves the work area") {
    const StandIn monitor(__imp_GetMonitorInfoW, [](HMONITOR, LPMONITORINFO info) {
        info->rcWork = workArea;
        return TRUE;
    });
    const auto place = [](Cell area, Cell around, Cell own, Cell state) {
        workArea = RectOf(area);
        const WindowOwner reference = MakeWindow(around);
        const WindowOwner window = MakeWindow(own);
        if (state == L"owner minimised") ShowWindow(reference.Get(), SW_SHOWMINNOACTIVE);
        if (state == L"minimised") ShowWindow(window.Get(), SW_SHOWMINNOACTIVE);
        if (state == L"maximised") ShowWindow(window.Get(), SW_SHOWMAXIMIZED);
        RECT before{}, after{};
        GetWindowRect(window.Get(), &before);
        CentreWindow(window.Get(), state == L"alone" ? nullptr : reference.Get());
        GetWindowRect(window.Get(), &after);
        if (state.ends_with(L"mised") && EqualRect(&before, &after)) return std::wstring(L"stays");
        return Told(after.left) + L" " + Told(after.top);
    };
    CheckRules(L"centring.txt", {{L"centre", place}});
}
