// A user who does anything at all, at random, with the whole program.
#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <random>
#include <vector>

#include "platform/controls.h"
#include "store/catalogue.h"
#include "tests/support/readable.h"
#include "tests/support/record_values.h"
#include "tests/support/stand_in.h"
#include "tests/ui/running_program.h"
#include "tests/ui/told_window.h"
#include "ui/control_ids.h"

extern "C" {
extern decltype(&CreateCompatibleDC) __imp_CreateCompatibleDC;
extern decltype(&CreateFontW) __imp_CreateFontW;
extern decltype(&CreatePen) __imp_CreatePen;
extern decltype(&CreateSolidBrush) __imp_CreateSolidBrush;
extern decltype(&DeleteObject) __imp_DeleteObject;
}

using namespace tessaline;

namespace {

int drawing = 0;  // objects and device contexts that are not given back yet
int writes = 0;

// Counts the successes of an imported function.
template <int step, int& count = drawing, typename Result, typename... Arguments>
void Count(Result (*&pointer)(Arguments...)) {
    static Result (*const own)(Arguments...) = pointer;
    Write(pointer, [](Arguments... arguments) {
        const Result result = own(arguments...);
        if (result) count += step;
        return result;
    });
}

// The descendants of a window but for labels, or for none the windows of the thread.
std::vector<HWND> Windows(HWND parent) {
    std::vector<HWND> windows;
    const WNDENUMPROC add = [](HWND window, LPARAM list) -> BOOL {
        if (ClassOf(window) == L"Static") return TRUE;
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
    };
    const auto list = reinterpret_cast<LPARAM>(&windows);
    parent ? EnumChildWindows(parent, add, list)
           : EnumThreadWindows(GetCurrentThreadId(), add, list);
    return windows;
}

class RandomUser {
  public:
    explicit RandomUser(unsigned seed) : random_(seed) {
        program.LeaveTo([this](HWND modal) { IsBox(modal) ? AnswerBox(modal) : Act(modal); });
    }

    // With the main window, now and then with a preview.
    void Act() { Act(Preview() != nullptr && Below(3) == 0 ? Preview() : program.app.mainWindow); }

    RunningProgram program{96};
    unsigned actions = 0;

  private:
    int Below(std::size_t limit) { return static_cast<int>(random_() % limit); }

    // Anything that can be done with a window: to itself, else to something in it.
    void Act(HWND window) {
        ++actions;
        const bool isMain = window == program.app.mainWindow;
        const int action = Below(isMain ? 16 : 8);
        const std::vector<HWND> inside = Windows(window);
        if (action == 0) {
            // A form without changes would close at once, and the program with it.
            if (!isMain || program.app.IsModified) PostMessageW(window, WM_CLOSE, 0, 0);
        } else if (action == 1) {
            const UINT message = Below(8) == 0 ? WM_QUERYENDSESSION : WM_TIMER;
            PostMessageW(program.app.mainWindow, message, 1, 0);
        } else if (action == 2) {
            SetWindowPos(window, nullptr, 0, 0, Below(2000), Below(1500), SWP_NOMOVE);
        } else if (action == 3) {
            constexpr WPARAM kKeys[] = {VK_TAB, VK_RETURN, VK_ESCAPE};
            PostMessageW(GetFocus(), WM_KEYDOWN, kKeys[Below(3)], 0);
        } else if (action == 4 && isMain) {
            // By chance alone, a form would seldom be complete.
            SendMessageW(ControlById(kSampleButton), BM_CLICK, 0, 0);
            const int output = Below(2) == 0 ? kPreviewButton : kPrintButton;
            PostMessageW(ControlById(output), BM_CLICK, 0, 0);
        } else if (!inside.empty()) {
            Touch(inside[random_() % inside.size()]);
        }
    }

    void AnswerBox(HWND box) {
        HWND first = nullptr, no = nullptr;
        const std::wstring words = DescribeBox(box, L"", first);
        CHECK(DescribeBox(box, L"] No", no).find(L"memory") == std::wstring::npos);
        // The program is to go on.
        const bool ends = words.find(L"Close the program?") != std::wstring::npos;
        SendMessageW(ends || Below(2) == 0 ? no : first, BM_CLICK, 0, 0);
    }

