#include "document/print_job.h"

#include "document/estimate_pages.h"
#include "platform/handles.h"
#include "tests/document/recorded_drawing.h"
#include "tests/support/readable.h"

using namespace tessaline;

TEST_CASE("A device that prints nothing refuses the job") {
    const DeviceContextOwner memory(CreateCompatibleDC(nullptr));
    std::wstring error;
    CHECK_FALSE(PrintDocument(memory.Get(), Estimate{}, error));
    CHECK(error == L"Could not start the print job.");
}

TEST_CASE("Every page is printed in grey within the margins of the device") {
    for (const std::size_t lines : {6U, 7U}) {
        Estimate estimate;
        estimate.Lines.resize(lines);
        bool takesPages = false;
        const Recording expected([&](HDC dc) {
            takesPages = StartPage(dc) > 0;
            const PageTransform paper =
                PrintTransform(GetDeviceCaps(dc, HORZRES), GetDeviceCaps(dc, VERTRES));
            DrawFirstPage(dc, paper, estimate, true);
            if (lines > 6) DrawSecondPage(dc, paper, estimate, true);
        });
        if (!takesPages) {
            MESSAGE("No pages can be started in a metafile here.");
            return;
        }
        const Recording printed([&](HDC dc) { PrintPages(dc, estimate); });
        CHECK(printed.lines == expected.lines);
    }
}
