#include "document/estimate_pages.h"

#include <algorithm>
#include <climits>
#include <regex>
#include <sstream>

#include "document/page_drawing.h"
#include "document/print_job.h"
#include "tests/document/recorded_drawing.h"
#include "tests/support/readable.h"
#include "tests/support/stand_in.h"

using namespace tessaline;

namespace {

/// Seven lines, two separate services and notes; the first line has everything a line can have.
Estimate FullEstimate() {
    Estimate estimate;
    estimate.EstimateId = L"GFE-20260307-140509";
    estimate.LastModifiedOn = 1772884800;  // 7 March 2026, noon UTC
    estimate.Patient = {L"Ann",  L"",          L"Lee",      L"01/02/1960",
                        L"4821", L"12 Oak St", L"Apt 4",    L"Springfield",
                        L"IL",   L"62701",     L"555-0101", L"ann@lee.example"};
    estimate.Provider.OrganizationName = L"Surgery & Sports Clinic";
    estimate.Provider.City = L"Peoria";
    estimate.Provider.Npi = L"1234567890";
    estimate.PrimaryService = L"Knee repair";
    estimate.PrimaryDiagnosisCode = L"S83.2";
    estimate.ScheduledDates = L"04/15/2026";
    estimate.Lines = {{L"Room & board", L"9 Elm St", L"M23.2", L"HCPCS", L"A1", -3, 5.0}};
    for (int i = 2; i <= 7; ++i) {
        estimate.Lines.push_back({L"Item " + std::to_wstring(i), L"", L"", L"CPT", L"", 2, 10.0});
    }
    estimate.SeparateItems = {{L"Therapy", L"Ask the therapist"},
                              {L"Crutches", L"Ask the supplier"}};
    estimate.ProviderNotes = L"Bring a photo\r\n& a pen";
    return estimate;
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

/// Compares with files that hold the lines of a recording, with "preview|print" where the two
/// differ.
void CheckAgainst(std::initializer_list<const wchar_t*> files, const Recording& drawn,
                  bool printMode) {
    const std::wregex choice(L"(\\w+)\\|(\\w+)");
    std::size_t count = 0;
    for (const wchar_t* const file : files) {
        std::wistringstream expected(FromUtf8(TestData(file)));
        for (std::wstring line; std::getline(expected, line); ++count) {
            REQUIRE(count < drawn.lines.size());
            CHECK(drawn.lines[count] ==
                  std::regex_replace(line, choice, printMode ? L"$2" : L"$1"));
        }
    }
    CHECK(drawn.lines.size() == count);
    CHECK(drawn.tidy);
}

}  // namespace

TEST_CASE("The first page shows six lines and says that more follow; the second shows the rest") {
    for (const bool printMode : {false, true}) {
        CheckAgainst({L"first-page.txt"}, Page(FullEstimate(), 0, printMode), printMode);
        CheckAgainst({L"second-page.txt"}, Page(FullEstimate(), 1, printMode), printMode);
    }
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

TEST_CASE("Any page index above 0 is the second page") {
    CHECK(Page(FullEstimate(), 7).lines == Page(FullEstimate(), 1).lines);
}

TEST_CASE("A second page is there for more lines, separate services or notes, without gaps") {
    struct Row {
        std::size_t lines;
        std::size_t separateItems;
        const wchar_t* notes;
        int pages;
        const wchar_t* information;  // where the last box of the second page stands
    };
    const Row rows[] = {
        {0, 0, L"", 1, L"fill 42,120,732,150"},    {6, 0, L" \r\n\t", 1, L"fill 42,258,732,150"},
        {0, 0, L" a ", 2, L"fill 42,258,732,150"}, {6, 1, L"", 2, L"fill 42,223,732,150"},
        {7, 0, L"", 2, L"fill 42,230,732,150"},    {40, 0, L"", 2, L"fill 42,1352,732,150"},
    };
    for (const Row& row : rows) {
        Estimate estimate;
        estimate.Lines.resize(row.lines);
        estimate.SeparateItems.resize(row.separateItems);
        estimate.ProviderNotes = row.notes;
        CHECK(PageCount(estimate) == row.pages);
        CHECK(Shows(Page(estimate, 1), row.information));
        CHECK(Shows(Page(estimate, 0), L"text 50,776,") == (row.lines > 6));
    }
}

TEST_CASE("Long texts of a row end in an ellipsis on their one line") {
    Estimate estimate;
    estimate.Lines.resize(1);
    ServiceLine& line = estimate.Lines[0];
    for (int i = 0; i < 50; ++i) line.ServiceItem += L"long\n";
    line.ServiceAddress = line.DiagnosisCode = line.ServiceCode = line.ServiceItem;
    int cut = 0;
    for (const std::wstring& drawn : Page(estimate, 0).lines) cut += drawn.ends_with(L"...");
    CHECK(cut == 4);
}

TEST_CASE("Letters are as high as the vertical scale says, cut to whole pixels per inch") {
    const PageTransform transform{0, 0, 100, 100, 7.0, 1.0078};
    const Recording text([&](HDC dc) {
        DrawPageText(dc, transform, L"a", {0, 0, 9, 40}, {22, kNormal, 0});
    });
    CHECK(text.fontHeight == -29);  // 22 points at 96 pixels per inch; 97 would give -30
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
    CHECK(Shows(Page(estimate, 0), L"text 42,985,732,18 7pt 657481 centre: Prepared"));
    CHECK(Shows(Page(estimate, 1), L"text 42,985,732,18 7pt 657481 centre: Prepared"));
}
