#include "platform/secret_bytes.h"

#include <windows.h>

namespace tessaline {

void WipeMemory(void* memory, std::size_t size) noexcept {
    if (memory != nullptr) SecureZeroMemory(memory, size);
}

}  // namespace tessaline
