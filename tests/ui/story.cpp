#include "tests/ui/story.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <deque>
#include <filesystem>
#include <map>
#include <regex>
#include <sstream>
#include <vector>

#include "platform/controls.h"
#include "platform/scale.h"
#include "store/catalogue.h"
#include "store/estimate_file.h"
#include "tests/document/recorded_drawing.h"
#include "tests/support/readable.h"
#include "tests/support/record_values.h"
#include "tests/support/stand_in.h"
#include "tests/ui/running_program.h"
#include "tests/ui/told_window.h"
#include "ui/binding.h"
#include "ui/sample_estimate.h"

namespace tessaline {
namespace {

// What is different in Windows while a story is played, and what it notices.
struct {
    bool hasPrinter = false;
    std::wstring drive;
    std::wstring searches;
    HDC paper = nullptr;
} windows;

// The printer that the user chooses refuses every job.
BOOL WINAPI ChoosePrinter(LPPRINTDLGW dialog) {
    CHECK(dialog->hwndOwner == App()->mainWindow);
    CHECK(dialog->Flags == (PD_RETURNDC | PD_NOPAGENUMS | PD_NOSELECTION));
    dialog->hDC = CreateCompatibleDC(nullptr);
    return windows.hasPrinter;
}

HANDLE WINAPI SearchFolder(LPCWSTR pattern, LPWIN32_FIND_DATAW found) {
    windows.searches += IsWaiting() ? L"waiting " : L"unnoticed ";
    if (windows.drive == L"slow") Sleep(2000);
    if (windows.drive == L"without memory") throw std::bad_alloc();
    return FindFirstFileExW(pattern, FindExInfoStandard, found, FindExSearchNameMatch, nullptr, 0);
}

struct Story {
    explicit Story(int dpi);

    RunningProgram program;
    AppState& app = program.app;
    StandIn<decltype(&PrintDlgW)> printDialog{__imp_PrintDlgW, ChoosePrinter};
    StandIn<decltype(&FindFirstFileW)> search{__imp_FindFirstFileW, SearchFolder};
    std::vector<FileOwner> locks;
    Estimate bound;
    // The lines for the boxes and dialogs that the line before them opens, and the last dialog.
    std::deque<std::wstring> meanwhile;
    HWND dialog = nullptr;
    // The line that is played: in which window, its words after the verb, the first of them, what
    // that stands for, and the others.
    HWND window = nullptr, target = nullptr;
    std::wstring words, first, text;
    int number = 0;

