#include "legacy/legacy_key.h"

#include "legacy/sha256.h"
#include "tests/support/readable.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

namespace {

std::string Hex(ByteView bytes) {
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += "0123456789abcdef"[byte / 16];
        text += "0123456789abcdef"[byte % 16];
    }
    return text;
}

constexpr wchar_t kAnnsFolder[] = L"C:\\Users\\ann\\AppData\\Local\\NORVAK\\Tessaline";

}  // namespace

TEST_CASE("SHA-256 is that of the standard") {
    const Bytes abc{'a', 'b', 'c'};
    CHECK(Hex(Sha256(abc)) == "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    CHECK(Hex(Sha256({})) == "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
}

TEST_CASE("The derived key is the older edition's") {
    CHECK(Hex(DeriveLegacyKey(L"ann", kAnnsFolder)) ==
          "06a6c741db5152a2e5415cb943a0ada873a4839fd9e8fb36cfecadf37a2b03aa");
    CHECK(Hex(DeriveLegacyKey(L"Zo\u00eb",
                              L"C:\\Users\\Zo\u00eb\\AppData\\Local\\NORVAK\\Tessaline")) ==
          "241bf4385d6dd05f135b25febd21adeda11f7ef68b461bb232a599ee4c05c741");
    CHECK(DeriveLegacyKey(L"Ann", kAnnsFolder) != DeriveLegacyKey(L"ann", kAnnsFolder));
}

TEST_CASE("The derived key depends on the folder, not on how its path is spelled") {
    struct Row {
        const wchar_t* folder;
        const wchar_t* normal;
    };
    const Row rows[] = {
        {L"C:/Users\\ann", L"C:\\Users\\ann"},
        {L"C:\\.\\Users\\\\x\\..\\ann", L"C:\\Users\\ann"},
        {L"C:\\..\\..\\ann", L"C:\\ann"},
        {L"C:a\\..\\b", L"C:b"},
        {L"//server/share\\..\\x", L"\\\\server\\x"},
        {L"\\\\server\\..\\..\\x", L"\\\\server\\x"},
        {L"/x/./y", L"\\x\\y"},
        {L".\\NORVAK\\Tessaline", L"NORVAK\\Tessaline"},
        {L"a\\..\\..\\..\\x", L"..\\..\\x"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.folder);
        CHECK(DeriveLegacyKey(L"ann", row.folder) == DeriveLegacyKey(L"ann", row.normal));
    }
    const wchar_t* const different[] = {L"C:\\ann",     L"C:ann",      L"\\ann",
                                        L"ann",         L"\\\\ann",    L"..\\ann",
                                        L"..\\..\\ann", L"\\ann\\ann", L"\\\\ann\\ann"};
    for (const wchar_t* left : different) {
        for (const wchar_t* right : different) {
            CAPTURE(left);
            CAPTURE(right);
            CHECK((DeriveLegacyKey(L"ann", left) == DeriveLegacyKey(L"ann", right)) ==
                  (left == right));
        }
    }
}

TEST_CASE("A key file counts when it holds exactly 32 bytes") {
    std::array<wchar_t, 256> user{};
    DWORD size = static_cast<DWORD>(user.size());
    REQUIRE(GetUserNameW(user.data(), &size));
    const TemporaryStore store;
    const SecretBytes derived = DeriveLegacyKey(user.data(), store->BaseFolder);
    REQUIRE(derived.size() == kLegacyKeySize);
    CHECK(GetLegacyKey(store) == derived);
    for (const std::size_t length : {0U, 31U, 32U, 33U}) {
        CAPTURE(length);
        const Bytes file(length, 0x5A);
        REQUIRE(WriteFileBytes(store->BaseFolder + L"\\data.key", file));
        CHECK(GetLegacyKey(store) ==
              (length == 32 ? SecretBytes(file.begin(), file.end()) : derived));
    }
}
