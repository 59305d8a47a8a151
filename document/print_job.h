// Printing: the whole document, in grey, on a printer that the user chooses.
#pragma once

#include <windows.h>

#include <string>

#include "model/estimate.h"

namespace tessaline {

/// How often the whole document is wanted. Without `collated`, each page comes that often before
/// the next one.
struct PrintCopies {
    int count = 1;
    bool collated = false;
};

/// Asks for a printer and prints every page, as often as the user wants; returns once the last one
/// is with the spooler. What is printed is a copy of `estimate`, taken first. False with an empty
/// `error` when the user gives up (the dialog, or the name of the file that a printer writes),
/// false with the text for the user when the job cannot be started. A page that cannot be started
/// ends the job early and silently: still true.
[[nodiscard]] bool PrintEstimate(HWND owner, const Estimate& estimate, std::wstring& error);

/// The print job on the context of a printer, from its start to its end. Same results.
[[nodiscard]] bool PrintDocument(HDC printer, const Estimate& estimate, const PrintCopies& copies,
                                 std::wstring& error);

/// The pages within a job that has been started.
void PrintPages(HDC printer, const Estimate& estimate, const PrintCopies& copies);

}  // namespace tessaline
