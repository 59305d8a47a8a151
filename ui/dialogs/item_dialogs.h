// The two dialogs that edit one row of the estimate's lists.
#pragma once

#include <windows.h>

#include <functional>

#include "model/estimate.h"

namespace tessaline {

/// Stores an element that the user has confirmed. It is called while the dialog is still open, so
/// that nothing typed is lost if it runs out of memory.
template <typename Element>
using Keep = std::function<void(const Element& element)>;

/// Edits an expected item; only a valid one is kept.
void EditServiceLine(HWND owner, const ServiceLine& line, const Keep<ServiceLine>& keep);

/// Edits a separately scheduled service, likewise.
void EditSeparateItem(HWND owner, const SeparateItem& item, const Keep<SeparateItem>& keep);

}  // namespace tessaline
