// Files of the older edition, as it wrote them.
#pragma once

#include <string>
#include <string_view>

#include "legacy/cng.h"
#include "legacy/legacy_key.h"
#include "platform/utf8.h"
#include "tests/support/temporary_store.h"

namespace tessaline {

/// A document, encrypted under a key of 32 bytes. Empty when Windows' cryptography fails.
[[nodiscard]] inline Bytes LegacyFile(std::wstring_view document, ByteView key) {
    SecretBytes plaintext;
    AppendUtf8(plaintext, document);
    const AlgorithmOwner aes = OpenAlgorithm(BCRYPT_AES_ALGORITHM);
    wchar_t gcm[] = BCRYPT_CHAIN_MODE_GCM;
    auto* const mode = reinterpret_cast<PUCHAR>(gcm);
    BCryptSetProperty(aes.Get(), BCRYPT_CHAINING_MODE, mode, sizeof gcm, 0);
    SecretBytes object(SizeProperty(aes.Get(), BCRYPT_OBJECT_LENGTH));
    KeyOwner cipher;
    BCryptGenerateSymmetricKey(aes.Get(), cipher.Receive(), object.data(), ULONG(object.size()),
                               CngInput(key.data()), ULONG(key.size()), 0);
    Bytes file(32 + plaintext.size());
    const std::string_view start = "GFE2nonce-nonce.";
    std::copy(start.begin(), start.end(), file.begin());
    BCRYPT_AUTHENTICATED_CIPHER_MODE_INFO parts;
    BCRYPT_INIT_AUTH_MODE_INFO(parts);
    parts.pbNonce = file.data() + 4;
    parts.cbNonce = 12;
    parts.pbTag = file.data() + 16;
    parts.cbTag = 16;
    const ULONG size = ULONG(plaintext.size());
    ULONG written = 0;
    const NTSTATUS done = BCryptEncrypt(cipher.Get(), plaintext.data(), size, &parts, nullptr, 0,
                                        file.data() + 32, size, &written, 0);
    return BCRYPT_SUCCESS(done) ? file : Bytes();
}

/// Writes a file of the older edition, under the store's own key, into the estimates folder.
inline bool PutLegacyFile(const TemporaryStore& store, const std::wstring& name,
                          std::wstring_view document) {
    return store.Put(name, LegacyFile(document, GetLegacyKey(store)));
}

}  // namespace tessaline
