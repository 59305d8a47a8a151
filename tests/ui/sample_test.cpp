#include "tests/support/readable.h"
#include "tests/ui/story.h"

TEST_CASE("sample") {
    tessaline::PlayStories(L"ui/sample.txt");
}
