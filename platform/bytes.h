// Runs of bytes as files and buffers hold them.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace tessaline {

using Bytes = std::vector<std::uint8_t>;
using ByteView = std::span<const std::uint8_t>;

}  // namespace tessaline