    void Send(UINT message, long long wParam = 0, LPARAM lParam = 0) const {
        SendMessageW(target, message, static_cast<WPARAM>(wParam), lParam);
    }
    [[nodiscard]] int Value() const { return _wtoi(text.c_str()); }
    [[nodiscard]] WPARAM Word() const { return static_cast<WPARAM>(number); }
    void Bind(const Estimate& estimate) { BindToForm(bound = estimate); }
    void PutFile() const {
        const Estimate& estimate = app.currentEstimate;
        program.store.PutEstimate(estimate.EstimateId + L".gfe", estimate);
    }
};

// The preview that is on top.
HWND Preview() {
    return FindWindowW(L"GFE_Native_Preview", nullptr);
}

// The control with that ID or text, or the part of the main window with that name. The preview's
// controls go by their texts.
HWND Find(const Story& s) {
    const AppState& app = s.app;
    const std::map<std::wstring, HWND> parts = {
        {L"form", app.canvasWindow},       {L"bar", app.barWindow},
        {L"container", app.scrollWindow},  {L"status", app.statusLine},
        {L"amount", app.totalAmount},      {L"total", GetParent(app.totalAmount)},
        {L"first", app.sectionMessage[0]}, {L"last", app.sectionMessage[3]},
        {L"header", app.headerWindow},     {L"preview", Preview()},
        {L"main", app.mainWindow}};
    const bool inMain = s.window == app.mainWindow;
    if (inMain && app.controlById.contains(s.number)) return app.controlById.at(s.number);
    if (s.number != 0) return GetDlgItem(inMain ? app.canvasWindow : s.window, s.number);
    if (parts.contains(s.first)) return parts.at(s.first);
    for (const std::wstring& text : {s.words, s.first}) {
        const HWND around = inMain ? Preview() : s.window;
        const HWND found = FindWindowExW(around, nullptr, nullptr, text.c_str());
        if (found != nullptr && !text.empty()) return found;
    }
    return s.window;
}

// Compares texts in which times and identifiers made by the clock are "now".
void CheckText(const std::wstring& found, const std::wstring& wanted) {
    static const std::wregex clock(L"GFE-\\d{8}-\\d{6}|\\d\\d/\\d\\d/\\d{4} \\d\\d:\\d\\d [AP]M");
    CHECK(std::regex_replace(found, clock, L"now") == wanted);
}

// With its notification, which makes the form's estimate modified.
void Type(Story& s) {
    const bool inForm = s.window == s.app.mainWindow;
    if (inForm) s.app.IsModified = false;
    s.Send(EM_SETSEL, 0, -1);
    s.Send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(s.text.c_str()));
    if (inForm) CHECK(s.app.IsModified);
}

// A complete estimate that is not the sample, in a file and in the form.
void Open(Story& s) {
    Estimate estimate = SampleEstimate();
    estimate.EstimateId = estimate.RootEstimateId = s.first;
    estimate.EstimateStatus = s.text;
    estimate.LastModifiedOn = 86'400;
    estimate.ProviderNotes.clear();
    s.Bind(estimate);
    s.PutFile();
    s.app.CurrentFilePath = s.program.store.Path(s.first + L".gfe");
}

// Sizes the main window by what it holds.
void Size(Story& s) {
    RECT frame{0, 0, Scale(s.number), Scale(s.Value())};
    AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
    SetWindowPos(s.app.mainWindow, nullptr, 0, 0, frame.right - frame.left,
                 frame.bottom - frame.top, SWP_NOMOVE);
}

// Drags the thumb of the scroll bar that far down, by the messages that the mouse causes.
void DragThumb(Story& s) {
    SCROLLBARINFO bar{};
    bar.cbSize = sizeof(bar);
    GetScrollBarInfo(s.target, OBJID_VSCROLL, &bar);
    const POINT start{(bar.rcScrollBar.left + bar.rcScrollBar.right) / 2,
                      bar.rcScrollBar.top + (bar.xyThumbTop + bar.xyThumbBottom) / 2};
    POINT end{start.x, start.y + s.Value()};
    ScreenToClient(s.target, &end);
    PostMessageW(s.target, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(end.x, end.y));
    PostMessageW(s.target, WM_LBUTTONUP, 0, MAKELPARAM(end.x, end.y));
    s.Send(WM_NCLBUTTONDOWN, HTVSCROLL, MAKELPARAM(start.x, start.y));
}

// The page "1 of 2", say, is on the screen, known by the rule below its title.
void CheckPage(Story& s) {
    const HWND preview = Preview();
    CHECK(WindowText(FindWindowExW(preview, nullptr, L"STATIC", nullptr)) == L"Page " + s.words);
    UpdateWindow(preview);
    RECT client{};
    GetClientRect(preview, &client);
    const PageTransform transform = PreviewTransform(client.right, client.bottom);
    const RECT rule = MapRect(transform, {42, s.number == 1 ? 118 : 97, 732, 2});
    const WindowDeviceContext screen(preview);
    CHECK(GetPixel(screen.Get(), client.right / 2, rule.top) == RGB(30, 139, 144));
    CHECK(GetPixel(screen.Get(), 2, client.bottom - 2) == GetSysColor(COLOR_BTNFACE));
}

// All that a window draws.
void CheckPainting(Story& s) {
    const StandIn paint(__imp_BeginPaint,
                        [](HWND, LPPAINTSTRUCT given) { return given->hdc = windows.paper; });
    const double scale = ScreenDpi() / 96.0;
    const Recording painted(
        [&](HDC dc) {
            windows.paper = dc;
            s.Send(WM_ERASEBKGND, reinterpret_cast<LONG_PTR>(dc));
            s.Send(WM_PAINT);
        },
        {0, 0, 0, 0, scale, scale});
    CheckLines(painted.lines, Section(s.words));
}

void CheckState(Story& s) {
    const std::wstring& path = s.app.CurrentFilePath;
    const bool issued = s.app.currentEstimate.IssuedOn > 1'000'000'000;
    CheckText((s.app.IsModified ? L"modified " : L"clean ") + s.app.SavedStatus + L" " +
                  (path.empty() ? L"-" : path.substr(path.find_last_of(L'\\') + 1)) +
                  (issued ? L" issued" : L""),
              s.words);
}

// Every file, latest first, with its status and the patient's phone.
void CheckFiles(Story& s) {
    std::wstring files;
    for (const auto& [path, estimate] : LoadAllEstimates(s.app.store)) {
        CHECK(path == EstimateFilePath(s.app.store, estimate.EstimateId));
        files += (files.empty() ? L"" : L", ") + estimate.EstimateId + L" " +
                 estimate.EstimateStatus + L" " + estimate.Patient.Phone;
    }
    CheckText(files, s.words);
}

// The marked controls and after colons the messages of the four sections that are shown.
void CheckMarks(Story& s) {
    std::wstring marks;
    for (const auto& [id, control] : s.app.controlById) {
        if (s.app.invalidControls.contains(control)) marks += std::to_wstring(id) + L" ";
    }
    for (const HWND line : s.app.sectionMessage) {
        const std::wstring message = WindowText(line);
        CHECK((GetWindowLongW(line, GWL_STYLE) & WS_VISIBLE) ==
              (message.empty() ? 0 : WS_VISIBLE));
        marks += L":" + message;
    }
    CHECK(marks == s.words);
}

// "icon caption: text [buttons]" and the button to press, else it is the first.
void AnswerBox(Story& s) {
    HWND answer = nullptr;
    const std::wstring wanted = s.words.substr(0, s.words.find(L']') + 1);
    CHECK(DescribeBox(s.window, s.words, answer) == wanted);
    CHECK(GetWindow(s.window, GW_OWNER) == (IsWindow(s.dialog) ? s.dialog : s.app.mainWindow));
    SendMessageW(answer, BM_CLICK, 0, 0);
}

// The colours with which a control's parent has it drawn, in hexadecimal (blue, green, red): of
// the text, behind the text, and of the brush. CLR_NONE where nothing is filled.
void CheckColours(Story& s) {
    const DeviceContextOwner memory(CreateCompatibleDC(nullptr));
    const HDC dc = memory.Get();
    const UINT message = ClassOf(s.target) == L"Edit" ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC;
    const LRESULT brush = SendMessageW(GetParent(s.target), message, reinterpret_cast<WPARAM>(dc),
                                       reinterpret_cast<LPARAM>(s.target));
    LOGBRUSH fill{};
    GetObjectW(reinterpret_cast<HBRUSH>(brush), sizeof(fill), &fill);
    std::wostringstream told;
    told << std::hex << GetTextColor(dc) << L' '
         << (GetBkMode(dc) == TRANSPARENT ? CLR_NONE : GetBkColor(dc)) << L' '
         << (fill.lbStyle == BS_HOLLOW ? CLR_NONE : fill.lbColor);
    CHECK(told.str() == s.text);
}

// clang-format off
const std::map<std::wstring, void (*)(Story&)> kVerbs = {
    // What the user does.
    {L"type", Type}, {L"size", Size}, {L"drag", DragThumb}, {L"box", AnswerBox},
    {L"press", [](Story& s) { s.Send(BM_CLICK); }},
    {L"choose", [](Story& s) { s.Send(WM_KEYDOWN, VK_DOWN); }},
    {L"double", [](Story& s) { s.Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(20, 35)); }},
    {L"select", [](Story& s) {
        ListView_SetItemState(s.target, s.Value(), LVIS_SELECTED, LVIS_SELECTED); }},
    {L"key", [](Story& s) { PostMessageW(GetFocus(), WM_KEYDOWN, s.Word(), 0); }},
    {L"close", [](Story& s) { s.Send(WM_CLOSE); }},
    {L"activate", [](Story& s) { SetActiveWindow(s.target); }},
    {L"scroll", [](Story& s) { s.Send(WM_VSCROLL, s.Value()); }},
    {L"wheel", [](Story& s) { s.Send(WM_MOUSEWHEEL, s.Value() * 65536LL); }},
    // What comes about.
    {L"timer", [](Story& s) { PostMessageW(s.window, WM_TIMER, s.Word(), 0); }},
    {L"tick", [](Story& s) {
        PostMessageW(s.window, WM_TIMER, 1, 0);
        CHECK(s.program.Settle() == -1); }},
    {L"settle", [](Story& s) { CHECK(s.program.Settle() == (s.words.empty() ? -1 : s.number)); }},
    {L"quit", [](Story& s) { PostQuitMessage(s.number); }},
    {L"open", Open},
    {L"distinct", [](Story& s) { s.Bind(DistinctEstimate()); }},
    {L"set", [](Story& s) {
        Estimate estimate = s.app.currentEstimate;
        CHECK(SetValue(estimate, s.first, s.text));
        s.Bind(estimate); }},
    {L"printer", [](Story&) { windows.hasPrinter = true; }},
    {L"drive", [](Story& s) { windows.drive = s.words; }},
    {L"stretch", [](Story& s) {
        SetWindowPos(s.target, nullptr, 0, 0, s.Value(), s.Value() / 2, SWP_NOZORDER);
        CHECK(UpdateWindow(s.target)); }},
    {L"put", [](Story& s) {
        ReadForm();
        s.app.currentEstimate.LastModifiedOn = s.number;
        s.PutFile(); }},
    {L"blank", [](Story& s) { s.Bind(Estimate()); }},
    {L"reread", [](Story& s) { ReadForm(); s.Bind(s.app.currentEstimate); }},
    {L"forget", [](Story& s) { s.app.CurrentFilePath.clear(); }},
    {L"copy", [](Story& s) { CHECK(s.program.store.Put(s.text, TestData(s.first))); }},
    {L"folder", [](Story& s) {
        s.app.store = LocalStoreBelow(s.words.empty() ? _wgetenv(L"TESSALINE_FOLDER") : s.words); }},
    {L"remove", [](Story& s) {
        CHECK(std::filesystem::remove_all(s.app.store.EstimatesFolder + L"/" + s.words) > 0); }},
    {L"long", [](Story& s) {
        SetWindowTextW(s.target, std::wstring(static_cast<std::size_t>(s.Value()), L'x').c_str()); }},
    {L"unlock", [](Story& s) { s.locks.clear(); }},
    {L"lock", [](Story& s) { s.locks.push_back(s.program.store.Lock(s.words)); }},
    // What is to be seen.
    {L"state", CheckState}, {L"files", CheckFiles}, {L"marks", CheckMarks},
    {L"colours", CheckColours}, {L"page", CheckPage}, {L"paints", CheckPainting},
    {L"place", [](Story& s) {
        const RECT place = PlaceOf(s.target);
        CHECK(Told(Unscale(place.left)) + L" " + Told(Unscale(place.top)) == s.text); }},
    {L"searched", [](Story& s) {
        CHECK(std::exchange(windows.searches, {}) == s.words + L" "); }},
    {L"measures", [](Story& s) {
        const RECT place = PlaceOf(s.target);
        CHECK(Told(Unscale(place.right)) + L" " + Told(Unscale(place.bottom)) == s.text); }},
    {L"same", [](Story& s) {
        const bool same = ReadFileBytes(s.program.store.Path(s.text)) == TestData(s.first);
        CHECK(same); }},
    {L"text", [](Story& s) { CheckText(WindowText(s.target), s.text); }},
    {L"rows", [](Story& s) { CHECK(Cells(s.target) == s.text); }},
    {L"looks", [](Story& s) { CheckLines(ToldWindow(s.target), Section(s.words)); }},
    {L"drawn", [](Story& s) {
        RedrawWindow(s.target, nullptr, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN); }},
    {L"redraws", [](Story& s) { CHECK(GetUpdateRect(s.target, nullptr, FALSE)); }},
    {L"focus", [](Story& s) { CHECK(GetFocus() == s.target); }},
    {L"enabled", [](Story& s) { CHECK(Told(IsWindowEnabled(s.target) != 0) == s.text); }},
    {L"active", [](Story& s) { CHECK(ClassOf(GetActiveWindow()) == s.words); }},
    {L"differs", [](Story& s) {
        ReadForm();
        CHECK(Differences(s.app.currentEstimate, s.bound) == s.words + L" "); }},
};
// clang-format on

