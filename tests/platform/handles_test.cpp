#include "platform/handles.h"

#include <utility>

#include "tests/support/readable.h"

using namespace tessaline;

namespace {

int ended = 0;

void EndNumber(int* number) {
    ended = ended * 10 + *number;
}

using NumberOwner = Owner<int*, EndNumber>;

}  // namespace

TEST_CASE("An owner ends what it holds once, whoever holds it last") {
    int one = 1;
    int two = 2;
    int three = 3;
    {
        NumberOwner first(&one);
        NumberOwner second(std::move(first));
        CHECK_FALSE(first);
        CHECK(second.Get() == &one);
        NumberOwner third(&two);
        third = std::move(second);
        CHECK(ended == 2);
        *third.Receive() = &three;
        CHECK(ended == 21);
        third.Reset();
        third.Reset();
    }
    CHECK(ended == 213);
}
