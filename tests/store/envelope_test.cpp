#include "store/envelope.h"

#include <windows.h>

#include <dpapi.h>

#include "platform/handles.h"
#include "platform/system_error.h"
#include "tests/support/readable.h"

using namespace tessaline;

namespace {

// Opens a file's blob as another program could. Its description, or nothing.
std::wstring Open(Bytes content, std::wstring tag) {
    DATA_BLOB blob{static_cast<DWORD>(content.size() - 4), content.data() + 4};
    DATA_BLOB entropy{static_cast<DWORD>(tag.size() * 2), reinterpret_cast<BYTE*>(tag.data())};
    DATA_BLOB plain{};
    LocalOwner<wchar_t> text;
    CryptUnprotectData(&blob, text.Receive(), &entropy, nullptr, nullptr, 1, &plain);
    LocalFree(plain.pbData);
    return text ? text.Get() : L"";
}

}  // namespace

TEST_CASE("A payload comes back from its envelope, which opens with the program's tag alone") {
    const std::wstring tag(L"KOVAL-DQX-STRATA-8391\0", 22);
    const SecretBytes payload(1000, 'p');
    std::wstring error;
    Bytes content = ProtectEstimateData(payload, error);
    CHECK(UnprotectEstimateData(content, error) == payload);
    CHECK(error == L"");
    CHECK(Open(content, tag.substr(0, 21)) == L"");
    CHECK(Open(content, tag) == L"Good Faith Estimate data");
    // Within the encrypted data: not every system notices a change of what stands before it.
    content[content.size() / 2] ^= 1;
    CHECK(UnprotectEstimateData(content, error).empty());
    CHECK(Open(content, tag) == L"");
    CHECK(error == L"Could not decrypt this estimate for the current Windows user: " +
                       SystemErrorText(GetLastError()));
    content[3] = '2';
    CHECK(UnprotectEstimateData(content, error).empty());
    CHECK(error == L"This is not a native encrypted GFE file.");
}
