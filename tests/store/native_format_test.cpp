#include "store/native_format.h"

#include <algorithm>
#include <map>

#include "tests/support/record_values.h"

using namespace tessaline;

namespace {

// What the reader says of a payload; empty when it takes it.
std::wstring Verdict(ByteView payload) {
    Estimate estimate;
    std::wstring error = L"of an earlier file";
    return ReadNativeEstimate(payload, estimate, error) ? L"" : error;
}

}  // namespace

TEST_CASE("Payloads are those that another program makes of the same records") {
    for (const auto& [name, record] : {std::pair(L"payload-v1-blank.bin", Estimate()),
                                       {L"payload-v1-full.bin", RecordOf({L"full", L"native"})}}) {
        const Bytes payload = TestData(name);
        const SecretBytes written = WriteNativeEstimate(record);
        if (payload[4] == kNewestVersion) CHECK(std::ranges::equal(written, payload));
        Estimate read = DistinctEstimate();
        std::wstring error;
        REQUIRE(ReadNativeEstimate(payload, read, error));
        CHECK(Differences(read, record) == L"");
    }
}

TEST_CASE("A payload cut at any length is refused, and a change of any byte is not overlooked") {
    Bytes full = TestData(L"payload-v1-full.bin");
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

TEST_CASE("Versions from 1 to the newest are read") {
    SecretBytes payload = WriteNativeEstimate({});
    for (std::uint32_t version = 0; version < kNewestVersion + 3; ++version) {
        payload[4] = static_cast<std::uint8_t>(version);
        const bool isKnown = version >= 1 && version <= kNewestVersion;
        CHECK(Verdict(payload) == (isKnown ? L"" : L"Unsupported estimate file version."));
    }
}

TEST_CASE("What follows the record is ignored, and any byte but 0 is true") {
    Bytes payload = TestData(L"payload-v1-blank.bin");
    payload.back() = 2;
    payload.push_back(0);
    Estimate estimate;
    std::wstring error;
    REQUIRE(ReadNativeEstimate(payload, estimate, error));
    CHECK(Differences(estimate, Estimate()) == L"ReservedFlag ");
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
    Bytes payload = TestData(L"payload-v1-blank.bin");
    // The first text, whose size stands at 8.
    payload[11] = 1;
    payload.insert(payload.begin() + 12, 0x1000000, 0);
    CHECK(Verdict(payload) == L"");
    payload[8] = 1;
    payload.insert(payload.begin() + 12, 1, 0);
    CHECK(Verdict(payload) == L"The estimate file is incomplete or damaged.");
}
