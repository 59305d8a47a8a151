#include "legacy/legacy_file.h"

#include <windows.h>

#include "legacy/document_memory.h"
#include "legacy/json.h"
#include "legacy/legacy_cipher.h"
#include "legacy/legacy_mapping.h"

namespace tessaline {
namespace {

// The text of a document, ill-formed UTF-8 replaced by U+FFFD, in memory that will be wiped.
std::wstring_view WideText(ByteView utf8, DocumentMemory& memory) {
    // No byte becomes more than one code unit.
    auto* text = static_cast<wchar_t*>(
        memory.Get()->allocate(utf8.size() * sizeof(wchar_t), alignof(wchar_t)));
    const int size = static_cast<int>(utf8.size());
    const int length = MultiByteToWideChar(CP_UTF8, 0, reinterpret_cast<const char*>(utf8.data()),
                                           size, text, size);
    return {text, static_cast<std::size_t>(length)};
}

}  // namespace

bool ReadLegacyEstimate(ByteView content, const LocalStore& store, Estimate& estimate,
                        std::wstring& error) {
    const SecretBytes plaintext = DecryptLegacyFile(content, store, error);
    if (plaintext.empty()) return false;
    DocumentMemory memory;
    JsonValue root;
    JsonCursor cursor{WideText(plaintext, memory)};
    if (!ParseValue(cursor, root, memory.Get())) {
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