void PlayLine(Story& s, HWND window, const std::wstring& line) {
    INFO(line);
    std::wistringstream stream(line);
    std::wstring verb;
    s.words = s.first = s.text = L"";
    std::getline(stream >> verb >> std::ws, s.words);
    std::getline(std::wistringstream(s.words) >> s.first, s.text);
    // A blank goes before the text; quotes keep those at its ends.
    s.text.erase(0, 1);
    if (s.text.starts_with(L'"')) s.text = s.text.substr(1, s.text.size() - 2);
    s.number = _wtoi(s.words.c_str());
    s.window = window;
    s.target = Find(s);
    const auto found = kVerbs.find(verb);
    CHECK(found != kVerbs.end());
    if (found != kVerbs.end()) found->second(s);
}

// What the next of the indented lines tells, once a box or a dialog waits for the user.
void PlayMeanwhile(Story& s, HWND modal) {
    CHECK_FALSE(IsWaiting());
    const bool isBox = IsBox(modal);
    if (!isBox) CHECK_FALSE(IsWindowEnabled(s.app.mainWindow));
    if (!isBox) s.dialog = modal;
    const bool isTold = !s.meanwhile.empty() && s.meanwhile.front().starts_with(L"box ") == isBox;
    CHECK(isTold);
    std::wstring line = isBox ? L"box [] No" : L"close";
    if (isTold) line = s.meanwhile.front(), s.meanwhile.pop_front();
    PlayLine(s, modal, line);
}

