// Memory that runs out when a test wants it to: see the operator new of allocation_test.cpp.
#pragma once

#include <utility>

namespace tessaline {

/// When this reaches 0, that allocation fails. At 0, nothing counts and nothing fails.
inline long long allocationsLeft = 0;

/// While it lives, a test's own allocations neither fail nor count.
struct SoundMemory {
    SoundMemory() = default;
    SoundMemory(const SoundMemory&) = delete;
    SoundMemory& operator=(const SoundMemory&) = delete;
    ~SoundMemory() { allocationsLeft = kept; }
    const long long kept = std::exchange(allocationsLeft, 0);
};

}  // namespace tessaline
