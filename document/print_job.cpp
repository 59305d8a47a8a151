#include "document/print_job.h"

#include <commdlg.h>

#include <algorithm>

#include "document/estimate_pages.h"
#include "platform/handles.h"

namespace tessaline {
namespace {

// A printer that writes a file asks for its name inside StartDoc, where the user may give up.
bool WasCancelled(DWORD code) {
    return code == ERROR_CANCELLED || code == ERROR_PRINT_CANCELLED;
}

// False when the printer takes no further page.
bool PrintPage(HDC printer, const Estimate& estimate, int page) {
    if (StartPage(printer) <= 0) return false;
    const PageTransform transform =
        PrintTransform(GetDeviceCaps(printer, HORZRES), GetDeviceCaps(printer, VERTRES));
    DrawEstimatePage(printer, transform, estimate, page, true);
    EndPage(printer);
    return true;
}

}  // namespace

bool PrintEstimate(HWND owner, const Estimate& estimate, std::wstring& error) {
    error.clear();
    // A copy: while the dialog is open, the automatic save reads the form into the current record.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const Estimate asChosen = estimate;
    PRINTDLGW dialog{};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = owner;
    dialog.Flags = PD_RETURNDC | PD_NOPAGENUMS | PD_NOSELECTION;
    const bool chosen = PrintDlgW(&dialog) != 0;
    const DeviceContextOwner printer(dialog.hDC);
    // The dialog hands these over as well. They are dropped, so that it opens on the system's
    // settings every time.
    const GlobalOwner deviceMode(dialog.hDevMode);
    const GlobalOwner deviceNames(dialog.hDevNames);
    if (!chosen) return false;
    const PrintCopies copies{dialog.nCopies, (dialog.Flags & PD_COLLATE) != 0};
    return PrintDocument(printer.Get(), asChosen, copies, error);
}

bool PrintDocument(HDC printer, const Estimate& estimate, const PrintCopies& copies,
                   std::wstring& error) {
    DOCINFOW document{};
    document.cbSize = sizeof(document);
    document.lpszDocName = L"Good Faith Estimate";
    SetLastError(ERROR_SUCCESS);  // or an earlier call's code could be taken for this one's
    if (StartDocW(printer, &document) <= 0) {
        if (!WasCancelled(GetLastError())) error = L"Could not start the print job.";
        return false;
    }
    try {
        PrintPages(printer, estimate, copies);
    } catch (...) {
        // Half a document must not come out of the printer.
        AbortDoc(printer);
        throw;
    }
    EndDoc(printer);
    return true;
}

void PrintPages(HDC printer, const Estimate& estimate, const PrintCopies& copies) {
    const int pages = PageCount(estimate);
    const int count = std::max<int>(copies.count, 1);
    for (int sheet = 0; sheet < pages * count; ++sheet) {
        // Document by document, or each page `count` times in a row.
        const int page = copies.collated ? sheet % pages : sheet / count;
        if (!PrintPage(printer, estimate, page)) return;
    }
}

}  // namespace tessaline
