#include "legacy/legacy_file.h"

#include "legacy/json.h"
#include "legacy/legacy_cipher.h"
#include "legacy/legacy_mapping.h"
#include "platform/files.h"
#include "platform/utf8.h"

namespace tessaline {
namespace {

// A document in clear, wiped when it ends.
struct WideDocument {
    explicit WideDocument(ByteView utf8) : text(FromUtf8(utf8)) {}
    WideDocument(const WideDocument&) = delete;
    WideDocument& operator=(const WideDocument&) = delete;
    ~WideDocument() { WipeMemory(text.data(), text.size() * sizeof(wchar_t)); }

    std::wstring text;
};

bool ParseDocument(ByteView utf8, JsonValue& root) {
    const WideDocument document(utf8);
    JsonCursor cursor{document.text};
    return ParseValue(cursor, root);
}

}  // namespace

bool OpenLegacyEstimateFile(const std::wstring& path, const LocalStore& store, Estimate& estimate,
                            std::wstring& error) {
    const SecretBytes plaintext = DecryptLegacyFile(ReadFileBytes(path), store, error);
    if (plaintext.empty()) return false;
    JsonValue root;
    if (!ParseDocument(plaintext, root)) {
        error = L"Could not parse the legacy estimate data.";
        return false;
    }
    if (!MapLegacyEstimate(root, estimate)) {
        error = L"The legacy file does not contain a valid Good Faith Estimate.";
        return false;
    }
    return true;
}

}  // namespace tessaline
