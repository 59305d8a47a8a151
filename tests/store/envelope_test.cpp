#include "store/envelope.h"

#include <windows.h>

#include <dpapi.h>

#include <string_view>

#include "platform/system_error.h"
#include "tests/support/readable.h"

using namespace tessaline;

namespace {

constexpr std::wstring_view kTag{L"KOVAL-DQX-STRATA-8391\0", 22};
constexpr wchar_t kForeign[] = L"This is not a native encrypted GFE file.";

DATA_BLOB BlobOf(const void* data, std::size_t size) {
    return {static_cast<DWORD>(size), static_cast<BYTE*>(const_cast<void*>(data))};
}

// Opens a file's blob as another program could, and tells its description.
bool Opens(ByteView content, std::wstring_view tag, std::wstring& description) {
    DATA_BLOB blob = BlobOf(content.data() + 4, content.size() - 4);
    DATA_BLOB entropy = BlobOf(tag.data(), tag.size() * sizeof(wchar_t));
    DATA_BLOB plain{};
    wchar_t* text = nullptr;
    if (!CryptUnprotectData(&blob, &text, &entropy, nullptr, nullptr, 1, &plain)) return false;
    description = text;
    LocalFree(text);
    LocalFree(plain.pbData);
    return true;
}

}  // namespace

TEST_CASE("A payload comes back from its envelope, which opens with the program's tag alone") {
    const SecretBytes payload(1000, 'p');
    std::wstring error = L"untouched";
    const Bytes content = ProtectEstimateData(payload, error);
    const std::string text(content.begin(), content.end());
    CHECK(text.starts_with("GFN1"));
    CHECK(text.find("pppp") == std::string::npos);
    CHECK(UnprotectEstimateData(content, error) == payload);
    CHECK(error == L"untouched");
    std::wstring description;
    REQUIRE(Opens(content, kTag, description));
    CHECK(description == L"Good Faith Estimate data");
    CHECK_FALSE(Opens(content, kTag.substr(0, 21), description));
    CHECK_FALSE(Opens(content, L"", description));
}

TEST_CASE("What does not begin as an envelope is refused") {
    for (const std::string_view content : {"", "G", "GFN", "GFN1", "GFN2x", "gfn1x", "xGFN1"}) {
        std::wstring error;
        CHECK(UnprotectEstimateData(Bytes(content.begin(), content.end()), error).empty());
        CHECK(error == kForeign);
    }
}

TEST_CASE("Damage and another tag end in the system's words") {
    std::wstring error;
    const auto refuses = [&error](const Bytes& content) {
        error.clear();
        const bool refused = UnprotectEstimateData(content, error).empty();
        return refused &&
               error.starts_with(
                   L"Could not decrypt this estimate for the current Windows user: ") &&
               !error.ends_with(L' ') && !error.ends_with(L'\n');
    };
    Bytes content = ProtectEstimateData(Bytes(4000, 'p'), error);
    // Within the encrypted data: not every system notices a change of what stands before it.
    for (std::size_t at = content.size() / 4; at < content.size() * 3 / 4; at += 97) {
        content[at] ^= 1;
        CHECK(refuses(content));
        content[at] ^= 1;
    }
    CHECK_FALSE(refuses(content));
    CHECK(refuses(Bytes(content.begin(), content.end() - 1)));
    const Bytes shortest = {'G', 'F', 'N', '1', 0};
    std::wstring description;
    CHECK_FALSE(Opens(shortest, kTag, description));
    const std::wstring systemText = SystemErrorText(GetLastError());
    CHECK(refuses(shortest));
    CHECK(error.ends_with(L": " + systemText));
}