Story::Story(int dpi) : program(dpi) {
    windows = {};
    program.LeaveTo([this](HWND modal) { PlayMeanwhile(*this, modal); });
}

// The lines of every story by its name, which the test framework borrows.
std::map<std::string, std::vector<std::wstring>> stories;

// Plays the story that the test framework has begun.
void PlayStory() {
    const auto& lines = stories.at(doctest::getContextOptions()->currentTest->m_name);
    Story story(_wtoi(lines[0].c_str() + 6));
    for (std::size_t next = 1; next < lines.size();) {
        const std::wstring line = lines[next++];
        for (; next < lines.size() && lines[next].starts_with(L"  "); ++next) {
            story.meanwhile.push_back(lines[next].substr(2));
        }
        const HWND main = story.app.mainWindow;
        PlayLine(story, main, line);
        CHECK(story.meanwhile.empty());
        if (IsWindow(main)) CHECK(IsWindowEnabled(main));
    }
}

void RegisterStoriesOf(const std::filesystem::path& file) {
    std::wistringstream text(FromUtf8(ReadFileBytes(file.wstring())));
    unsigned number = 0;
    std::string name;
    for (std::wstring line; std::getline(text, line);) {
        ++number;
        if (line.empty() || line[0] == L'#') continue;
        if (line.starts_with(L"story ")) {
            name = doctest::toString(line).c_str();
            doctest::detail::TestCase test(PlayStory, file.generic_string().c_str(), number,
                                           doctest::detail::TestSuite());
            doctest::detail::regTest(test * stories.try_emplace(name).first->first.c_str());
        }
        stories.at(name).push_back(line);
    }
}

}  // namespace

void RegisterStories() {
    const wchar_t* other = _wgetenv(L"TESSALINE_STORIES");
    const std::filesystem::path folder =
        other != nullptr ? other : std::wstring(kTestDataFolder) + L"/stories";
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) RegisterStoriesOf(entry.path());
    }
}

}  // namespace tessaline
