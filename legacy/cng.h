// What the hash and the cipher have in common in Windows' cryptography (CNG).
#pragma once

#include "platform/handles.h"
#include "platform/secret_bytes.h"

namespace tessaline {

/// The provider of an algorithm such as BCRYPT_AES_ALGORITHM; none on failure.
[[nodiscard]] AlgorithmOwner OpenAlgorithm(const wchar_t* name);

/// A property that is a number of bytes, such as BCRYPT_OBJECT_LENGTH; 0 on failure.
[[nodiscard]] ULONG SizeProperty(BCRYPT_HANDLE object, const wchar_t* name);

/// CNG declares its inputs as pointers to non-const, although it only reads them.
[[nodiscard]] inline PUCHAR CngInput(const std::uint8_t* bytes) {
    return const_cast<PUCHAR>(bytes);
}

}  // namespace tessaline
