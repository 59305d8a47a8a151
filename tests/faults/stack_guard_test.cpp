// A function that writes past its array. Played by stack_guard_test.sh.
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "tests/support/readable.h"

#ifdef __GNUC__
extern "C" std::uintptr_t __stack_chk_guard;

TEST_CASE("A function writes past its array" * doctest::skip()) {
    std::printf("guard %llx\n", static_cast<unsigned long long>(__stack_chk_guard));
    std::fflush(stdout);
    volatile std::size_t tooMany = 64;
    char array[8];
    std::memset(array, 'x', tooMany);
    CHECK(array[0] == 'x');
}
#endif
