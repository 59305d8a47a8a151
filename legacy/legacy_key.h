// The key of the older edition's files: that of the key file it left in the data folder, otherwise
// one made from the user's name and that folder. No key is ever written.
#pragma once

#include <cstddef>
#include <string>

#include "platform/local_store.h"
#include "platform/secret_bytes.h"

namespace tessaline {

inline constexpr std::size_t kLegacyKeySize = 32;  ///< AES-256

/// "data.key" in the base folder where it holds exactly 32 bytes, else the key derived for the
/// current user. Empty only when Windows' cryptography fails.
[[nodiscard]] SecretBytes GetLegacyKey(const LocalStore& store);

/// The key derived for a user and a data folder: another name or another folder gives another key,
/// another spelling of the same path ("." and "..", slashes either way) the same one.
[[nodiscard]] SecretBytes DeriveLegacyKey(const std::wstring& userName,
                                          const std::wstring& baseFolder);

}  // namespace tessaline
