// What the texts on the pages say, and where a page lies on its device.
#include <regex>
#include <sstream>

#include "document/page_texts.h"
#include "document/page_transform.h"
#include "model/estimate_fields.h"
#include "tests/support/readable.h"

using namespace tessaline;

namespace {

template <typename Record>
Record RecordOf(std::wistream& values) {
    Record record;
    ForEachField(record, [&](const wchar_t*, std::wstring& value) {
        value.clear();
        std::getline(values, value, L'|');
    });
    return record;
}

std::wstring BlockOf(const std::wstring& line) {
    std::wistringstream values(line);
    std::wstring kind;
    values >> kind;
    values.get();
    return kind == L"patient" ? PatientBlock(RecordOf<PatientInfo>(values))
                              : ProviderBlock(RecordOf<ProviderInfo>(values));
}

void CheckSame(const RECT& rect, const RECT& expected) {
    CHECK(EqualRect(&rect, &expected));
}

}  // namespace

TEST_CASE("The blocks of patient and provider leave out what is missing, with its caption") {
    std::wistringstream file(FromUtf8(TestData(L"page-blocks.txt")));
    std::wstring line, block;
    std::getline(file, line);
    std::getline(file, line);
    while (std::getline(file, line) && std::getline(file, block)) {
        CHECK(BlockOf(line) == std::regex_replace(block, std::wregex(L" / "), L"\n"));
    }
}

TEST_CASE("Dates give way to \"not yet scheduled\", and captions stay without a value") {
    Estimate estimate;
    estimate.ScheduledDates = L"5/6/2026 ";
    CHECK(ScheduledValue(estimate) == L"5/6/2026 ");
    estimate.NotYetScheduled = true;
    CHECK(ScheduledValue(estimate) == L"Not yet scheduled");
    estimate.CoverageStatus.clear();
    CHECK(EstimateInformation(estimate).starts_with(L"Patient status: \nEstimate triggered by: "));
}

TEST_CASE("Each edge of a rectangle is cut towards zero by itself before the offset is added") {
    CheckSame(MapRect({-10, -20, 0, 0, 1.5, 0.75}, {1, 1, 1, 1}), {-9, -20, -7, -19});
    CheckSame(MapRect({-10, -20, 0, 0, 1.5, 0.75}, {2, 3, 3, 4}), {-7, -18, -3, -15});
    CheckSame(MapRect({0, 0, 0, 0, -1.5, -0.75}, {1, 1, 2, 2}), {-1, 0, -4, -2});
}

TEST_CASE("The preview's page keeps its proportions below the buttons") {
    const struct {
        int width, height;
        RECT page;
    } rows[] = {
        {884, 941, {110, 55, 773, 914}},  // limited by the height
        {703, 941, {20, 55, 683, 914}},   // just not limited by the width
        {702, 941, {20, 55, 682, 911}},   // just limited by the width
        {400, 941, {20, 55, 380, 520}},   // limited by the width
        {500, 82, {250, 55, 250, 55}},    // empty
        {500, 72, {253, 55, 246, 45}},    // inverted
        {30, 500, {20, 55, 10, 43}},      // inverted by its width
    };
    for (const auto& [width, height, page] : rows) {
        const PageTransform transform = PreviewTransform(width, height);
        CheckSame(PageArea(transform), page);
        CHECK(transform.scaleX == (page.right - page.left) / 816.0);
        CHECK(transform.scaleY == (page.bottom - page.top) / 1056.0);
    }
}
