// Files of the older edition, as it wrote them.
#pragma once

#include <ctime>
#include <string>
#include <string_view>
#include <type_traits>

#include "legacy/cng.h"
#include "legacy/legacy_key.h"
#include "model/estimate_fields.h"
#include "platform/utf8.h"
#include "tests/support/temporary_store.h"

namespace tessaline {

namespace legacy_writer {

inline std::wstring Json(const std::wstring& text) {
    std::wstring json = L"\"";
    for (const wchar_t c : text) {
        if (c == L'"' || c == L'\\') json += L'\\';
        json += c;
    }
    return json + L"\"";
}

inline std::wstring Json(std::int64_t stamp) {
    if (stamp <= 0) return L"null";
    std::tm time{};
    _gmtime64_s(&time, &stamp);
    wchar_t text[64];
    return {text, std::wcsftime(text, 64, L"\"%Y-%m-%dT%H:%M:%S.1234567Z\"", &time)};
}

template <typename Value>
std::wstring Json(const Value& value) {
    std::wstring json;
    if constexpr (std::is_same_v<Value, bool>) {
        return value ? L"true" : L"false";
    } else if constexpr (std::is_arithmetic_v<Value>) {
        return std::to_wstring(value);
    } else if constexpr (requires { value.size(); }) {
        for (const auto& element : value) json += (json.empty() ? L"" : L", ") + Json(element);
        return L"[" + json + L"]";
    } else {
        ForEachField(value, [&json](const std::wstring& name, const auto& field) {
            json += (json.empty() ? L"" : L", ") + Json(name) + L": " + Json(field);
        });
        return L"{" + json + L"}";
    }
}

}  // namespace legacy_writer

/// The document of a record. `ReservedFlag` has no place in it.
[[nodiscard]] inline std::wstring LegacyDocument(const Estimate& estimate) {
    return legacy_writer::Json(estimate);
}

/// A document, encrypted under a key of 32 bytes. Empty when Windows' cryptography fails.
[[nodiscard]] inline Bytes LegacyFile(std::wstring_view document, ByteView key) {
    SecretBytes plaintext;
    AppendUtf8(plaintext, document);
    const AlgorithmOwner aes = OpenAlgorithm(BCRYPT_AES_ALGORITHM);
    wchar_t gcm[] = BCRYPT_CHAIN_MODE_GCM;
    BCryptSetProperty(aes.Get(), BCRYPT_CHAINING_MODE, reinterpret_cast<PUCHAR>(gcm), sizeof gcm,
                      0);
    SecretBytes object(SizeProperty(aes.Get(), BCRYPT_OBJECT_LENGTH));
    KeyOwner cipher;
    BCryptGenerateSymmetricKey(aes.Get(), cipher.Receive(), object.data(), ULONG(object.size()),
                               CngInput(key.data()), ULONG(key.size()), 0);
    Bytes file(32 + plaintext.size());
    const std::string_view start = "GFE2nonce-nonce.";
    std::copy(start.begin(), start.end(), file.begin());
    BCRYPT_AUTHENTICATED_CIPHER_MODE_INFO mode;
    BCRYPT_INIT_AUTH_MODE_INFO(mode);
    mode.pbNonce = file.data() + 4;
    mode.cbNonce = 12;
    mode.pbTag = file.data() + 16;
    mode.cbTag = 16;
    const ULONG size = ULONG(plaintext.size());
    ULONG written = 0;
    const NTSTATUS done = BCryptEncrypt(cipher.Get(), plaintext.data(), size, &mode, nullptr, 0,
                                        file.data() + 32, size, &written, 0);
    return BCRYPT_SUCCESS(done) ? file : Bytes();
}

/// Writes a file of the older edition, under the store's own key, into the estimates folder.
inline bool PutLegacyFile(const TemporaryStore& store, const std::wstring& name,
                          std::wstring_view document) {
    return store.Put(name, LegacyFile(document, GetLegacyKey(store)));
}

}  // namespace tessaline
