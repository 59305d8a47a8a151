#include "tests/ui/running_program.h"

#include <commctrl.h>

#include "platform/controls.h"
#include "platform/scale.h"
#include "platform/theme.h"
#include "store/catalogue.h"
#include "store/estimate_file.h"
#include "tests/support/readable.h"
#include "tests/support/record_values.h"
#include "tests/support/stand_in.h"
#include "tests/ui/told_window.h"
#include "ui/frame/main_window.h"

namespace tessaline {
namespace {

RunningProgram* running = nullptr;

// The box or dialog that takes the input, whether this program is in the foreground or not.
HWND ModalWindow() {
    const StandIn sound(allocationsLeft, 0);
    HWND modal = nullptr;
    const auto look = [](HWND window, LPARAM found) -> BOOL {
        const std::wstring name = ClassOf(window);
        if (!IsBox(window) && (!name.starts_with(L"GFE_") || name.ends_with(L"Preview")))
            return TRUE;
        if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    };
    EnumThreadWindows(GetCurrentThreadId(), look, reinterpret_cast<LPARAM>(&modal));
    return modal;
}

}  // namespace

bool IsBox(HWND window) {
    const StandIn sound(allocationsLeft, 0);
    return ClassOf(window) == L"#32770";
}

std::wstring DescribeBox(HWND box, const std::wstring& expected, HWND& answer) {
    const std::pair<LPCWSTR, wchar_t> icons[] = {
        {IDI_INFORMATION, L'i'}, {IDI_WARNING, L'!'}, {IDI_ERROR, L'x'}, {IDI_QUESTION, L'?'}};
    std::wstring icon, text, buttons;
    for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        std::wstring words = WindowText(child);
        if (ClassOf(child) == L"Button") {
            std::erase(words, L'&');
            if (answer == nullptr || expected.ends_with(L"] " + words)) answer = child;
            buttons += L" " + words;
        } else if (const LRESULT shown = SendMessageW(child, STM_GETICON, 0, 0)) {
            for (const auto& [resource, name] : icons) {
                if (reinterpret_cast<HICON>(shown) == LoadIconW(nullptr, resource)) icon += name;
            }
        } else {
            text += words;
        }
    }
    return icon + L" " + WindowText(box) + L": " + text + L" [" + buttons.substr(1) + L"]";
}

HWND Preview() {
    return FindWindowW(L"GFE_Native_Preview", nullptr);
}

bool IsWaiting() {
    return GetCursor() == LoadCursorW(nullptr, IDC_WAIT);
}

RunningProgram::RunningProgram(int dpi) {
    InitCommonControls();
    SetScreenDpi(dpi);
    CreateTheme();
    app.store = store;
    PublishAppState(&app);
    running = this;
    // Any loop dispatches it, those of message boxes too, and only when nothing else waits.
    timer_ = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, [](HWND, UINT, UINT_PTR, DWORD) {
        // Windows would keep to itself what is thrown here.
        try {
            if (const HWND modal = ModalWindow()) running->user_(modal);
        } catch (const doctest::detail::TestFailureException&) {
            return;  // told already
        } catch (const std::exception& fault) {
            FAIL_CHECK(fault.what());
        }
    });
    ShowWindow(CreateMainWindow(), SW_SHOW);
    Settle();
}

RunningProgram::~RunningProgram() {
    // An idle program has no file open.
    ForEachFile(store.EstimatesFolder, L"*", [this](const std::wstring& name) {
        CHECK(store.Lock(name).Get() != INVALID_HANDLE_VALUE);
        return true;
    });
    if (IsWindow(app.mainWindow)) {
        CHECK(KillTimer(app.mainWindow, 1));  // the automatic save's
        DestroyWindow(app.mainWindow);
    }
    Settle();
    // Previews go with their owner.
    CHECK(Preview() == nullptr);
    KillTimer(nullptr, timer_);
    PublishAppState(nullptr);
}

int RunningProgram::Settle() const {
    int quitCode = -1;
    for (MSG message{}; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
        if (message.message == WM_QUIT) quitCode = static_cast<int>(message.wParam);
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return quitCode;
}

void RunningProgram::PutFiles() const {
    // The first of the lists.
    Estimate full = DistinctEstimate();
    full.LastModifiedOn = 4'000'000'000;
    REQUIRE(store.PutEstimate(L"full.gfe", full));
    REQUIRE(store.Put(L"..\\data.key", TestData(L"legacy-data.key")));
    REQUIRE(store.Put(L"older.gfe", TestData(L"legacy-estimate.gfe")));
}

void RunningProgram::CheckFiles() const {
    std::size_t files = 0;
    ForEachFile(app.store.EstimatesFolder, L"*", [&](const auto&) { return ++files > 0; });
    CHECK(files >= 2);
    CHECK(LoadAllEstimates(app.store).size() == files);
}

void RunningProgram::CheckForm() const {
    if (app.IsModified || app.CurrentFilePath.empty()) return;
    Estimate saved;
    std::wstring error;
    CHECK(LoadEstimateFile(app.store, app.CurrentFilePath, saved, error));
    saved.LastModifiedOn = app.currentEstimate.LastModifiedOn;  // when the form was last read
    CHECK(Differences(saved, app.currentEstimate) == L"");
}

void RunningProgram::CloseOutput() const {
    while (const HWND preview = Preview()) DestroyWindow(preview);
    CHECK(printJobs.begun == printJobs.ended + printJobs.aborted);
}

}  // namespace tessaline
