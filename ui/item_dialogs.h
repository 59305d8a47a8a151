// The two dialogs that edit one row of the estimate's lists.
#pragma once

#include <windows.h>

#include "model/estimate.h"

namespace tessaline {

/// Edits an expected item on a copy. True when the user confirmed a valid one, which `line` then
/// holds; otherwise `line` is untouched.
[[nodiscard]] bool EditServiceLine(HWND owner, ServiceLine& line);

/// Edits a separately scheduled service, likewise.
[[nodiscard]] bool EditSeparateItem(HWND owner, SeparateItem& item);

}  // namespace tessaline
