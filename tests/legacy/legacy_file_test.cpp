#include "legacy/legacy_file.h"

#include "legacy/legacy_cipher.h"
#include "tests/support/distinct_estimate.h"
#include "tests/support/legacy_writer.h"
#include "tests/support/readable.h"
#include "tests/support/test_data.h"

using namespace tessaline;

namespace {

// A user's folders with the key file that the files in tests/data are encrypted under.
struct OldFolder {
    OldFolder() { UseKey(TestData(L"legacy-data.key")); }

    void UseKey(ByteView key) const {
        REQUIRE(WriteFileBytes(store->BaseFolder + L"\\data.key", key));
    }

    // What opening says: "opened", the text for the user, or "nothing" where there is none.
    std::wstring Open(const std::wstring& name) {
        std::wstring error = L"nothing";
        estimate = {};
        const bool opened = OpenLegacyEstimateFile(store.Path(name), store, estimate, error);
        return opened && error == L"nothing" ? L"opened" : error;
    }

    std::wstring OpenBytes(ByteView file) {
        REQUIRE(store.Put(L"a.gfe", file));
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

constexpr wchar_t kNotDecrypted[] = L"Could not decrypt the legacy estimate.";
constexpr wchar_t kNotParsed[] = L"Could not parse the legacy estimate data.";
constexpr wchar_t kNoEstimate[] = L"The legacy file does not contain a valid Good Faith Estimate.";

template <typename Record>
void NumberTexts(Record& record, const std::wstring& prefix, const std::wstring& suffix) {
    int number = 0;
    ForEachField(record, [&](const wchar_t* name, std::wstring& text) {
        text = prefix + std::to_wstring(number++) + L" " + name + suffix;
    });
}

// The record in tests/data/legacy-estimate.gfe.
Estimate RecordInTestData() {
    Estimate estimate;
    estimate.EstimateId = estimate.RootEstimateId = L"GFE-20240229-235959";
    estimate.CreatedOn = 1709251199;
    estimate.LastModifiedOn = 1709280001;
    estimate.EstimateStatus = kStatusRevised;
    estimate.CoverageStatus = L"Self-pay (insured but not using insurance)";
    estimate.TriggerReason = L"Patient requested estimate";
    estimate.DeliveryMethod = L"Paper / In person";
    NumberTexts(estimate.Patient, L"p", L" \u00e9");
    estimate.Patient.ContactPreference = L"Mail";
    NumberTexts(estimate.Provider, L"v", L" \u00df");
    estimate.PrimaryService = L"R\u00e9fection \u2014 knee \xd83e\xddb5 repair";
    estimate.PrimaryDiagnosis = L"Tear of meniscus";
    estimate.PrimaryDiagnosisCode = L"S83.2";
    estimate.SecondaryDiagnosis = L"\u00d3st";
    estimate.SecondaryDiagnosisCode = L"M17";
    estimate.NotYetScheduled = true;
    estimate.ScheduledDates = L"04/01/2026; 04/08/2026";
    estimate.Lines = {{L"Arthroscopy", L"12 Oak St", L"S83.2", L"CPT", L"29881", 2, 1234.5},
                      {L"", L"", L"", L"Odd", L"", -1, 0.1}};
    estimate.SeparateItems = {{L"Physical therapy", L"Ask the clinic."}, {}};
    estimate.ProviderNotes = L"line one\r\nline two \xdbff\xdfff";
    return estimate;
}

}  // namespace

TEST_CASE("A file of the older edition gives its record and stays as it is") {
    OldFolder folder;
    const Bytes file = TestData(L"legacy-estimate.gfe");
    CHECK(folder.OpenBytes(file) == L"opened");
    CHECK(Differences(folder.estimate, RecordInTestData()) == L"");
    CHECK(ReadFileBytes(folder.store.Path(L"a.gfe")) == file);
}

TEST_CASE("A file that ends early is refused, wherever it ends") {
    const OldFolder folder;
    const Bytes file = TestData(L"legacy-estimate.gfe");
    for (std::size_t size = 0; size < file.size(); ++size) {
        CAPTURE(size);
        CHECK(folder.Decrypt(ByteView(file).first(size)) ==
              (size < 32 ? L"nothing" : kNotDecrypted));
    }
}

TEST_CASE("A file with one byte changed is refused, whichever it is") {
    const OldFolder folder;
    Bytes file = TestData(L"legacy-estimate.gfe");
    for (std::size_t at = 0; at < file.size(); ++at) {
        CAPTURE(at);
        file[at] ^= 0x10;
        CHECK(folder.Decrypt(file) == (at < 4 ? L"nothing" : kNotDecrypted));
        file[at] ^= 0x10;
    }
    CHECK(folder.Decrypt(file) == L"decrypted");
}

TEST_CASE("A file without a document is no estimate, but its tag is checked all the same") {
    OldFolder folder;
    Bytes file = TestData(L"legacy-empty.gfe");
    CHECK(folder.OpenBytes(file) == L"nothing");
    file[16] ^= 1;
    CHECK(folder.OpenBytes(file) == kNotDecrypted);
}

TEST_CASE("A file under another key is refused") {
    OldFolder folder;
    REQUIRE(folder.store.Put(L"a.gfe", TestData(L"legacy-estimate.gfe")));
    folder.UseKey(Bytes(32, 1));
    CHECK(folder.Open(L"a.gfe") == kNotDecrypted);
    folder.UseKey({});
    CHECK(folder.Open(L"a.gfe") == kNotDecrypted);
}

TEST_CASE("Without a key file the derived key opens the file, every field in its place") {
    OldFolder folder;
    folder.UseKey({});
    const Estimate saved = DistinctEstimate();
    REQUIRE(PutLegacyFile(folder.store, L"a.gfe", LegacyDocument(saved)));
    CHECK(folder.Open(L"a.gfe") == L"opened");
    CHECK(Differences(folder.estimate, saved) == L"ReservedFlag ");
}

TEST_CASE("Each way in which a file can be wrong has its text") {
    struct Row {
        std::wstring_view document;
        const wchar_t* outcome;
    };
    const Row rows[] = {
        {LR"({"EstimateId":"\ud83e"})", L"opened"},
        {LR"( {"EstimateId":"a"} and more)", L"opened"},
        {LR"({"EstimateId":"a")", kNotParsed},
        {L" ", kNotParsed},
        {LR"([{"EstimateId":"a"}])", kNoEstimate},
        {LR"({"EstimateId":""})", kNoEstimate},
        {L"null", kNoEstimate},
    };
    OldFolder folder;
    for (const Row& row : rows) {
        CAPTURE(row.document);
        REQUIRE(PutLegacyFile(folder.store, L"a.gfe", row.document));
        CHECK(folder.Open(L"a.gfe") == row.outcome);
    }
    REQUIRE(PutLegacyFile(folder.store, L"a.gfe", std::wstring(524'288, L'[')));
    CHECK(folder.Open(L"a.gfe") == kNotParsed);
    CHECK(folder.Open(L"missing.gfe") == L"nothing");
}
