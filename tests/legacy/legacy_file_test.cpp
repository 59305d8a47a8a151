#include "legacy/legacy_file.h"

#include <regex>

#include "legacy/legacy_key.h"
#include "legacy/legacy_mapping.h"
#include "tests/support/record_values.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

namespace {

constexpr wchar_t kNotDecrypted[] = L"Could not decrypt the legacy estimate.";

std::wstring Hex(ByteView bytes) {
    std::wostringstream text;
    for (const int byte : bytes) text << std::hex << byte / 16 << byte % 16;
    return text.str();
}

// A user's folders with the key file that the files in tests/data are encrypted under.
struct OldFolder {
    OldFolder() { UseKey(TestData(L"legacy-data.key")); }

    void UseKey(ByteView key) const { REQUIRE(store.Put(L"..\\data.key", key)); }

    // What reading says: "read" and the identifier, the text for the user, or "nothing".
    std::wstring Read(ByteView file) {
        std::wstring error = L"nothing";
        estimate = {};
        const bool isRead = ReadLegacyEstimate(file, store, estimate, error);
        return isRead && error == L"nothing" ? L"read " + estimate.EstimateId : error;
    }

    TemporaryStore store;
    Estimate estimate;
};

Estimate mapped;

// The identifier of the estimate that a document is, or what is left of a default record.
std::wstring Map(std::wstring_view json) {
    JsonCursor cursor{json};
    JsonValue root;
    mapped = {};
    if (!ParseValue(cursor, root)) return L"unread";
    if (MapLegacyEstimate(root, mapped)) return mapped.EstimateId;
    return mapped == Estimate() ? L"untouched" : L"no estimate";
}

// The values of a record that are not empty, 0 or false, where a JSON value stands in place of
// fields of every type, and as the second line.
std::wstring ValueEverywhere(Cell json) {
    static const std::wstring document =
        LR"({"EstimateId":@,"RevisionNumber":@,"CreatedOn":@,"NotYetScheduled":@,"Patient":@,)"
        LR"("Provider":{"State":@},"Lines":[{"ServiceCodeType":@,"Quantity":@,)"
        LR"("ExpectedCharge":@},@],"SeparateItems":@})";
    Map(std::regex_replace(document, std::wregex(L"@"), json));
    std::wstring told;
    ForEachValue(mapped, [&told](Cell path, const auto& value) {
        if (value == std::remove_cvref_t<decltype(value)>()) return;
        told += (told.empty() ? L"" : L"; ") + path + L": " + Told(value);
    });
    return told;
}

bool IsOneFolder(Cell one, Cell two) {
    return DeriveLegacyKey(L"ann", one) == DeriveLegacyKey(L"ann", two);
}

}  // namespace

TEST_CASE("Keys, times, values and documents are read as the older edition had them") {
    CheckRules(L"legacy.txt",
               {{L"key", [](Cell user, Cell path) { return Hex(DeriveLegacyKey(user, path)); }},
                {L"one folder", IsOneFolder},
                {L"time", ParseLegacyTime},
                {L"value", ValueEverywhere},
                {L"document", Map}});
}

TEST_CASE("A key file counts when it holds exactly 32 bytes") {
    const OldFolder folder;
    const SecretBytes derived = DeriveLegacyKey(_wgetenv(L"USERNAME"), folder.store.BaseFolder);
    for (const std::size_t length : {0U, 31U, 32U, 33U}) {
        const SecretBytes file(length, 0x5A);
        folder.UseKey(file);
        CHECK(GetLegacyKey(folder.store) == (length == 32 ? file : derived));
    }
}

TEST_CASE("A file of the older edition gives its record, under its own key alone") {
    OldFolder folder;
    const Bytes file = TestData(L"legacy-estimate.gfe");
    CHECK(folder.Read(file) == L"read GFE-20240229-235959");
    CHECK(Differences(folder.estimate, RecordOf({L"full", L"legacy"})) == L"");
    CHECK(folder.Read(TestData(L"legacy-unfinished.gfe")) ==
          L"Could not parse the legacy estimate data.");
    CHECK(folder.Read(TestData(L"legacy-unnamed.gfe")) ==
          L"The legacy file does not contain a valid Good Faith Estimate.");
    folder.UseKey(Bytes(32, 1));
    CHECK(folder.Read(file) == kNotDecrypted);
}

TEST_CASE("A file that ends early, or in which any byte is another, is refused") {
    OldFolder folder;
    Bytes file = TestData(L"legacy-estimate.gfe");
    for (std::size_t at = 0; at < file.size(); ++at) {
        CAPTURE(at);
        CHECK(folder.Read(ByteView(file).first(at)) == (at < 32 ? L"nothing" : kNotDecrypted));
        file[at] ^= 0x10;
        CHECK(folder.Read(file) == (at < 4 ? L"nothing" : kNotDecrypted));
        file[at] ^= 0x10;
    }
    // Without a document it is no estimate, but the tag is checked all the same.
    file = TestData(L"legacy-empty.gfe");
    CHECK(folder.Read(file) == L"nothing");
    file[16] ^= 1;
    CHECK(folder.Read(file) == kNotDecrypted);
}
