// The protected file around a payload: "GFN1", then a blob that only the Windows user who made it
// can open, on the computer where it was made. The blob is Windows' own; there is no key of ours.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/bytes.h"
#include "platform/secret_bytes.h"

namespace tessaline {

/// What a native estimate file begins with.
inline constexpr std::array<std::uint8_t, 4> kNativeMarker = {'G', 'F', 'N', '1'};

/// The content of a file that holds `payload`. Empty on failure, with `error` set.
[[nodiscard]] Bytes ProtectEstimateData(ByteView payload, std::wstring& error);

/// The payload in the content of a file. Empty on failure, with `error` set. A blob that holds no
/// bytes at all also gives an empty payload, without an error.
[[nodiscard]] SecretBytes UnprotectEstimateData(ByteView content, std::wstring& error);

}  // namespace tessaline
