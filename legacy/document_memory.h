// Memory for the tree of one document, which holds a patient's data in clear: all of it is wiped
// when it ends.
#pragma once

#include <array>
#include <cstddef>
#include <memory_resource>

#include "platform/secret_bytes.h"

namespace tessaline {

/// Gives memory in ascending order and takes nothing back before it ends; declare it before what
/// lives in it. It is large (see `kBlockSize`) and meant for the stack.
class DocumentMemory {
  public:
    DocumentMemory() : memory_(block_.data(), block_.size(), &overflow_) {}
    DocumentMemory(const DocumentMemory&) = delete;
    DocumentMemory& operator=(const DocumentMemory&) = delete;
    ~DocumentMemory() { WipeMemory(block_.data(), block_.size()); }

    [[nodiscard]] std::pmr::memory_resource* Get() { return &memory_; }

  private:
    class WipingHeap final : public std::pmr::memory_resource {
        void* do_allocate(std::size_t size, std::size_t) override {
            return WipingAllocator<std::max_align_t>().allocate(UnitsFor(size));
        }
        void do_deallocate(void* memory, std::size_t size, std::size_t) override {
            WipingAllocator<std::max_align_t>().deallocate(static_cast<std::max_align_t*>(memory),
                                                           UnitsFor(size));
        }
        [[nodiscard]] bool do_is_equal(const memory_resource& other) const noexcept override {
            return this == &other;
        }
        static std::size_t UnitsFor(std::size_t size) {
            return (size + sizeof(std::max_align_t) - 1) / sizeof(std::max_align_t);
        }
    };

    // Enough for an estimate of a hundred lines. On the stack such a block costs only its wiping,
    // while the heap would fetch it anew from the system for every file of a long list.
    static constexpr std::size_t kBlockSize = std::size_t{256} * 1024;

    alignas(std::max_align_t) std::array<std::byte, kBlockSize> block_;
    WipingHeap overflow_;
    std::pmr::monotonic_buffer_resource memory_;
};

}  // namespace tessaline
