// The preview window: one page of an estimate at a time, in colour, as large as the window allows.
#pragma once

#include <windows.h>

#include "model/estimate.h"

namespace tessaline {

/// Opens a preview over `owner` and returns at once. The preview shows a copy: later changes of
/// `estimate` do not reach it. It lives until the user closes it or its owner goes; any number may
/// be open. A window that cannot be created is not reported.
void ShowPrintPreview(HWND owner, const Estimate& estimate);

}  // namespace tessaline
