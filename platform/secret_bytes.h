// A byte buffer for keys and for patients' data in clear: every block that it gives back to the
// heap, also while it grows, is wiped first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace tessaline {

/// Overwrites `size` bytes with zeros, in a way that no optimiser removes.
void WipeMemory(void* memory, std::size_t size) noexcept;

/// The standard allocator, wiping what it frees.
template <typename T>
struct WipingAllocator : std::allocator<T> {
    using value_type = T;
    template <typename U>
    struct rebind {
        using other = WipingAllocator<U>;
    };

    WipingAllocator() = default;
    template <typename U>
    WipingAllocator(const WipingAllocator<U>&) noexcept {}  // NOLINT(google-explicit-constructor)

    void deallocate(T* memory, std::size_t count) noexcept {
        WipeMemory(memory, count * sizeof(T));
        std::allocator<T>::deallocate(memory, count);
    }
};

using SecretBytes = std::vector<std::uint8_t, WipingAllocator<std::uint8_t>>;

}  // namespace tessaline
