// Printing: the whole document, in grey, on a printer that the user chooses.
#pragma once

#include <windows.h>

#include <string>

#include "model/estimate.h"

namespace tessaline {

/// Asks for a printer and prints every page; returns once the last one is with the spooler. False
/// with an empty `error` when the user cancels, false with the text for the user when the job
/// cannot be started. A page that cannot be started ends the job early and silently: still true.
[[nodiscard]] bool PrintEstimate(HWND owner, const Estimate& estimate, std::wstring& error);

/// The print job on the context of a printer, from its start to its end. Same results.
[[nodiscard]] bool PrintDocument(HDC printer, const Estimate& estimate, std::wstring& error);

/// The pages within a job that has been started.
void PrintPages(HDC printer, const Estimate& estimate);

}  // namespace tessaline
