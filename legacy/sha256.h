// The SHA-256 hash.
#pragma once

#include "platform/bytes.h"
#include "platform/secret_bytes.h"

namespace tessaline {

/// The digest, 32 bytes; empty when Windows' cryptography fails.
[[nodiscard]] SecretBytes Sha256(ByteView bytes);

}  // namespace tessaline
