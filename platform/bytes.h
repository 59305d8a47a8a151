// Runs of bytes as files and buffers hold them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

namespace tessaline {

using Bytes = std::vector<std::uint8_t>;
using ByteView = std::span<const std::uint8_t>;

[[nodiscard]] inline bool BeginsWith(ByteView content, ByteView marker) {
    return content.size() >= marker.size() &&
           std::equal(marker.begin(), marker.end(), content.begin());
}

}  // namespace tessaline
