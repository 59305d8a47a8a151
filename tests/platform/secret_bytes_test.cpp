#include "platform/secret_bytes.h"

#include <array>

#include "tests/support/readable.h"

using namespace tessaline;

TEST_CASE("Memory is wiped, and nothing beside it") {
    std::array<std::uint8_t, 4> memory = {1, 2, 3, 4};
    WipeMemory(memory.data() + 1, 2);
    CHECK(memory == std::array<std::uint8_t, 4>{1, 0, 0, 4});
    WipeMemory(nullptr, 0);
}
