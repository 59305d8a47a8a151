#include "store/envelope.h"

#include <windows.h>

#include <dpapi.h>

#include "platform/handles.h"
#include "platform/system_error.h"
#include "tests/support/readable.h"

using namespace tessaline;

namespace {

const std::wstring kTag{L"KOVAL-DQX-STRATA-8391\0", 22};

// Opens a file's blob as another program could. Its description, or nothing.
std::wstring Open(Bytes content, std::wstring tag) {
    DATA_BLOB blob{static_cast<DWORD>(content.size() - 4), content.data() + 4};
    DATA_BLOB entropy{static_cast<DWORD>(tag.size() * 2), reinterpret_cast<BYTE*>(tag.data())};
    DATA_BLOB plain{};
    LocalOwner<wchar_t> text;
    if (!CryptUnprotectData(&blob, text.Receive(), &entropy, nullptr, nullptr, 1, &plain)) {
        return {};
    }
    LocalFree(plain.pbData);
    return text.Get();
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
    CHECK(Open(content, kTag) == L"Good Faith Estimate data");
    CHECK(Open(content, kTag.substr(0, 21)).empty());
    CHECK(Open(content, L"").empty());
}

TEST_CASE("What does not begin as an envelope is refused, and damage in the system's words") {
    std::wstring error;
    for (const std::string_view content : {"", "G", "GFN", "GFN1", "GFN2x", "gfn1x", "xGFN1"}) {
        error.clear();
        CHECK(UnprotectEstimateData(Bytes(content.begin(), content.end()), error).empty());
        CHECK(error == L"This is not a native encrypted GFE file.");
    }
    Bytes content = ProtectEstimateData(Bytes(4000, 'p'), error);
    // Within the encrypted data: not every system notices a change of what stands before it.
    content[content.size() / 2] ^= 1;
    CHECK(UnprotectEstimateData(content, error).empty());
    CHECK(Open(content, kTag).empty());
    CHECK(error == L"Could not decrypt this estimate for the current Windows user: " +
                       SystemErrorText(GetLastError()));
}
