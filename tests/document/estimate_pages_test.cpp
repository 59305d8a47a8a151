#include "document/estimate_pages.h"

#include <algorithm>
#include <climits>
#include <regex>
#include <sstream>

#include "document/page_drawing.h"
#include "document/page_texts.h"
#include "document/print_job.h"
#include "tests/document/recorded_drawing.h"
#include "tests/support/record_values.h"
#include "tests/support/stand_in.h"

using namespace tessaline;

namespace {

Estimate PagesEstimate(std::size_t lines = 7) {
    Estimate estimate = RecordOf({L"page"});
    estimate.Lines.assign(lines, ServiceLine(estimate.Lines[0]));
    return estimate;
}

Recording Page(const Estimate& estimate, int pageIndex, bool printMode = false) {
    return Recording(
        [&](HDC dc) { DrawEstimatePage(dc, kOffset, estimate, pageIndex, printMode); });
}

std::wstring Edges(const RECT& rect) {
    return Told(rect.left) + L"," + Told(rect.top) + L"," + Told(rect.right) + L"," +
           Told(rect.bottom);
}

// From where to where a page's bars and frames are, with the names of its lines.
std::wstring Rows(const std::wstring& index, const std::wstring& given) {
    auto estimate = RecordWith(given);
    std::wstring told = Told(PageCount(estimate)) + L":", name = L"#0";
    for (ServiceLine& line : estimate.Lines) ++name[1], line.ServiceItem = name;
    for (const auto& [kind, place, look] : Page(estimate, std::stoi(index)).things) {
        if (kind != L"text") told += L" " + Told(place.top) + L"-" + Told(place.bottom);
        if (look.ends_with(L"on page 2.")) told += L" " + look;
        if (const auto at = look.find(L": #"); at != std::wstring::npos)
            told += look.substr(at + 2);
    }
    return told;
}

// Compares what is drawn, but for its places, with a file of such lines, with "preview|print"
// where the two differ.
void CheckLooks(const Recording& drawn, const std::wstring& file, bool printMode) {
    std::wstring text = FromUtf8(TestData(L"pages/" + file)), table = L"items table\n";
    text.replace(text.find(table), table.size(), FromUtf8(TestData(L"pages/items-table.txt")));
    std::vector<std::wstring> looks;
    for (const auto& [kind, place, look] : drawn.things) {
        looks.emplace_back(kind).append(L" ").append(look);
    }
    const std::wregex choice(L"(\\w+)\\|(\\w+)");
    CheckLines(looks, std::regex_replace(text, choice, printMode ? L"$2" : L"$1"));
}

// What holds on any page: nothing leaves its margins, a text that begins in a frame stays between
// its sides, and no two texts overlap, but for the second lines of the care overview.
void CheckPlaces(const Recording& page) {
    RECT all{}, both{};
    for (const Drawn& one : page.things) {
        const RECT& place = one.place;
        if (&one != &page.things[0]) UnionRect(&all, &all, &place);  // the background
        for (const Drawn& other : page.things) {
            CAPTURE(one.look);
            CAPTURE(other.look);
            if (&one == &other || one.kind != L"text") continue;
            if (!IntersectRect(&both, &place, &other.place)) continue;
            if (other.kind == L"text") CHECK(both.bottom - both.top <= 8);
            if (other.kind != L"text") CHECK(both.right - both.left == place.right - place.left);
        }
    }
    CHECK((all.left == 42 && all.top == 34 && all.right / 2 == 387 && all.bottom == 1003));
}

}  // namespace

TEST_CASE("Pages have every text once and in its style, each at a place of its own") {
    for (const bool printMode : {false, true}) {
        CheckLooks(Page(PagesEstimate(1), 0, printMode), L"first-page.txt", printMode);
        CheckLooks(Page(PagesEstimate(7), 1, printMode), L"second-page.txt", printMode);
    }
    for (const int page : {0, 1}) CheckPlaces(Page(PagesEstimate(12), page));
}

TEST_CASE("Pages say what is there, without gaps, and lie below the buttons of the preview") {
    using Text = const std::wstring&;
    CheckRules(
        L"pages.txt",
        {{L"patient",
          [](Text given) { return OnOneLine(PatientBlock(RecordWith<PatientInfo>(given))); }},
         {L"provider",
          [](Text given) { return OnOneLine(ProviderBlock(RecordWith<ProviderInfo>(given))); }},
         {L"dates", [](Text given) { return ScheduledValue(RecordWith(given)); }},
         {L"information",
          [](Text given) { return OnOneLine(EstimateInformation(RecordWith(given))); }},
         {L"rows", Rows},
         {L"preview", [](Text width, Text height) {
              return Edges(PageArea(PreviewTransform(std::stoi(width), std::stoi(height))));
          }}});
}

