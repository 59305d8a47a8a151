#include "legacy/legacy_file.h"

#include <regex>

#include "legacy/legacy_key.h"
#include "legacy/legacy_mapping.h"
#include "legacy/sha256.h"
#include "tests/support/record_values.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

namespace {

constexpr wchar_t kNotDecrypted[] = L"Could not decrypt the legacy estimate.";

std::wstring Hex(ByteView bytes) {
    std::wstring text;
    for (const std::uint8_t byte : bytes) {
        text += L"0123456789abcdef"[byte / 16];
        text += L"0123456789abcdef"[byte % 16];
    }
    return text;
}

// A user's folders with the key file that the files in tests/data are encrypted under.
struct OldFolder {
    OldFolder() { UseKey(TestData(L"legacy-data.key")); }

    void UseKey(ByteView key) const {
        REQUIRE(WriteFileBytes(store.BaseFolder + L"\\data.key", key));
    }

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

// The identifier of the estimate that a document is.
std::wstring Map(std::wstring_view json, Estimate& estimate) {
    JsonCursor cursor{json};
    JsonValue root;
    if (!ParseValue(cursor, root)) return L"unread";
    return MapLegacyEstimate(root, estimate) ? estimate.EstimateId : L"no estimate";
}

// What a JSON value gives to fields of every type, in the order of the document.
std::wstring ValueEverywhere(const std::wstring& json) {
    static const std::wstring document =
        LR"({"EstimateId":@,"RevisionNumber":@,"CreatedOn":@,"NotYetScheduled":@,"Patient":@,)"
        LR"("Provider":{"State":@},"Lines":[{"ServiceCodeType":@,"Quantity":@,)"
        LR"("ExpectedCharge":@},@],"SeparateItems":@})";
    Estimate estimate;
    const auto id = Map(std::regex_replace(document, std::wregex(L"@"), json), estimate);
    CHECK(id == (estimate.EstimateId.empty() ? L"no estimate" : estimate.EstimateId));
    REQUIRE(estimate.Lines.size() == 2);
    const ServiceLine& line = estimate.Lines[0];
    std::wostringstream told;
    told << estimate.EstimateId << L'/' << estimate.RevisionNumber << L'/' << estimate.CreatedOn
         << L'/' << Told(estimate.NotYetScheduled) << L'/' << estimate.Patient.ContactPreference
         << L'/' << estimate.Provider.State << L'/' << line.ServiceCodeType << L'/'
         << line.Quantity << L'/' << Told(line.ExpectedCharge) << L'/'
         << estimate.Lines[1].ServiceCodeType << L'/' << estimate.Lines[1].Quantity << L'/'
         << estimate.SeparateItems.size();
    return told.str();
}

}  // namespace

TEST_CASE("Hashes, keys, times, numbers and documents are read as the older edition had them") {
    using Text = const std::wstring&;
    CheckRules(
        L"legacy.txt",
        {{L"Sha256", [](Text text) { return Hex(Sha256(Bytes(text.begin(), text.end()))); }},
         {L"key", [](Text user, Text path) { return Hex(DeriveLegacyKey(user, path)); }},
         {L"one folder",
          [](Text one, Text two) {
              return DeriveLegacyKey(L"ann", one) == DeriveLegacyKey(L"ann", two);
          }},
         {L"time", ParseLegacyTime},
         {L"value", ValueEverywhere},
         {L"document", [](Text json) {
              Estimate estimate;
              return Map(json, estimate);
          }}});
    Estimate untouched;
    CHECK(Map(L"[]", untouched) == L"no estimate");
    CHECK(untouched == Estimate());
}

TEST_CASE("A key file counts when it holds exactly 32 bytes") {
    const TemporaryStore store;
    const SecretBytes derived = DeriveLegacyKey(_wgetenv(L"USERNAME"), store.BaseFolder);
    CHECK(GetLegacyKey(store) == derived);
    for (const std::size_t length : {31U, 32U, 33U}) {
        const SecretBytes file(length, 0x5A);
        REQUIRE(WriteFileBytes(store.BaseFolder + L"\\data.key", file));
        CHECK(GetLegacyKey(store) == (length == 32 ? file : derived));
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
