// The two dialogs that edit one row of the estimate's lists.
#pragma once

#include <windows.h>

#include "model/estimate.h"

namespace tessaline {

/// Edits an expected item. `keep` receives a valid one that the user confirms; the dialog closes
/// once it returns, so that nothing typed is lost when memory runs out in it.
void EditServiceLine(HWND owner, const ServiceLine& line, void (*keep)(const ServiceLine&));

/// Edits a separately scheduled service, likewise.
void EditSeparateItem(HWND owner, const SeparateItem& item, void (*keep)(const SeparateItem&));

}  // namespace tessaline
