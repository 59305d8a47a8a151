// Decryption of the older edition's files: "GFE2", a nonce of 12 bytes, a tag of 16 bytes, and the
// document encrypted with AES-256 in Galois/Counter Mode, without additional data.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/bytes.h"
#include "platform/local_store.h"
#include "platform/secret_bytes.h"

namespace tessaline {

/// What a file of the older edition begins with.
inline constexpr std::array<std::uint8_t, 4> kLegacyMarker = {'G', 'F', 'E', '2'};

/// The document in a file of the older edition. Empty on failure, with the text for the user in
/// `error`; `error` stays as it was for a file of another kind or without a document.
[[nodiscard]] SecretBytes DecryptLegacyFile(ByteView file, const LocalStore& store,
                                            std::wstring& error);

}  // namespace tessaline
