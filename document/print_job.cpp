#include "document/print_job.h"

#include <commdlg.h>

#include "document/estimate_pages.h"
#include "platform/handles.h"

namespace tessaline {

bool PrintEstimate(HWND owner, const Estimate& estimate, std::wstring& error) {
    error.clear();
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
    return chosen && PrintDocument(printer.Get(), estimate, error);
}

bool PrintDocument(HDC printer, const Estimate& estimate, std::wstring& error) {
    DOCINFOW document{};
    document.cbSize = sizeof(document);
    document.lpszDocName = L"Good Faith Estimate";
    if (StartDocW(printer, &document) <= 0) {
        error = L"Could not start the print job.";
        return false;
    }
    try {
        PrintPages(printer, estimate);
    } catch (...) {
        // Half a document must not come out of the printer.
        AbortDoc(printer);
        throw;
    }
    EndDoc(printer);
    return true;
}

void PrintPages(HDC printer, const Estimate& estimate) {
    const int count = PageCount(estimate);
    for (int page = 0; page < count && StartPage(printer) > 0; ++page) {
        const PageTransform transform =
            PrintTransform(GetDeviceCaps(printer, HORZRES), GetDeviceCaps(printer, VERTRES));
        DrawEstimatePage(printer, transform, estimate, page, true);
        EndPage(printer);
    }
}

}  // namespace tessaline
