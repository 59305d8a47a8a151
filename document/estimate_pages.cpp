#include "document/estimate_pages.h"

#include <string>

#include "document/items_table.h"
#include "document/page_colours.h"
#include "document/page_drawing.h"
#include "document/page_texts.h"
#include "model/dates.h"
#include "model/money.h"
#include "model/text.h"
#include "platform/handles.h"

namespace tessaline {
namespace {

constexpr int kFirstPageLines = 6;

int LineCount(const Estimate& estimate) {
    return static_cast<int>(estimate.Lines.size());
}

void DrawBackground(HDC dc, const PageTransform& transform) {
    SetBkMode(dc, TRANSPARENT);
    const BrushOwner white(CreateSolidBrush(kPageBackground));
    const RECT page = PageArea(transform);
    FillRect(dc, &page, white.Get());
}

void DrawHeading(HDC dc, const PageTransform& transform, const wchar_t* text, const PageRect& rect,
                 bool printMode) {
    DrawPageText(dc, transform, text, rect, {12, kBold, kTitleText.In(printMode)});
}

void DrawFooter(HDC dc, const PageTransform& transform) {
    DrawPageText(dc, transform, FooterText().c_str(), {42, 985, 732, 18},
                 {7, kNormal, kMutedText, DT_SINGLELINE | DT_CENTER});
}

void DrawFirstPageTitle(HDC dc, const PageTransform& transform, const Estimate& estimate,
                        bool printMode) {
    DrawPageText(dc, transform, L"GOOD FAITH ESTIMATE", {42, 34, 440, 34},
                 {22, kBold, kTitleText.In(printMode)});
    DrawPageText(dc, transform, L"No Surprises Act", {42, 69, 240, 20},
                 {9, kBold, kSubtitleText.In(printMode)});

    const TextStyle caption{7, kBold, kMutedText};
    DrawPageText(dc, transform, L"Estimate #", {560, 35, 80, 14}, caption);
    DrawPageText(dc, transform, estimate.EstimateId.c_str(), {560, 50, 215, 22},
                 {9, kBold, kBodyText});
    DrawPageText(dc, transform, L"Prepared", {560, 75, 80, 14}, caption);
    DrawPageText(dc, transform, FormatTimestamp(estimate.LastModifiedOn, false).c_str(),
                 {560, 90, 215, 20}, {9, kNormal, kBodyText});

    FillPageRect(dc, transform, {42, 117, 732, 4}, kRuleFill.In(printMode));
}

void DrawTotalPanel(HDC dc, const PageTransform& transform, const Estimate& estimate,
                    bool printMode) {
    const PageRect panel{42, 132, 732, 63};
    FillPageRect(dc, transform, panel, kTotalFill.In(printMode));
    FramePageRect(dc, transform, panel, kTotalFrame.In(printMode), printMode ? 2 : 1);
    DrawPageText(dc, transform, L"TOTAL ESTIMATED CHARGES", {58, 145, 300, 17},
                 {8, kBold, kTotalCaption.In(printMode)});
    DrawPageText(dc, transform, FormatMoney(TotalExpectedCharge(estimate)).c_str(),
                 {520, 139, 236, 42},
                 {20, kBold, kTotalAmount.In(printMode), DT_SINGLELINE | DT_VCENTER | DT_RIGHT});
}

void DrawParties(HDC dc, const PageTransform& transform, const Estimate& estimate,
                 bool printMode) {
    DrawSectionBox(dc, transform, {42, 210, 354, 150}, L"Patient Information", printMode);
    DrawPageText(dc, transform, PatientBlock(estimate.Patient).c_str(), {55, 242, 328, 105},
                 {9, kNormal, kBodyText});
    DrawSectionBox(dc, transform, {410, 210, 364, 150}, L"Estimating Provider / Facility",
                   printMode);
    DrawPageText(dc, transform, ProviderBlock(estimate.Provider).c_str(), {423, 242, 338, 105},
                 {8, kNormal, kBodyText});
}

void DrawCareOverview(HDC dc, const PageTransform& transform, const Estimate& estimate,
                      bool printMode) {
    // The pairs are 49 high but 41 apart, so the second line of a long value runs into the label
    // below. Page 1 has no room to move them apart: with six items it is full down to the rights.
    DrawSectionBox(dc, transform, {42, 376, 732, 112}, L"Care Overview", printMode);
    DrawLabeledValue(dc, transform, L"Primary service / item", estimate.PrimaryService, 55, 410,
                     330, printMode);
    DrawLabeledValue(dc, transform, L"Scheduled date(s)", ScheduledValue(estimate), 410, 410, 350,
                     printMode);
    DrawLabeledValue(dc, transform, L"Primary diagnosis", estimate.PrimaryDiagnosis, 55, 451, 330,
                     printMode);
    DrawLabeledValue(dc, transform, L"Diagnosis code", estimate.PrimaryDiagnosisCode, 410, 451,
                     350, printMode);
}

void DrawFirstItems(HDC dc, const PageTransform& transform, const Estimate& estimate,
                    bool printMode) {
    DrawHeading(dc, transform, L"Expected Items and Services", {42, 510, 400, 24}, printMode);
    DrawItemsHeader(dc, transform, 538, printMode);
    const int end = DrawItemRows(dc, transform, estimate, 0, kFirstPageLines, 566, printMode);
    if (LineCount(estimate) <= kFirstPageLines) return;
    DrawPageText(dc, transform, L"Additional expected items/services continue on page 2.",
                 {50, end + 6, 420, 20}, {8, kNormal, kMutedText});
}

void DrawRightsPanel(HDC dc, const PageTransform& transform, bool printMode) {
    const PageRect panel{42, 805, 732, 145};
    FillPageRect(dc, transform, panel, kRightsFill.In(printMode));
    FramePageRect(dc, transform, panel, kRightsFrame.In(printMode));
    DrawPageText(dc, transform, L"Your Rights and the Federal Dispute Process", {56, 817, 690, 22},
                 {11, kBold, kTitleText.In(printMode)});
    DrawPageText(dc, transform, RightsText().c_str(), {56, 845, 690, 87}, {8, kNormal, kBodyText});
}

void DrawSecondPageTitle(HDC dc, const PageTransform& transform, const Estimate& estimate,
                         bool printMode) {
    DrawPageText(dc, transform, L"GOOD FAITH ESTIMATE \u2014 ADDITIONAL INFORMATION",
                 {42, 34, 700, 30}, {17, kBold, kTitleText.In(printMode)});
    DrawPageText(dc, transform, estimate.EstimateId.c_str(), {42, 68, 700, 20},
                 {9, kNormal, kMutedText});
    FillPageRect(dc, transform, {42, 96, 732, 3}, kRuleFill.In(printMode));
}

// The parts of page 2 follow one another, as far as the estimate has them: each takes its top and
// returns the top of the next.

int DrawContinuedItems(HDC dc, const PageTransform& transform, const Estimate& estimate, int y,
                       bool printMode) {
    const int remaining = LineCount(estimate) - kFirstPageLines;
    if (remaining <= 0) return y;
    DrawHeading(dc, transform, L"Expected Items and Services \u2014 Continued", {42, y, 600, 24},
                printMode);
    DrawItemsHeader(dc, transform, 150, printMode);
    return DrawItemRows(dc, transform, estimate, kFirstPageLines, remaining, 178, printMode) + 18;
}

int DrawSeparateItems(HDC dc, const PageTransform& transform, const Estimate& estimate, int y,
                      bool printMode) {
    if (estimate.SeparateItems.empty()) return y;
    DrawHeading(dc, transform, L"Separately Scheduled Services", {42, y, 600, 24}, printMode);
    y += 30;
    for (const SeparateItem& item : estimate.SeparateItems) {
        FramePageRect(dc, transform, {42, y, 732, 55}, kSeparateItemFrame.In(printMode));
        DrawPageText(dc, transform, item.ServiceItem.c_str(), {54, y + 8, 260, 38},
                     {9, kBold, kBodyText});
        DrawPageText(dc, transform, item.ProviderFacilityInstructions.c_str(),
                     {325, y + 8, 435, 38}, {8, kNormal, kBodyText});
        y += 55;
    }
    return y + 18;
}

int DrawNotes(HDC dc, const PageTransform& transform, const Estimate& estimate, int y,
              bool printMode) {
    // Notes that are only blanks do not make a second page necessary (see `PageCount`), but they
    // have their box on one that is there.
    if (estimate.ProviderNotes.empty()) return y;
    DrawSectionBox(dc, transform, {42, y, 732, 120}, L"Provider / Facility Notes", printMode);
    DrawPageText(dc, transform, estimate.ProviderNotes.c_str(), {56, y + 42, 704, 65},
                 {8, kNormal, kBodyText});
    return y + 138;
}

void DrawEstimateInformation(HDC dc, const PageTransform& transform, const Estimate& estimate,
                             int y, bool printMode) {
    DrawSectionBox(dc, transform, {42, y, 732, 150}, L"Estimate Information", printMode);
    DrawPageText(dc, transform, EstimateInformation(estimate).c_str(), {56, y + 42, 340, 95},
                 {9, kNormal, kBodyText});
    DrawPageText(dc, transform,
                 L"This Good Faith Estimate is based on information known when it was prepared. "
                 L"It is not a contract or guarantee of final charges. The provider or facility "
                 L"should update or issue a new estimate when required if the expected scope of "
                 L"care changes.",
                 {410, y + 42, 345, 95}, {8, kNormal, kBodyText});
}

}  // namespace

int PageCount(const Estimate& estimate) {
    const bool fitsOnOne = LineCount(estimate) <= kFirstPageLines &&
                           estimate.SeparateItems.empty() && IsBlank(estimate.ProviderNotes);
    return fitsOnOne ? 1 : 2;
}

void DrawEstimatePage(HDC dc, const PageTransform& transform, const Estimate& estimate,
                      int pageIndex, bool printMode) {
    if (pageIndex == 0) {
        DrawFirstPage(dc, transform, estimate, printMode);
    } else {
        DrawSecondPage(dc, transform, estimate, printMode);
    }
}

void DrawFirstPage(HDC dc, const PageTransform& transform, const Estimate& estimate,
                   bool printMode) {
    DrawBackground(dc, transform);
    DrawFirstPageTitle(dc, transform, estimate, printMode);
    DrawTotalPanel(dc, transform, estimate, printMode);
    DrawParties(dc, transform, estimate, printMode);
    DrawCareOverview(dc, transform, estimate, printMode);
    DrawFirstItems(dc, transform, estimate, printMode);
    DrawRightsPanel(dc, transform, printMode);
    DrawFooter(dc, transform);
}

void DrawSecondPage(HDC dc, const PageTransform& transform, const Estimate& estimate,
                    bool printMode) {
    DrawBackground(dc, transform);
    DrawSecondPageTitle(dc, transform, estimate, printMode);
    int y = 120;
    y = DrawContinuedItems(dc, transform, estimate, y, printMode);
    y = DrawSeparateItems(dc, transform, estimate, y, printMode);
    y = DrawNotes(dc, transform, estimate, y, printMode);
    DrawEstimateInformation(dc, transform, estimate, y, printMode);
    DrawFooter(dc, transform);
}

}  // namespace tessaline
