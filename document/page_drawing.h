// The primitives from which the document is drawn, in page units on any device context. Each call
// creates the fonts, pens and brushes that it needs and deletes them before it returns: nothing is
// kept between calls, and what was selected into the context before is selected again after. Only
// the background mode and the text colour stay changed. GDI failures are ignored.
#pragma once

#include <windows.h>

#include <string>

#include "document/page_transform.h"

namespace tessaline {

/// The two weights of the document's typeface.
enum Weight { kNormal = FW_NORMAL, kBold = FW_SEMIBOLD };

/// How a text is set.
struct TextStyle {
    int points;
    Weight weight;
    COLORREF colour;
    UINT format = DT_WORDBREAK;  ///< `DrawTextW` flags; `DT_NOPREFIX` comes with every text
};

/// Draws `text` up to its terminator inside `rect` and clips it there. The height of the letters
/// follows the vertical scale alone. An ampersand is drawn as itself.
void DrawPageText(HDC dc, const PageTransform& transform, const wchar_t* text,
                  const PageRect& rect, const TextStyle& style);

/// Fills a rectangle in page units.
void FillPageRect(HDC dc, const PageTransform& transform, const PageRect& rect, COLORREF colour);

/// Draws the outline of a rectangle in device pixels; `penWidth` is in device pixels too. The
/// interior stays as it is.
void FrameDeviceRect(HDC dc, const RECT& deviceRect, COLORREF colour, int penWidth);

/// Draws the outline of a rectangle in page units; `penWidth` is in device pixels.
void FramePageRect(HDC dc, const PageTransform& transform, const PageRect& rect, COLORREF colour,
                   int penWidth = 1);

/// Draws an empty white panel with a frame and a title. The caller fills it.
void DrawSectionBox(HDC dc, const PageTransform& transform, const PageRect& rect,
                    const wchar_t* title, bool printMode);

/// Draws a small caption at (x, y) over a value, both `w` wide; together they are 49 units high.
/// An empty value shows as an em dash.
void DrawLabeledValue(HDC dc, const PageTransform& transform, const wchar_t* label,
                      const std::wstring& value, int x, int y, int w, bool printMode);

}  // namespace tessaline
