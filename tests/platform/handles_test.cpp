#include "platform/handles.h"

#include "platform/secret_bytes.h"
#include "platform/system_error.h"
#include "tests/support/readable.h"

#include <array>

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

TEST_CASE("Memory is wiped, and nothing beside it") {
    std::array<std::uint8_t, 4> memory = {1, 2, 3, 4};
    WipeMemory(memory.data() + 1, 2);
    CHECK(memory == std::array<std::uint8_t, 4>{1, 0, 0, 4});
    WipeMemory(nullptr, 0);
}

TEST_CASE("Error codes have the system's text on one line, or none") {
    const std::wstring text = SystemErrorText(ERROR_ACCESS_DENIED);
    CHECK_FALSE(text.empty());
    CHECK(text != L"Unknown error");
    CHECK(text.find_last_not_of(L" \r\n") == text.size() - 1);
    CHECK(SystemErrorText(0xE1234567) == L"Unknown error");
}
