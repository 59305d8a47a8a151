#include "tests/support/readable.h"
#include "tests/ui/story.h"

TEST_CASE("marks") {
    tessaline::PlayStories(L"ui/marks.txt");
}
