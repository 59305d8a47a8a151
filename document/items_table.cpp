#include "document/items_table.h"

#include <algorithm>
#include <string>

#include "document/page_colours.h"
#include "document/page_drawing.h"
#include "model/money.h"

namespace tessaline {
namespace {

constexpr int kTableLeft = 42;
constexpr int kTableWidth = 732;
constexpr int kHeaderHeight = 28;
constexpr int kRowHeight = 34;

std::wstring DiagnosisCell(const ServiceLine& line) {
    return line.DiagnosisCode;
}
std::wstring QuantityCell(const ServiceLine& line) {
    return std::to_wstring(line.Quantity);
}
std::wstring ChargeCell(const ServiceLine& line) {
    return FormatMoney(line.ExpectedCharge);
}
std::wstring TotalCell(const ServiceLine& line) {
    return FormatMoney(LineTotal(line));
}

struct Column {
    const wchar_t* title;
    int x;
    int titleWidth;
    UINT titleFormat;
    int cellWidth;
    UINT cellFormat;
    Weight cellWeight;
    std::wstring (*cellText)(const ServiceLine&);  // null: the cell has two lines of its own
};

constexpr UINT kLeftCell = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;
constexpr UINT kCentreCell = DT_SINGLELINE | DT_VCENTER | DT_CENTER;
constexpr UINT kRightCell = DT_SINGLELINE | DT_VCENTER | DT_RIGHT;

// clang-format off
constexpr Column kColumns[] = {
    {L"Service / Item & Location", 50, 250, DT_WORDBREAK, 245, 0, kNormal, nullptr},
    {L"Diagnosis", 305,  83, DT_WORDBREAK,  83, kLeftCell,   kNormal, DiagnosisCell},
    {L"Code",      393,  88, DT_WORDBREAK,  88, kLeftCell,   kNormal, CodeText},
    {L"Qty",       486,  40, DT_CENTER,     40, kCentreCell, kNormal, QuantityCell},
    {L"Charge",    531, 105, DT_RIGHT,     105, kRightCell,  kNormal, ChargeCell},
    {L"Total",     641, 124, DT_RIGHT,     124, kRightCell,  kBold,   TotalCell},
};
// clang-format on

void DrawServiceCell(HDC dc, const PageTransform& transform, const Column& column,
                     const ServiceLine& line, int y) {
    constexpr UINT kCut = DT_SINGLELINE | DT_END_ELLIPSIS;
    DrawPageText(dc, transform, line.ServiceItem.c_str(), {column.x, y + 3, column.cellWidth, 14},
                 {8, kNormal, kBodyText, kCut});
    if (line.ServiceAddress.empty()) return;
    DrawPageText(dc, transform, line.ServiceAddress.c_str(),
                 {column.x, y + 17, column.cellWidth, 13}, {7, kNormal, kMutedText, kCut});
}

void DrawRow(HDC dc, const PageTransform& transform, const ServiceLine& line, int y,
             bool printMode) {
    const PageRect row{kTableLeft, y, kTableWidth, kRowHeight};
    FillPageRect(dc, transform, row, kPageBackground);
    FramePageRect(dc, transform, row, kItemRowFrame.In(printMode));
    for (const Column& column : kColumns) {
        if (column.cellText == nullptr) {
            DrawServiceCell(dc, transform, column, line, y);
            continue;
        }
        DrawPageText(dc, transform, column.cellText(line).c_str(),
                     {column.x, y + 7, column.cellWidth, 20},
                     {8, column.cellWeight, kBodyText, column.cellFormat});
    }
}

}  // namespace

void DrawItemsHeader(HDC dc, const PageTransform& transform, int y, bool printMode) {
    FillPageRect(dc, transform, {kTableLeft, y, kTableWidth, kHeaderHeight},
                 kItemsHeaderFill.In(printMode));
    for (const Column& column : kColumns) {
        DrawPageText(dc, transform, column.title, {column.x, y + 6, column.titleWidth, 18},
                     {8, kBold, kItemsHeaderText.In(printMode), column.titleFormat});
    }
}

int DrawItemRows(HDC dc, const PageTransform& transform, const Estimate& estimate, int firstIndex,
                 int maxRows, int y, bool printMode) {
    const int last = std::min(firstIndex + maxRows, static_cast<int>(estimate.Lines.size()));
    for (int i = firstIndex; i < last; ++i) {
        DrawRow(dc, transform, estimate.Lines[static_cast<std::size_t>(i)], y, printMode);
        y += kRowHeight;
    }
    return y;
}

}  // namespace tessaline
