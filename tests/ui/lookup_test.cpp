#include "tests/support/readable.h"
#include "tests/ui/story.h"

TEST_CASE("lookup") {
    tessaline::PlayStories(L"ui/lookup.txt");
}
