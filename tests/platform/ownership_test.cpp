// What owns handles and secrets ends them.
#include <array>
#include <utility>

#include "platform/handles.h"
#include "platform/secret_bytes.h"
#include "tests/support/readable.h"

using namespace tessaline;

namespace {

std::string ended;

void End(const char* name) {
    ended += name;
}

}  // namespace

TEST_CASE("An owner ends what it holds once, whoever holds it last") {
    {
        using NameOwner = Owner<const char*, End>;
        NameOwner first("1");
        NameOwner second(std::move(first));
        CHECK_FALSE(first);  // NOLINT(bugprone-use-after-move)
        CHECK(second);
        NameOwner third("2");
        third = std::move(second);
        CHECK(ended == "2");
        *third.Receive() = "3";
        CHECK(ended == "21");
        third.Reset();
        third.Reset();
    }
    CHECK(ended == "213");
}

TEST_CASE("Memory is wiped, and nothing beside it") {
    std::array<std::uint8_t, 4> memory = {1, 2, 3, 4};
    WipeMemory(memory.data() + 1, 2);
    CHECK(memory == std::array<std::uint8_t, 4>{1, 0, 0, 4});
    WipeMemory(nullptr, 0);
}
