#include "tests/support/readable.h"
#include "tests/ui/story.h"

TEST_CASE("binding") {
    tessaline::PlayStories(L"ui/binding.txt");
}