TEST_CASE("Edges and the height of letters are cut to whole pixels, each by itself") {
    CHECK(Edges(MapRect({-10, -20, 0, 0, 1.5, 0.75}, {1, 1, 1, 1})) == L"-9,-20,-7,-19");
    CHECK(Edges(MapRect({-10, -20, 0, 0, 1.5, 0.75}, {2, 3, 3, 4})) == L"-7,-18,-3,-15");
    CHECK(Edges(MapRect({0, 0, 0, 0, -1.5, -0.75}, {1, 1, 2, 2})) == L"-1,0,-4,-2");
    constexpr PageTransform kUneven{0, 0, 0, 0, 4.0, 1.999};
    const auto draw = [&](HDC dc) {
        DrawPageText(dc, kUneven, L"a", {0, 0, 9, 40}, {720, kNormal, 0});
    };
    // 191 pixels per inch; 192 would give 720 points.
    CHECK(Recording(draw, kUneven).lines.at(0) == L"text 0,0,9,39 717pt 000000 wrapped: a");
}

TEST_CASE("Pages are printed in grey between the margins, as many as the printer takes") {
    static std::wstring told;
    static int pagesTaken = 0;
    PretendPrinter();
    const StandIn document(__imp_StartDocW, [](HDC, const DOCINFOW* started) {
        told = started->lpszDocName;
        return 1;
    });
    const StandIn page(__imp_StartPage, [](HDC) {
        told += L", page";
        return --pagesTaken < 0 ? 0 : 1;
    });
    const auto end = [](HDC) { return static_cast<int>((told += L" end").size()); };
    const StandIn pageEnd(__imp_EndPage, end), documentEnd(__imp_EndDoc, end);
    // Paper of a size that stretches a page by whole numbers between the margins.
    const StandIn paper(__imp_GetDeviceCaps, [](HDC, int index) {
        return index == HORZRES ? 3546 : index == VERTRES ? 2270 : 0;
    });
    const auto print = [&](int pages, const PrintCopies& copies = {}) {
        pagesTaken = pages;
        const auto draw = [&](HDC dc) {
            std::wstring error;
            CHECK(PrintDocument(dc, PagesEstimate(), copies, error));
        };
        return Recording(draw, {141, 79, 3405, 2191, 4.0, 2.0});
    };
    const auto pages = [](std::initializer_list<int> indices) {
        const auto draw = [&](HDC dc) {
            for (const int i : indices) DrawEstimatePage(dc, kOffset, PagesEstimate(), i, true);
        };
        return Recording(draw).lines;
    };
    CHECK(print(9).lines == pages({0, 1}));
    CHECK(told == L"Good Faith Estimate, page end, page end end");
    CHECK(print(1).lines == pages({0}));
    CHECK(told == L"Good Faith Estimate, page end, page end");
    CHECK(print(9, {2, true}).lines == pages({0, 1, 0, 1}));
    CHECK(print(9, {2, false}).lines == pages({0, 0, 1, 1}));
    CHECK(print(2, {3, false}).lines == pages({0, 0}));
}

TEST_CASE("What the user chose is printed, as it was when the dialog opened") {
    static Estimate estimate;
    static HDC paper = nullptr;
    static DWORD code = 0;
    estimate = PagesEstimate();
    PretendPrinter();
    const StandIn dialog(__imp_PrintDlgW, [](PRINTDLGW* asked) {
        CHECK(asked->Flags == (PD_RETURNDC | PD_NOPAGENUMS | PD_NOSELECTION));
        estimate = {};
        asked->hDC = paper;
        asked->nCopies = 2;
        asked->Flags |= PD_COLLATE;
        SetLastError(ERROR_CANCELLED);  // of something in the dialog
        return TRUE;
    });
    const StandIn kept(__imp_DeleteDC, [](HDC) { return TRUE; });
    std::wstring error, order;
    const Recording printed([&](HDC dc) {
        paper = dc;
        CHECK(PrintEstimate(nullptr, estimate, error));
    });
    for (const std::wstring& line : printed.lines) {
        if (line.ends_with(L": GOOD FAITH ESTIMATE")) order += L"first ";
        if (line.ends_with(L" ADDITIONAL INFORMATION")) order += L"second ";
    }
    CHECK(order == L"first second first second ");
    const StandIn document(__imp_StartDocW, [](HDC, const DOCINFOW*) {
        if (code != ERROR_SUCCESS) SetLastError(code);
        return 0;
    });
    for (const DWORD given : {DWORD{ERROR_CANCELLED}, DWORD{ERROR_PRINT_CANCELLED},
                              DWORD{ERROR_ACCESS_DENIED}, DWORD{ERROR_SUCCESS}}) {
        code = given;
        CHECK_FALSE(PrintEstimate(nullptr, estimate, error));
        CHECK(error.empty() == (given == ERROR_CANCELLED || given == ERROR_PRINT_CANCELLED));
    }
}
