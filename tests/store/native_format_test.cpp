#include "store/native_format.h"

#include <array>
#include <map>

#include "tests/support/distinct_estimate.h"

using namespace tessaline;

namespace {

constexpr wchar_t kForeign[] = L"The estimate file is not a native GFE file.";
constexpr wchar_t kVersion[] = L"Unsupported estimate file version.";
constexpr wchar_t kLineCount[] = L"Invalid service-line count.";
constexpr wchar_t kItemCount[] = L"Invalid separately scheduled item count.";
constexpr wchar_t kDamaged[] = L"The estimate file is incomplete or damaged.";

// What the reader says of a payload; empty when it takes it.
std::wstring Verdict(ByteView payload) {
    Estimate estimate;
    std::wstring error = L"of an earlier file";
    return ReadNativeEstimate(payload, estimate, error) ? L"" : error;
}

Bytes Plain(const SecretBytes& payload) {
    return {payload.begin(), payload.end()};
}

// The record in tests/data/payload-full.bin.
Estimate FullEstimate() {
    Estimate estimate = RecordOf(L"record.txt", {L"full", L"native"});
    estimate.ReservedFlag = true;
    return estimate;
}

}  // namespace

TEST_CASE("Payloads are those that another program makes of the same records") {
    CHECK(Plain(WriteNativeEstimate(Estimate())) == TestData(L"payload-blank.bin"));
    CHECK(Plain(WriteNativeEstimate(FullEstimate())) == TestData(L"payload-full.bin"));
    for (const wchar_t* name : {L"payload-blank.bin", L"payload-full.bin"}) {
        Estimate estimate = DistinctEstimate();
        std::wstring error;
        REQUIRE(ReadNativeEstimate(TestData(name), estimate, error));
        CHECK(Plain(WriteNativeEstimate(estimate)) == TestData(name));
    }
}

TEST_CASE("Every field comes back") {
    const Estimate written = DistinctEstimate();
    Estimate read;
    std::wstring error;
    REQUIRE(ReadNativeEstimate(WriteNativeEstimate(written), read, error));
    CHECK(Differences(read, written) == L"");
}

TEST_CASE("Unpaired surrogates are written, and ill-formed bytes read, as U+FFFD") {
    Estimate estimate;
    estimate.EstimateId =
        L"a\xD83E"
        L"b\xDDB5";
    SecretBytes payload = WriteNativeEstimate(estimate);
    std::wstring error;
    REQUIRE(ReadNativeEstimate(payload, estimate, error));
    CHECK(estimate.EstimateId == L"a\uFFFDb\uFFFD");
    payload[12] = 0xFF;
    REQUIRE(ReadNativeEstimate(payload, estimate, error));
    CHECK(estimate.EstimateId == L"\uFFFD\uFFFDb\uFFFD");
}

// The verdicts were counted by an independent reader. Counts that are read from where they would
// stand, behind a text that ran past the end, are judged as counts.
TEST_CASE("A payload cut at any length is refused") {
    const Bytes full = TestData(L"payload-full.bin");
    std::map<std::wstring, int> verdicts;
    for (std::size_t size = 0; size < full.size(); ++size) {
        // A copy of that very size, so that a look past the end is one outside the memory.
        ++verdicts[Verdict(Bytes(full.begin(), full.begin() + static_cast<std::ptrdiff_t>(size)))];
    }
    CHECK((verdicts == std::map<std::wstring, int>{
                           {kForeign, 8}, {kDamaged, 901}, {kLineCount, 24}, {kItemCount, 4}}));
    CHECK(Verdict(ByteView(full).first(7)) == kForeign);
    CHECK(Verdict(ByteView(full).first(8)) == kDamaged);
}

TEST_CASE("A change of any byte gives another record or a refusal") {
    Bytes payload = TestData(L"payload-full.bin");
    std::map<std::wstring, int> verdicts;
    for (std::uint8_t& byte : payload) {
        byte ^= 0xFF;
        ++verdicts[Verdict(payload)];
        byte ^= 0xFF;
    }
    CHECK((verdicts == std::map<std::wstring, int>{{L"", 709},
                                                   {kForeign, 4},
                                                   {kVersion, 4},
                                                   {kDamaged, 36},
                                                   {kLineCount, 140},
                                                   {kItemCount, 44}}));
}

TEST_CASE("What follows the record is ignored, and any byte but 0 is true") {
    Bytes payload = TestData(L"payload-full.bin");
    payload.back() = 2;
    payload.insert(payload.end(), 10, 0);
    Estimate estimate;
    std::wstring error;
    REQUIRE(ReadNativeEstimate(payload, estimate, error));
    CHECK(Differences(estimate, FullEstimate()) == L"");
}

TEST_CASE("Lists of a thousand are read, longer ones are written all the same") {
    Estimate estimate = DistinctEstimate();
    estimate.Lines.resize(1000);
    estimate.SeparateItems.resize(1000);
    Estimate read;
    std::wstring error;
    REQUIRE(ReadNativeEstimate(WriteNativeEstimate(estimate), read, error));
    CHECK(read == estimate);
    estimate.SeparateItems.resize(1001);
    CHECK(Verdict(WriteNativeEstimate(estimate)) == kItemCount);
    estimate.Lines.resize(1001);
    CHECK(Verdict(WriteNativeEstimate(estimate)) == kLineCount);
}

TEST_CASE("A text of sixteen mebibytes is read, a longer one is damage") {
    // The default record, with its first text, at 8, replaced.
    const auto withText = [](std::array<std::uint8_t, 4> size, std::size_t bytes) {
        Bytes payload = TestData(L"payload-blank.bin");
        std::copy(size.begin(), size.end(), payload.begin() + 8);
        payload.insert(payload.begin() + 12, bytes, 0);
        return payload;
    };
    CHECK(Verdict(withText({0, 0, 0, 1}, 0x1000000)) == L"");
    CHECK(Verdict(withText({1, 0, 0, 1}, 0x1000001)) == kDamaged);
    CHECK(Verdict(withText({0xFF, 0xFF, 0xFF, 0xFF}, 0)) == kDamaged);
}
