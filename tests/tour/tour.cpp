// The tour: a clerk's day with the real program, from the first keystroke to the printed page.
#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <string>

#include "platform/files.h"
#include "platform/handles.h"
#include "store/local_store.h"
#include "tests/tour/desk.h"
#include "ui/control_ids.h"
#include "ui/window_names.h"

using namespace tessaline;
using namespace tessaline::desk;

namespace {

struct Typed {
    int id;
    const wchar_t* text;
};

// Every edit of the form. One address is wrong at first.
constexpr Typed kTexts[] = {
    {1100, L"Ann"},
    {1101, L"Marie"},
    {1102, L"Lee-Svenss\u00F8n"},
    {1103, L"02/29/1984"},
    {1104, L"(555) 555-0123"},
    {1105, L"ann@lee"},
    {1106, L"12 Oak Street"},
    {1107, L"Apt 4"},
    {1108, L"Springfield"},
    {1109, L"IL"},
    {1110, L"62701-1234"},
    {1111, L"0042"},
    {1200, L"Prairie Orthopedic & Sports Clinic"},
    {1201, L"Outpatient surgery center"},
    {1202, L"400 Capitol Avenue"},
    {1203, L"Springfield"},
    {1204, L"IL"},
    {1205, L"62704"},
    {1206, L"Pat Morgan"},
    {1207, L"(555) 555-0177"},
    {1208, L"estimates@prairie.example"},
    {1209, L"123-456-7890"},
    {1210, L"12-3456789"},
    {1211, L"www.prairie.example"},
    {1401, L"Knee arthroscopy with meniscus repair"},
    {1402, L"Tear of medial meniscus"},
    {1403, L"S83.242A"},
    {1404, L"Knee pain"},
    {1405, L"M25.562"},
    {1406, L"12/14/2026; 12/21/2026"},
    {1700, L"Bring a list of your medicines. The anesthesiologist bills separately."},
};

struct Item {
    const wchar_t* cells[6];  // in the dialog's order, but for the code type
};

constexpr Item kItems[] = {
    {{L"Surgeon's fee, arthroscopy", L"400 Capitol Avenue", L"S83.242A", L"29882", L"1",
      L"$4,150"}},
    {{L"Facility fee", L"400 Capitol Avenue", L"S83.242A", L"29882", L"1", L"6200.00"}},
    {{L"MRI, knee, without contrast", L"Prairie Imaging, 410 Capitol Avenue", L"M25.562", L"73721",
      L"1", L"890.50"}},
    {{L"Physical therapy, 30 minutes", L"Prairie Therapy", L"M25.562", L"97110", L"12", L"62.5"}},
    {{L"Crutches, adjustable aluminium, pair, with hand grips and tips", L"", L"", L"E0114", L"1",
      L"48"}},
    {{L"Office visit, established patient", L"400 Capitol Avenue", L"M25.562", L"99213", L"2",
      L"145"}},
    {{L"Post-operative brace", L"", L"S83.242A", L"L1832", L"1", L"615"}},
};

HWND mainWindow;

HWND MainControl(int id) {
    return Control(mainWindow, id);
}

RECT RectOf(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect;
}

// Turns the wheel until the whole control can be seen. Input arrives when it arrives: every notch
// is waited for.
HWND Reach(int id) {
    const HWND control = MainControl(id);
    const HWND view = FindWindowExW(mainWindow, nullptr, kScrollClass, nullptr);
    if (!IsChild(view, control)) return control;
    const RECT seen = RectOf(view);
    for (;;) {
        const RECT rect = RectOf(control);
        if (rect.top >= seen.top && rect.bottom <= seen.bottom) return control;
        Wheel(view, rect.top < seen.top ? 1 : -1);
        WaitFor("the form to scroll", [&] { return RectOf(control).top != rect.top; });
    }
}

void ClickButton(int id) {
    Click(Reach(id));
}

void AnswerBox(const wchar_t* title, int button, const wchar_t* picture = nullptr) {
    const HWND box = WaitForWindow(L"#32770", title);
    if (picture != nullptr) TakePicture(picture);
    Click(Control(box, button));
    WaitUntilGone(box);
}

std::wstring StatusLine() {
    const HWND bar = FindWindowExW(mainWindow, nullptr, kBarClass, nullptr);
    wchar_t text[128] = {};
    GetWindowTextW(FindWindowExW(bar, nullptr, L"STATIC", nullptr), text, 128);
    return text;
}

void FillForm() {
    for (const Typed& row : kTexts) Retype(Reach(row.id), row.text);
    Click(Reach(1302));  // opens the list of delivery methods
    Press(VK_DOWN);
    Press(VK_RETURN);
    TakePicture(L"02-form-lower-part");
}

void AddItem(const Item& item, const wchar_t* picture) {
    ClickButton(kAddLineButton);
    const HWND dialog = WaitForWindow(L"GFE_LineDialog");
    int field = 0;
    for (const wchar_t* cell : item.cells) {
        if (field == 5) Press(VK_BACK);   // the quantity's 1 is selected by Tab; this empties it
        if (++field == 4) Press(VK_TAB);  // past the code type
        Type(cell);
        if (picture != nullptr && field == 6) TakePicture(picture);
        if (field < 6) Press(VK_TAB);
    }
    Press(VK_RETURN);
    WaitUntilGone(dialog);
}

void AddItems() {
    const wchar_t* picture = L"03-item-dialog";
    for (const Item& item : kItems) {
        AddItem(item, picture);
        picture = nullptr;
    }
    ClickButton(kAddSeparateButton);
    const HWND dialog = WaitForWindow(L"GFE_SepDialog");
    Type(L"Anesthesia");
    Press(VK_TAB);
    Type(L"Capital Anesthesia Group gives its own estimate: (555) 555-0190.");
    TakePicture(L"04-separate-dialog");
    Click(Control(dialog, 1, 1));
    WaitUntilGone(dialog);
    Reach(kNotesEdit);
    TakePicture(L"05-lists");
}

void SaveWithAWrongField() {
    ClickButton(kSaveButton);
    AnswerBox(L"Saved", IDOK);
    Reach(kFirstNameEdit);
    TakePicture(L"06-wrong-field-marked");
    ClickButton(kPreviewButton);
    AnswerBox(L"Check Estimate", IDOK, L"07-check-estimate");
    Retype(Reach(kPatientEmailEdit), L"ann.lee@example.com");
}

void Preview(const wchar_t* first, const wchar_t* second) {
    ClickButton(kPreviewButton);
    const HWND preview = WaitForWindow(L"GFE_Native_Preview");
    TakePicture(first);
    Click(Control(preview, 2));
    TakePicture(second);
    Press(VK_F4, VK_MENU);
    WaitUntilGone(preview);
}

void Print() {
    ClickButton(kPrintButton);
    const HWND dialog = WaitForWindow(L"#32770");
    TakePicture(L"10-print-dialog");
    Click(Control(dialog, IDOK));
    WaitUntilGone(dialog);
    WaitFor("the main window after printing", [] { return IsWindowEnabled(mainWindow) != FALSE; });
}

void Revise() {
    ClickButton(kSaveButton);
    AnswerBox(L"Saved", IDOK);
    Retype(Reach(kPrimaryServiceEdit), L"Knee arthroscopy with meniscectomy");
    ClickButton(kSaveButton);
    AnswerBox(L"Saved", IDOK, L"11-revision-saved");
}

void Sample() {
    ClickButton(kSampleButton);
    AnswerBox(L"Sample", IDYES);
    Reach(kFirstNameEdit);
    TakePicture(L"12-sample");
    Preview(L"13-sample-page-1", L"14-sample-page-2");
}

// Opens a lookup, searches, and takes the first row by a double click.
void ChooseFromLookup(int button, const wchar_t* search, const wchar_t* picture) {
    ClickButton(button);
    const HWND lookup = WaitForWindow(L"GFE_Lookup");
    Type(search);
    TakePicture(picture);
    RECT list{};
    GetWindowRect(Control(lookup, 2), &list);
    DoubleClick({list.left + 60, list.top + 36});
    WaitUntilGone(lookup);
}

void Lookups() {
    ClickButton(kNewButton);
    ChooseFromLookup(kPatientLookupButton, L"svenss", L"15-patient-lookup");
    ChooseFromLookup(kProviderLookupButton, L"prairie", L"16-provider-lookup");
    Reach(kFirstNameEdit);
    TakePicture(L"17-patient-and-provider-copied");
    ClickButton(kOpenButton);
    const HWND lookup = WaitForWindow(L"GFE_Lookup");
    TakePicture(L"18-open");
    Click(Control(lookup, 2, 1));
    WaitUntilGone(lookup);
    ChooseFromLookup(kOpenButton, L"-r1", L"19-open-search");
    WaitFor("the opened estimate", [] { return StatusLine() == L"Estimate opened"; });
    TakePicture(L"20-opened");
}

void OlderEdition() {
    ChooseFromLookup(kOpenButton, L"20240229", L"21-older-edition-search");
    Reach(kPrimaryServiceEdit);
    TakePicture(L"22-older-edition-opened");
}

void About() {
    ClickButton(kAboutButton);
    const HWND box = WaitForWindow(L"GFE_About");
    TakePicture(L"23-about");
    Click(Control(box, 2));
    WaitUntilGone(box);
}

// The tour starts from an empty folder, with one file of the older edition in it.
void PrepareStore(const std::wstring& data) {
    const LocalStore store = PrepareDataFolders();
    ForEachFile(store.EstimatesFolder, L"*.gfe", [&](const std::wstring& name) {
        return DeleteFileW((store.EstimatesFolder + L"\\" + name).c_str()) != FALSE;
    });
    CopyFileW((data + L"\\legacy-data.key").c_str(), (store.BaseFolder + L"\\data.key").c_str(),
              FALSE);
    CopyFileW((data + L"\\legacy-estimate.gfe").c_str(),
              (store.EstimatesFolder + L"\\older.gfe").c_str(), FALSE);
}

FileOwner StartProgram(std::wstring commandLine) {
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process)) {
        std::printf("The program does not start.\n");
        std::exit(1);
    }
    CloseHandle(process.hThread);
    return FileOwner(process.hProcess);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 5) return 2;
    SetPictureFolder(arguments[2]);
    PrepareStore(arguments[3]);
    const FileOwner program = StartProgram(arguments[1]);
    mainWindow = WaitForWindow(kMainClass);
    TakePicture(L"01-start");
    FillForm();
    AddItems();
    SaveWithAWrongField();
    Preview(L"08-preview-page-1", L"09-preview-page-2");
    if (std::wstring(arguments[4]) == L"yes") Print();
    Revise();
    Sample();
    Lookups();
    OlderEdition();
    About();
    Press(VK_F4, VK_MENU);
    WaitFor("the program to end", [&] { return WaitForSingleObject(program.Get(), 0) == 0; });
    std::printf("The tour is over.\n");
    return 0;
}
