#include "tests/support/readable.h"
#include "tests/ui/story.h"

TEST_CASE("dialogs") {
    tessaline::PlayStories(L"ui/dialogs.txt");
}
