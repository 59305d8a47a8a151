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
#include "ui/commands/sample_estimate.h"
#include "ui/control_ids.h"
#include "ui/form/binding.h"
#include "ui/form/form_rows.h"
#include "ui/form/validation_marks.h"

namespace tessaline {
namespace {

// What is different in Windows while a story is played, and what it notices.
struct {
    bool hasPrinter = false;
    bool isExhausted = false;  // when a folder is searched
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
    if (windows.isExhausted) throw std::bad_alloc();
    return FindFirstFileExW(pattern, FindExInfoStandard, found, FindExSearchNameMatch, nullptr, 0);
}

int ToNumber(const std::wstring& word) {
    wchar_t* end = nullptr;
    const long number = std::wcstol(word.c_str(), &end, 10);
    CHECK((!word.empty() && *end == L'\0'));
    return static_cast<int>(number);
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
    // The line that is played: in which window, its words after the verb, and the two parts of
    // them: a window's name and what stands after the colon, or the first word and the others.
    HWND window = nullptr, target = nullptr;
    std::wstring words, first, text;

    void Send(UINT message, long long wParam = 0, LPARAM lParam = 0) const {
        SendMessageW(target, message, static_cast<WPARAM>(wParam), lParam);
    }
    [[nodiscard]] int Value() const { return ToNumber(text.substr(0, text.find(L" = "))); }
    [[nodiscard]] int Number() const { return ToNumber(first); }
    void Bind(const Estimate& estimate) { BindToForm(bound = estimate); }
    void PutFile() const {
        const Estimate& estimate = app.currentEstimate;
        CHECK(program.store.PutEstimate(estimate.EstimateId + L".gfe", estimate));
    }
};

// The control that shows the field of the record with that name, such as "Patient.Zip".
HWND FieldControl(const std::wstring& name) {
    Estimate probe;
    HWND control = nullptr;
    if (!SetValue(probe, name, L"1")) return nullptr;
    ForEachFieldRow([&](const FieldRow& row) {
        const bool isShown = row.text != nullptr ? row.text(probe) == L"1" : probe.*row.flag;
        if (isShown) control = ControlById(row.id);
    });
    return control;
}

// A control by the words on it or on the label before it.
HWND ControlWithWords(HWND parent, const std::wstring& words, HWND after = nullptr) {
    const HWND found = FindWindowExW(parent, after, nullptr, words.c_str());
    const HWND next = found == nullptr ? nullptr : GetWindow(found, GW_HWNDNEXT);
    const std::wstring kind = ClassOf(next);
    const bool isLabel = ClassOf(found) == L"Static" && kind != L"Static" && kind != L"Button";
    return isLabel ? next : found;
}

// What a name stands for in a window: a part of the program, a field of the record, words on the
// screen, words below one of the parts ("Edit Lines", "City Provider"). Without a name it is the
// window itself. An unknown name fails the story.
HWND Find(const Story& s, const std::wstring& name) {
    const AppState& app = s.app;
    const std::map<std::wstring, HWND> parts = {
        {L"", s.window},
        {L"form", app.canvasWindow},
        {L"bar", app.barWindow},
        {L"container", app.scrollWindow},
        {L"status line", app.statusLine},
        {L"amount", app.totalAmount},
        {L"total", GetParent(app.totalAmount)},
        {L"first message", app.sectionMessage[0]},
        {L"last message", app.sectionMessage[3]},
        {L"header", app.headerWindow},
        {L"preview", Preview()},
        {L"dialog", s.dialog},
        {L"main", app.mainWindow},
        {L"Provider", ControlById(kProviderLookupButton)},
        {L"Lines", app.linesList},
        {L"SeparateItems", app.separateList},
        {L"list", FindWindowExW(s.window, nullptr, WC_LISTVIEWW, nullptr)}};
    HWND found = nullptr;
    if (const auto part = parts.find(name); part != parts.end()) found = part->second;
    if (found == nullptr && s.window != app.mainWindow) found = ControlWithWords(s.window, name);
    if (found == nullptr && s.window == app.mainWindow) {
        found = FieldControl(name);
        for (const HWND parent : {app.barWindow, app.canvasWindow, Preview()}) {
            if (found == nullptr && parent != nullptr) found = ControlWithWords(parent, name);
        }
        const std::size_t space = std::min(name.rfind(L' '), name.size());
        const auto list = parts.find(name.substr(std::min(space + 1, name.size())));
        if (found == nullptr && list != parts.end()) {
            found = ControlWithWords(app.canvasWindow, name.substr(0, space), list->second);
        }
    }
    CAPTURE(name);
    CHECK(IsWindow(found));
    return IsWindow(found) ? found : nullptr;
}

// Calls `visit(value)` for each "name: value" of the line, with the name's window as the target.
template <typename Visit>
void ForEachPair(Story& s, const Visit& visit) {
    std::wistringstream pairs(std::exchange(s.words, {}) + L"; ");
    for (std::wstring pair; std::getline(pairs >> std::ws, pair, L';');) {
        const std::size_t colon = pair.find(L':');
        REQUIRE(colon != std::wstring::npos);
        std::wstring value = pair.substr(std::min(colon + 2, pair.size()));
        // Quotes keep the blanks at its ends.
        if (value.starts_with(L'"')) value = value.substr(1, value.size() - 2);
        s.target = Find(s, pair.substr(0, colon));
        if (s.target != nullptr) visit(value);
    }
}

// Compares texts in which times and identifiers made by the clock are "now".
void CheckText(const std::wstring& found, const std::wstring& wanted) {
    static const std::wregex clock(L"GFE-\\d{8}-\\d{6}|\\d\\d/\\d\\d/\\d{4} \\d\\d:\\d\\d [AP]M");
    CHECK(std::regex_replace(found, clock, L"now") == wanted);
}

void CheckKind(const Story& s, const wchar_t* className) {
    CHECK(ClassOf(s.target) == className);
}

// With their notifications, which make the form's estimate modified.
void Type(Story& s) {
    const bool inForm = s.window == s.app.mainWindow;
    ForEachPair(s, [&](const std::wstring& value) {
        CheckKind(s, L"Edit");
        if (inForm) s.app.IsModified = false;
        s.Send(EM_SETSEL, 0, -1);
        s.Send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(value.c_str()));
        if (inForm) CHECK(s.app.IsModified);
    });
}

void Shows(Story& s) {
    ForEachPair(s, [&](const std::wstring& value) { CheckText(WindowText(s.target), value); });
}

void Press(Story& s) {
    CheckKind(s, L"Button");
    s.Send(BM_CLICK);
}

// The Save button, and the box that says so.
void Save(Story& s) {
    s.meanwhile.push_front(L"box i Saved: Estimate saved locally. [OK]");
    s.target = ControlById(kSaveButton);
    Press(s);
}

// A button that opens a dialog, what is typed there, and OK.
void Add(Story& s) {
    CHECK(s.meanwhile.empty());
    s.meanwhile = {L"type " + s.text, L"press OK"};
    Press(s);
}

// "... = -28": how far the form is scrolled then.
void CheckScrolled(Story& s) {
    const std::size_t equals = s.text.find(L" = ");
    if (equals == std::wstring::npos) return;
    CHECK(Told(Unscale(PlaceOf(s.app.canvasWindow).top)) == s.text.substr(equals + 3));
}

// What the scroll bar's parts ask for, in the order of their numbers.
int ScrollRequest(const Story& s) {
    constexpr std::wstring_view kRequests[] = {
        L"line up", L"line down", L"page up", L"page down", L"", L"", L"top", L"bottom", L"end"};
    const auto* const found =
        std::ranges::find(kRequests, std::wstring_view(s.text).substr(0, s.text.find(L" = ")));
    CHECK(found != std::end(kRequests));
    return static_cast<int>(found - kRequests);
}

void PressKey(Story& s) {
    const std::map<std::wstring, WPARAM> keys = {
        {L"Tab", VK_TAB}, {L"Enter", VK_RETURN}, {L"Escape", VK_ESCAPE}};
    CHECK((keys.contains(s.words) && GetFocus() != nullptr));
    if (keys.contains(s.words)) PostMessageW(GetFocus(), WM_KEYDOWN, keys.at(s.words), 0);
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
    RECT frame{0, 0, Scale(s.Number()), Scale(s.Value())};
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
    const RECT rule = MapRect(transform, {42, s.Number() == 1 ? 118 : 97, 732, 2});
    const WindowDeviceContext screen(preview);
    CHECK(GetPixel(screen.Get(), client.right / 2, rule.top) == RGB(30, 139, 144));
    CHECK(GetPixel(screen.Get(), 2, client.bottom - 2) == GetSysColor(COLOR_BTNFACE));
}

// All that a window draws.
void CheckPainting(Story& s) {
    const StandIn paint(__imp_BeginPaint,
                        [](HWND, LPPAINTSTRUCT given) { return given->hdc = windows.paper; });
    const double scale = ScreenDpi() / 96.0;
    ValidateRect(s.target, nullptr);  // or Windows has it erased once more, on the screen
    const Recording painted(
        [&](HDC dc) {
            windows.paper = dc;
            s.Send(WM_ERASEBKGND, reinterpret_cast<LONG_PTR>(dc));
            s.Send(WM_PAINT);
        },
        {0, 0, 0, 0, scale, scale});
    CheckLines(painted.lines, Picture(s.text));
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

// The fields that are marked, and after colons the messages of the four sections that are shown,
// each of which fits its line.
std::wstring Marks(const AppState& app) {
    std::wstring marks;
    const auto add = [&](const std::wstring& before, const auto& record) {
        ForEachField(record, [&](const std::wstring& name, const auto&) {
            const HWND control = FieldControl(before + name);
            if (app.invalidControls.contains(control)) marks += before + name + L" ";
        });
    };
    add(L"Patient.", PatientInfo());
    add(L"Provider.", ProviderInfo());
    add(L"", Estimate());
    for (const HWND line : app.sectionMessage) {
        const std::wstring message = WindowText(line);
        CHECK(FitsIts(line));
        CHECK((IsWindowVisible(line) != 0) == !message.empty());
        marks += L":" + message;
    }
    return marks;
}

// "save|output, what is typed into the estimate that was opened = marks"
void CheckRule(Story& s) {
    BindToForm(s.bound);
    const std::wstring line = s.words;
    const std::size_t comma = line.find(L", "), equals = line.find(L" = ");
    s.words = line.substr(comma + 2, equals - comma - 2);
    Type(s);
    const bool forOutput = line.starts_with(L"output,");
    CHECK((forOutput || line.starts_with(L"save,")));
    Validate(forOutput);
    CHECK(Marks(s.app) == line.substr(equals + 3));
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
    const std::wstring kind = ClassOf(s.target);
    const UINT message = kind == L"Edit"     ? WM_CTLCOLOREDIT
                         : kind == L"Button" ? WM_CTLCOLORBTN
                                             : WM_CTLCOLORSTATIC;
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

constexpr COLORREF kStain = RGB(1, 2, 3);

// clang-format off
using Verb = void (*)(Story&);
const std::map<std::wstring, Verb> kVerbs = {
    // What the user does.
    {L"type", Type}, {L"size", Size}, {L"box", AnswerBox}, {L"save", Save}, {L"key", PressKey},
    // What comes about.
    {L"timer", [](Story& s) { PostMessageW(s.window, WM_TIMER, WPARAM(s.Number()), 0); }},
    {L"tick", [](Story& s) {
        PostMessageW(s.window, WM_TIMER, 1, 0);
        CHECK(s.program.Settle() == -1); }},
    {L"settle", [](Story& s) {
        CHECK(s.program.Settle() == (s.words.empty() ? -1 : s.Number())); }},
    {L"quit", [](Story& s) { PostQuitMessage(s.Number()); }},
    {L"logoff", [](Story& s) {
        CHECK(SendMessageW(s.app.mainWindow, WM_QUERYENDSESSION, 0, 0)); }},
    {L"open", Open},
    {L"distinct", [](Story& s) { s.Bind(DistinctEstimate()); }},
    {L"set", [](Story& s) {
        Estimate estimate = s.app.currentEstimate;
        CHECK(SetValue(estimate, s.first, s.text));
        s.Bind(estimate); }},
    {L"printer", [](Story&) { windows.hasPrinter = true; }},
    {L"exhaust", [](Story&) { windows.isExhausted = true; }},
    {L"put", [](Story& s) {
        ReadForm();
        s.app.currentEstimate.LastModifiedOn = s.Number();
        s.PutFile(); }},
    {L"blank", [](Story& s) { s.Bind(Estimate()); }},
    {L"reread", [](Story& s) { ReadForm(); s.Bind(s.app.currentEstimate); }},
    {L"forget", [](Story& s) { s.app.CurrentFilePath.clear(); }},
    {L"copy", [](Story& s) { CHECK(s.program.store.Put(s.text, TestData(s.first))); }},
    {L"folder", [](Story& s) { s.app.store = LocalStoreBelow(_wgetenv(L"TESSALINE_FOLDER")); }},
    {L"remove", [](Story& s) {
        CHECK(std::filesystem::remove_all(s.app.store.EstimatesFolder + L"/" + s.words) > 0); }},
    {L"unlock", [](Story& s) { s.locks.clear(); }},
    {L"lock", [](Story& s) {
        s.locks.push_back(s.program.store.Lock(s.words));
        CHECK(s.locks.back().Get() != INVALID_HANDLE_VALUE); }},
    // What is to be seen.
    {L"shows", Shows}, {L"state", CheckState}, {L"files", CheckFiles}, {L"rule", CheckRule},
    {L"marks", [](Story& s) { CHECK(Marks(s.app) == s.words); }},
    {L"page", CheckPage},
    {L"searched", [](Story& s) {
        CHECK(std::exchange(windows.searches, {}) == s.words + L" "); }},
    {L"same", [](Story& s) {
        const bool same = ReadFileBytes(s.program.store.Path(s.text)) == TestData(s.first);
        CHECK(same); }},
    {L"differs", [](Story& s) {
        ReadForm();
        CHECK(Differences(s.app.currentEstimate, s.bound) == s.words + L" "); }},
};
// Those that are about one window, whose name comes first.
const std::map<std::wstring, Verb> kVerbsOfWindows = {
    {L"press", Press}, {L"add", Add},
    {L"queue", [](Story& s) { PostMessageW(s.target, BM_CLICK, 0, 0); }},
    {L"drag", [](Story& s) { DragThumb(s); CheckScrolled(s); }},
    {L"colours", CheckColours}, {L"paints", CheckPainting},
    {L"choose", [](Story& s) { CheckKind(s, L"ComboBox"); s.Send(WM_KEYDOWN, VK_DOWN); }},
    {L"double", [](Story& s) {
        CheckKind(s, WC_LISTVIEWW);
        s.Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(20, 35)); }},
    {L"select", [](Story& s) {
        CHECK(s.Value() < ListView_GetItemCount(s.target));
        ListView_SetItemState(s.target, s.Value(), LVIS_SELECTED, LVIS_SELECTED); }},
    {L"close", [](Story& s) { s.Send(WM_CLOSE); }},
    {L"activate", [](Story& s) { SetActiveWindow(s.target); }},
    {L"scroll", [](Story& s) { s.Send(WM_VSCROLL, ScrollRequest(s)); CheckScrolled(s); }},
    {L"wheel", [](Story& s) {
        s.Send(WM_MOUSEWHEEL, s.Value() * 65536LL);
        CheckScrolled(s); }},
    {L"drop", [](Story& s) { CheckKind(s, L"ComboBox"); s.Send(CB_SHOWDROPDOWN, TRUE); }},
    {L"stretch", [](Story& s) {
        SetWindowPos(s.target, nullptr, 0, 0, s.Value(), s.Value() / 2, SWP_NOZORDER);
        RECT client{}, stale{};
        GetClientRect(s.target, &client);
        GetUpdateRect(s.target, &stale, FALSE);
        CHECK((IsRectEmpty(&client) || EqualRect(&stale, &client)));
        CHECK(UpdateWindow(s.target)); }},
    {L"long", [](Story& s) {
        SetWindowTextW(s.target, std::wstring(std::size_t(s.Value()), L'x').c_str()); }},
    {L"place", [](Story& s) {
        const RECT place = PlaceOf(s.target);
        CHECK(Told(Unscale(place.left)) + L" " + Told(Unscale(place.top)) == s.text); }},
    {L"measures", [](Story& s) {
        const RECT place = PlaceOf(s.target);
        CHECK(Told(Unscale(place.right)) + L" " + Told(Unscale(place.bottom)) == s.text); }},
    {L"rows", [](Story& s) { CHECK(Cells(s.target) == s.text); }},
    {L"looks", [](Story& s) { CheckPicture(s.target, s.text.empty() ? s.first : s.text); }},
    // Also with a stain on it, in a corner without controls, which a new drawing covers.
    {L"drawn", [](Story& s) {
        SetPixel(WindowDeviceContext(s.target).Get(), 2, 2, kStain);
        RedrawWindow(s.target, nullptr, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN); }},
    {L"redraws", [](Story& s) {
        UpdateWindow(s.target);
        CHECK(GetPixel(WindowDeviceContext(s.target).Get(), 2, 2) != kStain); }},
    {L"still", [](Story& s) { CHECK_FALSE(GetUpdateRect(s.target, nullptr, FALSE)); }},
    {L"focus", [](Story& s) { CHECK(GetFocus() == s.target); }},
    {L"enabled", [](Story& s) { CHECK(Told(IsWindowEnabled(s.target) != 0) == s.text); }},
    {L"active", [](Story& s) { CHECK(GetActiveWindow() == s.target); }},
};
// clang-format on

void PlayLine(Story& s, HWND window, const std::wstring& line) {
    INFO(line);
    std::wistringstream stream(line);
    std::wstring verb;
    s.words = s.first = s.text = L"";
    std::getline(stream >> verb >> std::ws, s.words);
    s.window = window;
    const auto aboutWindow = kVerbsOfWindows.find(verb);
    const bool hasName = aboutWindow != kVerbsOfWindows.end();
    const std::size_t end = std::min(s.words.find(hasName ? L':' : L' '), s.words.size());
    s.first = s.words.substr(0, end);
    s.text = s.words.substr(std::min(end + (hasName ? 2 : 1), s.words.size()));
    if (hasName) {
        s.target = Find(s, s.first);
        if (s.target != nullptr) aboutWindow->second(s);
        return;
    }
    CHECK(kVerbs.contains(verb));
    if (kVerbs.contains(verb)) kVerbs.at(verb)(s);
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

// Takes the first line away if it is "needs 1920 1080". Whether the screen is as large as that.
bool HasScreenFor(std::vector<std::wstring>& lines) {
    REQUIRE(lines.size() > 1);
    if (!lines[1].starts_with(L"needs ")) return true;
    std::wistringstream words(lines[1].substr(6));
    int width = 0, height = 0;
    REQUIRE((words >> width >> height));
    lines.erase(lines.begin() + 1);
    return GetSystemMetrics(SM_CXSCREEN) >= width && GetSystemMetrics(SM_CYSCREEN) >= height;
}

// Plays the story that the test framework has begun.
void PlayStory() {
    auto lines = stories.at(doctest::getContextOptions()->currentTest->m_name);
    if (!HasScreenFor(lines)) {
        MESSAGE("Skipped, since the screen is too small.");
        return;
    }
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
