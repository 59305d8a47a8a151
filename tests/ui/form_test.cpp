#include "tests/support/readable.h"
#include "tests/ui/story.h"

TEST_CASE("form") {
    tessaline::PlayStories(L"ui/form.txt");
}
