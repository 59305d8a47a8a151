#include "tests/support/readable.h"
#include "tests/ui/story.h"

TEST_CASE("commands") {
    tessaline::PlayStories(L"ui/commands.txt");
}
