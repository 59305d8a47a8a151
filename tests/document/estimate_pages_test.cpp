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

Estimate FullEstimate() {
    return RecordOf({L"page"});
}

Recording Page(const Estimate& estimate, int pageIndex, bool printMode = false) {
    return Recording(
        [&](HDC dc) { DrawEstimatePage(dc, kStretched, estimate, pageIndex, printMode); });
}

/// Whether something on the page is recorded as a line that begins with `start`.
bool Shows(const Recording& page, const std::wstring& start) {
    return std::any_of(page.lines.begin(), page.lines.end(),
                       [&](const std::wstring& line) { return line.starts_with(start); });
}

std::wstring OnOneLine(std::wstring text) {
    std::replace(text.begin(), text.end(), L'\n', L'\u00B6');
    return text;
}

std::wstring Edges(const RECT& rect) {
    return Told(rect.left) + L"," + Told(rect.top) + L"," + Told(rect.right) + L"," +
           Told(rect.bottom);
}

std::wstring Pages(const std::wstring& given) {
    const auto estimate = RecordWith(given);
    std::wstring box;
    for (const std::wstring& line : Page(estimate, 7).lines) {
        if (line.starts_with(L"fill")) box = line;
    }
    const bool goesOn = Shows(Page(estimate, 0), L"text 50,776,");
    return Told(PageCount(estimate)) + L", " + box + (goesOn ? L", more" : L"");
}

/// Compares with files that hold the lines of a recording, with "preview|print" where the two
/// differ.
void CheckAgainst(std::initializer_list<const wchar_t*> files, const Recording& drawn,
                  bool printMode) {
    const std::wregex choice(L"(\\w+)\\|(\\w+)");
    std::wstring text;
    for (const wchar_t* const file : files) text += FromUtf8(TestData(file));
    CheckLines(drawn.lines, std::regex_replace(text, choice, printMode ? L"$2" : L"$1"));
    CHECK(drawn.tidy);
}

}  // namespace

TEST_CASE("The first page shows six lines and says that more follow; the second shows the rest") {
    for (const bool printMode : {false, true}) {
        CheckAgainst({L"first-page.txt"}, Page(FullEstimate(), 0, printMode), printMode);
        CheckAgainst({L"second-page.txt"}, Page(FullEstimate(), 1, printMode), printMode);
    }
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
         {L"pages", Pages},
         {L"preview", [](Text width, Text height) {
              return Edges(PageArea(PreviewTransform(std::stoi(width), std::stoi(height))));
          }}});
}

TEST_CASE("Each edge of a rectangle is cut towards zero by itself before the offset is added") {
    CHECK(Edges(MapRect({-10, -20, 0, 0, 1.5, 0.75}, {1, 1, 1, 1})) == L"-9,-20,-7,-19");
    CHECK(Edges(MapRect({-10, -20, 0, 0, 1.5, 0.75}, {2, 3, 3, 4})) == L"-7,-18,-3,-15");
    CHECK(Edges(MapRect({0, 0, 0, 0, -1.5, -0.75}, {1, 1, 2, 2})) == L"-1,0,-4,-2");
}

TEST_CASE("Pages are printed in grey between the margins, as many as the printer takes") {
    static std::wstring told;
    static int pagesTaken = 0;
    const StandIn document(__imp_StartDocW, [](HDC, const DOCINFOW* started) {
        told = started->lpszDocName;
        return 1;
    });
    const StandIn page(__imp_StartPage, [](HDC) {
        told += L", page";
        return --pagesTaken < 0 ? 0 : 1;
    });
    const auto end = [](HDC) {
        told += L" end";
        return 1;
    };
    const StandIn pageEnd(__imp_EndPage, end);
    const StandIn documentEnd(__imp_EndDoc, end);
    // Paper of a size that stretches a page by whole numbers between the margins.
    const StandIn paper(__imp_GetDeviceCaps, [](HDC, int index) {
        return index == HORZRES ? 3546 : index == VERTRES ? 2270 : 0;
    });
    const auto print = [&](int pages) {
        pagesTaken = pages;
        std::wstring error;
        return Recording([&](HDC dc) { CHECK(PrintDocument(dc, FullEstimate(), error)); },
                         {141, 79, 3405, 2191, 4.0, 2.0});
    };
    CheckAgainst({L"first-page.txt", L"second-page.txt"}, print(9), true);
    CHECK(told == L"Good Faith Estimate, page end, page end end");
    CheckAgainst({L"first-page.txt"}, print(1), true);
    CHECK(told == L"Good Faith Estimate, page end, page end");
}

TEST_CASE("Letters are as high as the vertical scale says, cut to whole pixels per inch") {
    constexpr PageTransform kUneven{0, 0, 0, 0, 4.0, 1.999};
    const auto draw = [&](HDC dc) {
        DrawPageText(dc, kUneven, L"a", {0, 0, 9, 40}, {720, kNormal, 0});
    };
    // 191 pixels per inch; 192 would give 720 points.
    CHECK(Recording(draw, kUneven).lines.at(0) == L"text 0,0,9,79 717pt 000000 left: a");
}

TEST_CASE("A record of any content is drawn") {
    const std::wstring word(1'000'000, L'W');
    std::wstring lines;
    for (int i = 0; i < 200'000; ++i) lines += L"a &\r\n";
    Estimate estimate = FullEstimate();
    estimate.EstimateId = estimate.Patient.FirstName = estimate.ProviderNotes = word;
    estimate.Provider.OrganizationName = estimate.PrimaryService = lines;
    estimate.Lines[0] = estimate.Lines[6] = {lines, word, word, lines, word, INT_MIN, 1e308};
    estimate.SeparateItems = {{word, lines}};
    const Recording first = Page(estimate, 0);
    CHECK(std::count_if(first.lines.begin(), first.lines.end(), [](const std::wstring& line) {
              return line.ends_with(L"...");  // each long text of a row, on its one line
          }) == 4);
    CHECK(Shows(first, L"text 50,569,245,14 8pt 1E2933 left: a &\r\na &\r\n"));
    CHECK(Shows(first, L"text 42,985,732,18 7pt 657481 centre: Prepared"));
    CHECK(Shows(Page(estimate, 1), L"text 42,985,732,18 7pt 657481 centre: Prepared"));
}
