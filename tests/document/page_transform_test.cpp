#include "document/page_transform.h"

#include <doctest/doctest.h>

using namespace tessaline;

namespace {

void CheckSame(const RECT& rect, const RECT& expected) {
    CHECK(EqualRect(&rect, &expected));
}

}  // namespace

TEST_CASE("Each edge of a rectangle is cut towards zero by itself before the offset is added") {
    const PageTransform transform{-10, -20, 0, 0, 1.5, 0.75};
    CheckSame(MapRect(transform, {1, 1, 1, 1}), {-9, -20, -7, -19});
    CheckSame(MapRect(transform, {2, 3, 3, 4}), {-7, -18, -3, -15});
    const PageTransform inverted{0, 0, 0, 0, -1.5, -0.75};
    CheckSame(MapRect(inverted, {1, 1, 2, 2}), {-1, 0, -4, -2});
}

TEST_CASE("The preview's page keeps its proportions below the buttons") {
    struct Row {
        int width;
        int height;
        RECT page;
    };
    const Row rows[] = {
        {884, 941, {110, 55, 773, 914}},  // limited by the height
        {703, 941, {20, 55, 683, 914}},   // just not limited by the width
        {702, 941, {20, 55, 682, 911}},   // just limited by the width
        {400, 941, {20, 55, 380, 520}},   // limited by the width
        {500, 82, {250, 55, 250, 55}},    // empty
        {500, 72, {253, 55, 246, 45}},    // inverted
        {30, 500, {20, 55, 10, 43}},      // inverted by its width
    };
    for (const Row& row : rows) {
        const PageTransform transform = PreviewTransform(row.width, row.height);
        CheckSame(PageArea(transform), row.page);
        CHECK(transform.scaleX == (row.page.right - row.page.left) / 816.0);
        CHECK(transform.scaleY == (row.page.bottom - row.page.top) / 1056.0);
    }
}

TEST_CASE("The printed page fills the printable area less its margins, each axis by itself") {
    const PageTransform letter = PrintTransform(5100, 6600);
    CheckSame(PageArea(letter), {204, 231, 4896, 6369});
    CHECK(letter.scaleX == 5.75);
    CHECK(letter.scaleY == 5.8125);
    CheckSame(PageArea(PrintTransform(2549, 3299)), {101, 115, 2448, 3184});
}
