#include "legacy/legacy_cipher.h"

#include <algorithm>

#include "legacy/cng.h"
#include "legacy/legacy_key.h"

namespace tessaline {
namespace {

constexpr std::size_t kNonceSize = 12;
constexpr std::size_t kTagSize = 16;

// The key and what it needs; they end in the reverse of this order.
struct AesKey {
    SecretBytes object;  ///< where CNG keeps the expanded key
    AlgorithmOwner algorithm;
    KeyOwner key;
};

// Without a key on failure.
AesKey MakeAesKey(const SecretBytes& bytes) {
    AesKey aes;
    aes.algorithm = OpenAlgorithm(BCRYPT_AES_ALGORITHM);
    if (!aes.algorithm) return aes;
    const NTSTATUS chained =
        BCryptSetProperty(aes.algorithm.Get(), BCRYPT_CHAINING_MODE,
                          CngInput(reinterpret_cast<const std::uint8_t*>(BCRYPT_CHAIN_MODE_GCM)),
                          sizeof BCRYPT_CHAIN_MODE_GCM, 0);
    if (!BCRYPT_SUCCESS(chained)) return aes;
    aes.object.resize(SizeProperty(aes.algorithm.Get(), BCRYPT_OBJECT_LENGTH));
    const NTSTATUS made =
        BCryptGenerateSymmetricKey(aes.algorithm.Get(), aes.key.Receive(), aes.object.data(),
                                   static_cast<ULONG>(aes.object.size()), CngInput(bytes.data()),
                                   static_cast<ULONG>(bytes.size()), 0);
    if (!BCRYPT_SUCCESS(made)) aes.key.Reset();
    return aes;
}

// Decrypts into `plaintext` what follows the tag, and checks the tag over it.
bool Decrypt(const AesKey& aes, ByteView nonce, ByteView tag, ByteView ciphertext,
             SecretBytes& plaintext) {
    BCRYPT_AUTHENTICATED_CIPHER_MODE_INFO mode;
    BCRYPT_INIT_AUTH_MODE_INFO(mode);
    mode.pbNonce = CngInput(nonce.data());
    mode.cbNonce = static_cast<ULONG>(nonce.size());
    mode.pbTag = CngInput(tag.data());
    mode.cbTag = static_cast<ULONG>(tag.size());
    // Without an output buffer CNG only tells the size and checks no tag, so there is one even
    // for an empty document.
    plaintext.resize(std::max<std::size_t>(ciphertext.size(), 1));
    ULONG written = 0;
    const NTSTATUS decrypted = BCryptDecrypt(
        aes.key.Get(), CngInput(ciphertext.data()), static_cast<ULONG>(ciphertext.size()), &mode,
        nullptr, 0, plaintext.data(), static_cast<ULONG>(ciphertext.size()), &written, 0);
    if (!BCRYPT_SUCCESS(decrypted)) return false;
    plaintext.resize(written);
    return true;
}

}  // namespace

SecretBytes DecryptLegacyFile(ByteView file, const LocalStore& store, std::wstring& error) {
    constexpr std::size_t kDocumentStart = kLegacyMarker.size() + kNonceSize + kTagSize;
    if (file.size() < kDocumentStart || !BeginsWith(file, kLegacyMarker)) return {};
    const SecretBytes key = GetLegacyKey(store);
    if (key.size() != kLegacyKeySize) {
        error = L"Legacy encryption key is unavailable.";
        return {};
    }
    const AesKey aes = MakeAesKey(key);
    if (!aes.key) return {};
    SecretBytes plaintext;
    if (Decrypt(aes, file.subspan(kLegacyMarker.size(), kNonceSize),
                file.subspan(kLegacyMarker.size() + kNonceSize, kTagSize),
                file.subspan(kDocumentStart), plaintext)) {
        return plaintext;
    }
    error = L"Could not decrypt the legacy estimate.";
    return {};
}

}  // namespace tessaline