    void Touch(HWND control) {
        const std::wstring kind = ClassOf(control);
        if (kind == L"Edit") {
            Type(control);
        } else if (kind == L"Button") {
            if (IsWindowEnabled(control)) PostMessageW(control, BM_CLICK, 0, 0);
        } else if (kind == L"ComboBox") {
            PostMessageW(control, WM_KEYDOWN, Below(2) == 0 ? VK_DOWN : VK_UP, 0);
        } else if (kind == L"SysListView32") {
            ListView_SetItemState(control, Below(4), LVIS_SELECTED, LVIS_SELECTED);
            const LPARAM place = MAKELPARAM(20, 30 + 18 * Below(4));
            PostMessageW(control, WM_LBUTTONDBLCLK, MK_LBUTTON, place);
        } else {
            PostMessageW(control, WM_VSCROLL, random_() % 8, 0);
            PostMessageW(control, WM_MOUSEWHEEL, MAKEWPARAM(0, 120 * (Below(21) - 10)), 0);
        }
    }

    void Type(HWND edit) {
        static const std::wstring many(3000, L'x');
        // clang-format off
        const wchar_t* const texts[] = {
            L"", L"Ann", L"  Lee ", L"02/29/1984", L"62701", L"1", L"ann@lee.example",
            L"$1,234.50", L"-3", L"1e308", L"a/b:c|?", L"DEMO-1", L"\u4F60 \U0001F600",
            L"1\r\n2", many.c_str()};
        // clang-format on
        // In front of what is there, or in its place. Half a character would not be saved as it
        // is.
        SendMessageW(edit, EM_SETSEL, 0, Below(4) == 0 ? 0 : -1);
        const wchar_t* text = texts[random_() % std::size(texts)];
        SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
    }

    std::mt19937 random_;
};

}  // namespace

TEST_CASE("Whatever a user does, the program goes on, loses nothing and leaks nothing") {
    const unsigned seed = Setting(L"TESSALINE_SEED", 20260307);
    const unsigned wanted = Setting(L"TESSALINE_ACTIONS", 1500);
    std::printf("TESSALINE_SEED=%u TESSALINE_ACTIONS=%u\n", seed, wanted);
    std::fflush(stdout);
    PretendPrinter();
    Count<1>(__imp_CreateCompatibleDC);
    Count<1>(__imp_CreateFontW);
    Count<1>(__imp_CreatePen);
    Count<1>(__imp_CreateSolidBrush);
    Count<1>(__imp_GetDC);
    Count<-1>(__imp_DeleteDC);
    Count<-1>(__imp_DeleteObject);
    Count<-1>(__imp_ReleaseDC);
    Count<1, writes>(__imp_WriteFile);
    RandomUser user(seed);
    const RunningProgram& program = user.program;
    const HWND main = program.app.mainWindow;
    program.PutFiles();
    RedrawWindow(main, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    const std::size_t windows = Windows(nullptr).size(), controls = Windows(main).size();
    const int objects = drawing;
    while (user.actions < wanted) {
        user.Act();
        CAPTURE(user.actions);
        REQUIRE(program.Settle() == -1);
        CHECK(IsWindowEnabled(main));
        // Open shows what its list was made of, also when an automatic save came in between.
        const bool isOpened = WindowText(program.app.statusLine) == L"Estimate opened";
        if (std::exchange(writes, 0) > 0 && !isOpened) program.CheckForm();
    }
    program.CloseOutput();
    CHECK(program.Settle() == -1);
    CHECK(Windows(nullptr).size() == windows);
    CHECK(Windows(main).size() == controls);
    CHECK((drawing == objects && objects > 0));
    program.CheckFiles();
    const std::size_t files = LoadAllEstimates(program.store).size();
    CHECK((files > 2 && printJobs.ended > 0));
    std::printf("%u actions, %zu files, %d print jobs\n", user.actions, files, printJobs.ended);
}
