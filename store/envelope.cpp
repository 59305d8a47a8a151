#include "store/envelope.h"

#include <windows.h>

#include <dpapi.h>

#include <algorithm>

#include "platform/system_error.h"

namespace tessaline {
namespace {

// Stored in the blob, in clear.
constexpr wchar_t kDescription[] = L"Good Faith Estimate data";

// Keeps other programs of the same user from opening a blob without knowing where it comes from.
// The terminating zero belongs to it. Changing it makes every saved file unreadable.
constexpr wchar_t kTag[] = L"KOVAL-DQX-STRATA-8391";
static_assert(sizeof(kTag) == 44);

// Windows takes its inputs through pointers to non-const, and only reads them.
DATA_BLOB BlobOf(const void* data, std::size_t size) {
    return {static_cast<DWORD>(size), static_cast<BYTE*>(const_cast<void*>(data))};
}

// A blob that Windows allocated; it may hold a patient's data in clear.
struct OutputBlob : DATA_BLOB {
    OutputBlob() : DATA_BLOB{} {}
    OutputBlob(const OutputBlob&) = delete;
    OutputBlob& operator=(const OutputBlob&) = delete;
    ~OutputBlob() {
        WipeMemory(pbData, cbData);
        LocalFree(pbData);
    }
    [[nodiscard]] ByteView View() const { return {pbData, cbData}; }
};

}  // namespace

Bytes ProtectEstimateData(ByteView payload, std::wstring& error) {
    DATA_BLOB input = BlobOf(payload.data(), payload.size());
    DATA_BLOB entropy = BlobOf(kTag, sizeof(kTag));
    OutputBlob blob;
    if (!CryptProtectData(&input, kDescription, &entropy, nullptr, nullptr,
                          CRYPTPROTECT_UI_FORBIDDEN, &blob)) {
        const DWORD code = GetLastError();
        error = L"Could not protect local estimate data: " + SystemErrorText(code);
        return {};
    }
    Bytes content(kNativeMarker.begin(), kNativeMarker.end());
    content.insert(content.end(), blob.View().begin(), blob.View().end());
    return content;
}

SecretBytes UnprotectEstimateData(ByteView content, std::wstring& error) {
    if (content.size() <= kNativeMarker.size() || !BeginsWith(content, kNativeMarker)) {
        error = L"This is not a native encrypted GFE file.";
        return {};
    }
    const ByteView blob = content.subspan(kNativeMarker.size());
    DATA_BLOB input = BlobOf(blob.data(), blob.size());
    DATA_BLOB entropy = BlobOf(kTag, sizeof(kTag));
    OutputBlob plain;
    if (!CryptUnprotectData(&input, nullptr, &entropy, nullptr, nullptr, CRYPTPROTECT_UI_FORBIDDEN,
                            &plain)) {
        const DWORD code = GetLastError();
        error = L"Could not decrypt this estimate for the current Windows user: " +
                SystemErrorText(code);
        return {};
    }
    return {plain.View().begin(), plain.View().end()};
}

}  // namespace tessaline
