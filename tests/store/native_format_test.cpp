#include "store/native_format.h"

#include <array>
#include <map>

#include "tests/support/distinct_estimate.h"

using namespace tessaline;

namespace {

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

TEST_CASE("A payload cut at any length is refused, and a change of any byte is not overlooked") {
    Bytes full = TestData(L"payload-full.bin");
    std::map<std::wstring, int> cut;
    std::map<std::wstring, int> changed;
    for (std::size_t at = 0; at < full.size(); ++at) {
        // A copy of that very size, so that a look past the end is one outside the memory.
        ++cut[Verdict(Bytes(full.data(), full.data() + at))];
        full[at] ^= 0xFF;
        ++changed[Verdict(full)];
        full[at] ^= 0xFF;
    }
    using Text = const std::wstring&;
    CheckRules(L"native_format.txt",
               {{L"cut", [&cut](Text verdict) { return cut[verdict]; }},
                {L"changed", [&](Text verdict) { return changed[verdict]; }}});
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
    CHECK(Verdict(WriteNativeEstimate(estimate)) == L"Invalid separately scheduled item count.");
    estimate.Lines.resize(1001);
    CHECK(Verdict(WriteNativeEstimate(estimate)) == L"Invalid service-line count.");
}

TEST_CASE("A text of sixteen mebibytes is read, a longer one is damage") {
    constexpr wchar_t kDamaged[] = L"The estimate file is incomplete or damaged.";
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
