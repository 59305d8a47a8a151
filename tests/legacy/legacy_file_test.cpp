#include "legacy/legacy_file.h"

#include <array>
#include <regex>

#include "legacy/legacy_cipher.h"
#include "legacy/legacy_mapping.h"
#include "legacy/sha256.h"
#include "tests/support/distinct_estimate.h"
#include "tests/support/legacy_writer.h"

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
        REQUIRE(WriteFileBytes(store->BaseFolder + L"\\data.key", key));
    }

    // What opening says: "opened" and the identifier, the text for the user, or "nothing".
    std::wstring Open(const std::wstring& name) {
        std::wstring error = L"nothing";
        estimate = {};
        const bool opened = OpenLegacyEstimateFile(store.Path(name), store, estimate, error);
        return opened && error == L"nothing" ? L"opened " + estimate.EstimateId : error;
    }

    std::wstring OpenBytes(ByteView file) {
        REQUIRE(store.Put(L"a.gfe", file));
        return Open(L"a.gfe");
    }

    std::wstring OpenDocument(std::wstring_view document) {
        REQUIRE(PutLegacyFile(store, L"a.gfe", document));
        return Open(L"a.gfe");
    }

    // The same for decryption alone, which needs no file.
    std::wstring Decrypt(ByteView file) const {
        std::wstring error = L"nothing";
        return DecryptLegacyFile(file, store, error).empty() ? error : L"decrypted";
    }

    TemporaryStore store;
    Estimate estimate;
};

bool Map(std::wstring_view json, Estimate& estimate) {
    JsonCursor cursor{json};
    JsonValue root;
    REQUIRE(ParseValue(cursor, root));
    return MapLegacyEstimate(root, estimate);
}

std::wstring WholeNumber(const std::wstring& number) {
    Estimate estimate;
    Map(LR"({"RevisionNumber":)" + number + LR"(,"Lines":[{"Quantity":)" + number + L"}]}",
        estimate);
    CHECK(estimate.Lines.at(0).Quantity == estimate.RevisionNumber);
    return Told(estimate.RevisionNumber);
}

// One value of each kind, and what it gives to a field of each type.
struct Sample {
    const wchar_t* json = L"";
    const wchar_t* text = L"";
    double number = 0;
    bool flag = false;
};

// `record` with what `sample` gives to each of its values.
template <typename Record>
Record Given(const Sample& sample, Record record) {
    ForEachValue(L"", record, [&sample](const std::wstring& name, auto& value) {
        using Value = std::remove_reference_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, std::wstring>) {
            value = sample.text;
            if (name == L"ContactPreference" && value.empty()) value = L"Email";
        } else if constexpr (std::is_same_v<Value, bool>) {
            value = sample.flag;
        } else if constexpr (!std::is_same_v<Value, std::int64_t>) {
            value = static_cast<Value>(sample.number);
        }
    });
    return record;
}

}  // namespace

