// A printer that takes every job and prints nothing, without a dialog and without a spooler.
#pragma once

#include "tests/support/stand_in.h"

extern "C" decltype(&AbortDoc) __imp_AbortDoc;

namespace tessaline {

struct PrintJobs {
    int begun, ended, aborted;
};
inline PrintJobs printJobs{};

/// From now on the print dialog is confirmed at once.
inline void PretendPrinter() {
    __imp_PrintDlgW = [](PRINTDLGW* dialog) {
        dialog->hDC = CreateCompatibleDC(nullptr);
        return TRUE;
    };
    __imp_StartDocW = [](HDC, const DOCINFOW*) { return ++printJobs.begun; };
    __imp_StartPage = __imp_EndPage = [](HDC) { return 1; };
    __imp_EndDoc = [](HDC) { return ++printJobs.ended; };
    __imp_AbortDoc = [](HDC) { return ++printJobs.aborted; };
}

}  // namespace tessaline
