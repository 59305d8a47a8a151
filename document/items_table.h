// The table of expected items and services, page x 42 to 774 on both pages: a header band and one
// row of fixed height for every line.
#pragma once

#include <windows.h>

#include "document/page_transform.h"
#include "model/estimate.h"

namespace tessaline {

/// Draws the header band, 28 page units high, with its top at `y`.
void DrawItemsHeader(HDC dc, const PageTransform& transform, int y, bool printMode);

/// Draws at most `maxRows` lines from `firstIndex` (0 or more) on, each 34 page units high, the
/// first with its top at `y`. Gives back the y below the last row drawn, `y` itself when there is
/// none. Long texts end in an ellipsis and never grow a row.
int DrawItemRows(HDC dc, const PageTransform& transform, const Estimate& estimate, int firstIndex,
                 int maxRows, int y, bool printMode);

}  // namespace tessaline