TEST_CASE("Hashes, keys, times, numbers and documents are read as the older edition had them") {
    using Text = const std::wstring&;
    OldFolder folder;
    CheckRules(
        L"legacy.txt",
        {{L"Sha256", [](Text text) { return Hex(Sha256(Bytes(text.begin(), text.end()))); }},
         {L"key", [](Text user, Text path) { return Hex(DeriveLegacyKey(user, path)); }},
         {L"one folder",
          [](Text one, Text two) {
              return DeriveLegacyKey(L"ann", one) == DeriveLegacyKey(L"ann", two);
          }},
         {L"time", ParseLegacyTime},
         {L"whole", WholeNumber},
         {L"document", [&folder](Text json) { return folder.OpenDocument(json); }}});
    // Nests too deeply.
    CHECK(folder.OpenDocument(std::wstring(524'288, L'[')) ==
          L"Could not parse the legacy estimate data.");
    // Without a key file the derived key is that of the file.
    folder.UseKey({});
    const Estimate saved = DistinctEstimate();
    CHECK(folder.OpenDocument(LegacyDocument(saved)) == L"opened " + saved.EstimateId);
    CHECK(Differences(folder.estimate, saved) == L"ReservedFlag ");
}

TEST_CASE("Another folder and another user have another key") {
    std::set<SecretBytes> keys = {DeriveLegacyKey(L"Ann", L"ann")};
    for (const wchar_t* folder : {L"C:\\ann", L"C:ann", L"\\ann", L"ann", L"\\\\ann", L"..\\ann",
                                  L"..\\..\\ann", L"\\ann\\ann", L"\\\\ann\\ann"}) {
        keys.insert(DeriveLegacyKey(L"ann", folder));
    }
    CHECK(keys.size() == 10);
}

TEST_CASE("A key file counts when it holds exactly 32 bytes") {
    std::array<wchar_t, 256> user{};
    DWORD size = static_cast<DWORD>(user.size());
    REQUIRE(GetUserNameW(user.data(), &size));
    const TemporaryStore store;
    const SecretBytes derived = DeriveLegacyKey(user.data(), store->BaseFolder);
    CHECK(GetLegacyKey(store) == derived);
    for (const std::size_t length : {0U, 31U, 32U, 33U}) {
        const SecretBytes file(length, 0x5A);
        REQUIRE(WriteFileBytes(store->BaseFolder + L"\\data.key", file));
        CHECK(GetLegacyKey(store) == (length == 32 ? file : derived));
    }
}

TEST_CASE("A file of the older edition gives its record and stays as it is") {
    OldFolder folder;
    const Bytes file = TestData(L"legacy-estimate.gfe");
    CHECK(folder.OpenBytes(file) == L"opened GFE-20240229-235959");
    CHECK(Differences(folder.estimate, RecordOf(L"record.txt", {L"full", L"legacy"})) == L"");
    CHECK(ReadFileBytes(folder.store.Path(L"a.gfe")) == file);
    folder.UseKey(Bytes(32, 1));
    CHECK(folder.Open(L"a.gfe") == kNotDecrypted);
    CHECK(folder.Open(L"missing.gfe") == L"nothing");
}

TEST_CASE("A file that ends early, or in which any byte is another, is refused") {
    const OldFolder folder;
    Bytes file = TestData(L"legacy-estimate.gfe");
    CHECK(folder.Decrypt(file) == L"decrypted");
    for (std::size_t at = 0; at < file.size(); ++at) {
        CAPTURE(at);
        CHECK(folder.Decrypt(ByteView(file).first(at)) == (at < 32 ? L"nothing" : kNotDecrypted));
        file[at] ^= 0x10;
        CHECK(folder.Decrypt(file) == (at < 4 ? L"nothing" : kNotDecrypted));
        file[at] ^= 0x10;
    }
    // Without a document it is no estimate, but the tag is checked all the same.
    file = TestData(L"legacy-empty.gfe");
    CHECK(folder.Decrypt(file) == L"nothing");
    file[16] ^= 1;
    CHECK(folder.Decrypt(file) == kNotDecrypted);
}

TEST_CASE("A field of the wrong kind is empty, 0 or false, not the field's default") {
    const Sample samples[] = {{L"null"},        {L"true", L"", 0, true}, {L"7.9", L"", 7.9},
                              {L"\"7\"", L"7"}, {L"\"true\"", L"true"},  {L"{}"},
                              {L"[]"}};
    // A member for every value of every record.
    std::wstring members = L"\"\":0}";
    const Estimate everything = DistinctEstimate();
    ForEachValue(L"", everything, [&members](const std::wstring& name, const auto&) {
        members.insert(0, L"\"" + name + L"\":@,");
    });
    const auto map = [&members](const wchar_t* shape, const Sample& sample, Estimate& estimate) {
        const std::wstring json = std::regex_replace(shape, std::wregex(L"#"), members);
        return Map(std::regex_replace(json, std::wregex(L"@"), sample.json), estimate);
    };
    Estimate untouched;
    CHECK_FALSE(Map(L"[]", untouched));
    CHECK(untouched == Estimate());
    for (const Sample& sample : samples) {
        CAPTURE(sample.json);
        const bool isEstimate = sample.text[0] != L'\0';
        Estimate flat;
        CHECK(map(LR"({"Patient":@,"Provider":@,"Lines":@,"SeparateItems":@,#)", sample, flat) ==
              isEstimate);
        Estimate expected = Given(sample, Estimate());
        expected.Patient = Given({}, PatientInfo());
        expected.Provider = {};
        CHECK(Differences(flat, expected) == L"");

        Estimate deep;
        CHECK(map(LR"({"Patient":{#,"Provider":{#,"Lines":[{#,@],"SeparateItems":[@,{#],#)",
                  sample, deep) == isEstimate);
        expected = Given(sample, Estimate());
        expected.Lines = {Given(sample, ServiceLine()), Given({}, ServiceLine())};
        expected.SeparateItems = {SeparateItem(), Given(sample, SeparateItem())};
        CHECK(Differences(deep, expected) == L"");
    }
}
