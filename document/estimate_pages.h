// The printed Good Faith Estimate: how many pages an estimate takes and what stands where on them.
// The same pages serve the preview and the printer; print mode draws them in grey. Text that does
// not fit its place is clipped there. Page 2 takes all the lines that are left, and draws those
// that do not fit below its foot, where they are lost: there is no third page.
#pragma once

#include <windows.h>

#include "document/page_transform.h"
#include "model/estimate.h"

namespace tessaline {

/// 1 or 2. A second page is needed for more than six lines, for separately scheduled services and
/// for notes that are not blank.
[[nodiscard]] int PageCount(const Estimate& estimate);

/// Draws page 1 for index 0 and page 2 for any index above.
void DrawEstimatePage(HDC dc, const PageTransform& transform, const Estimate& estimate,
                      int pageIndex, bool printMode);

/// Draws page 1: who, what, the total, the first six lines and the patient's rights.
void DrawFirstPage(HDC dc, const PageTransform& transform, const Estimate& estimate,
                   bool printMode);

/// Draws page 2: the other lines, separately scheduled services, notes and the estimate's context.
void DrawSecondPage(HDC dc, const PageTransform& transform, const Estimate& estimate,
                    bool printMode);

}  // namespace tessaline
