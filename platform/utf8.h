// Conversion between the record's UTF-16 and the UTF-8 of files. Windows does it, so ill-formed
// text is replaced by U+FFFD and never refused.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/bytes.h"
#include "platform/secret_bytes.h"

namespace tessaline {

/// Appends the UTF-8 form of `text` to `bytes`, without a terminator.
void AppendUtf8(SecretBytes& bytes, std::wstring_view text);

/// The text that `utf8` holds.
[[nodiscard]] std::wstring FromUtf8(ByteView utf8);

}  // namespace tessaline
