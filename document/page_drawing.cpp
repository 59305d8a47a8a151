#include "document/page_drawing.h"

#include "document/page_colours.h"
#include "platform/handles.h"

namespace tessaline {
namespace {

FontOwner CreatePageFont(const PageTransform& transform, const TextStyle& style) {
    const int pixelsPerInch = static_cast<int>(transform.scaleY * 96.0);
    return FontOwner(CreateFontW(-MulDiv(style.points, pixelsPerInch, 72), 0, 0, 0, style.weight,
                                 FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                 CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                                 DEFAULT_PITCH | FF_DONTCARE, L"Segoe UI"));
}

}  // namespace

void DrawPageText(HDC dc, const PageTransform& transform, const wchar_t* text,
                  const PageRect& rect, const TextStyle& style) {
    const FontOwner font = CreatePageFont(transform, style);
    const SelectGuard selected(dc, font.Get());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, style.colour);
    RECT deviceRect = MapRect(transform, rect);
    DrawTextW(dc, text, -1, &deviceRect, style.format | DT_NOPREFIX);
}

void FillPageRect(HDC dc, const PageTransform& transform, const PageRect& rect, COLORREF colour) {
    const BrushOwner brush(CreateSolidBrush(colour));
    const RECT deviceRect = MapRect(transform, rect);
    FillRect(dc, &deviceRect, brush.Get());
}

void FrameDeviceRect(HDC dc, const RECT& deviceRect, COLORREF colour, int penWidth) {
    const PenOwner pen(CreatePen(PS_SOLID, penWidth, colour));
    const SelectGuard selectedPen(dc, pen.Get());
    const SelectGuard selectedBrush(dc, GetStockObject(HOLLOW_BRUSH));
    Rectangle(dc, deviceRect.left, deviceRect.top, deviceRect.right, deviceRect.bottom);
}

void FramePageRect(HDC dc, const PageTransform& transform, const PageRect& rect, COLORREF colour,
                   int penWidth) {
    FrameDeviceRect(dc, MapRect(transform, rect), colour, penWidth);
}

void DrawSectionBox(HDC dc, const PageTransform& transform, const PageRect& rect,
                    const wchar_t* title, bool printMode) {
    FillPageRect(dc, transform, rect, kPageBackground);
    FramePageRect(dc, transform, rect, kSectionFrame.In(printMode));
    DrawPageText(dc, transform, title, {rect.x + 12, rect.y + 9, rect.w - 24, 24},
                 {11, kBold, kTitleText.In(printMode)});
}

void DrawLabeledValue(HDC dc, const PageTransform& transform, const wchar_t* label,
                      const std::wstring& value, int x, int y, int w, bool printMode) {
    DrawPageText(dc, transform, label, {x, y, w, 15}, {7, kBold, kLabelText.In(printMode)});
    DrawPageText(dc, transform, value.empty() ? L"\u2014" : value.c_str(), {x, y + 15, w, 34},
                 {9, kNormal, kBodyText});
}

}  // namespace tessaline
