#include "store/native_format.h"

#include "tests/support/record_values.h"

using namespace tessaline;

namespace {

Estimate read;

// What the reader says of a payload; empty when it takes it.
std::wstring Verdict(ByteView payload) {
    std::wstring error = L"of an earlier file";
    return ReadNativeEstimate(payload, read, error) ? L"" : error;
}

}  // namespace

TEST_CASE("Payloads are those that another program makes of the same records") {
    for (const auto& [name, record] : {std::pair(L"payload-v1-blank.bin", Estimate()),
                                       {L"payload-v1-full.bin", RecordOf({L"full", L"native"})}}) {
        const Bytes payload = TestData(name);
        const SecretBytes written = WriteNativeEstimate(record);
        if (payload[4] == kNewestVersion) CHECK(std::ranges::equal(written, payload));
        read = DistinctEstimate();
        CHECK(Verdict(payload) == L"");
        CHECK(Differences(read, record) == L"");
    }
}

TEST_CASE("A payload cut at any length is refused, and a change of any byte is not overlooked") {
    Bytes full = TestData(L"payload-v1-full.bin");
    std::map<std::wstring, int> cut, changed;
    for (std::size_t at = 0; at < full.size(); ++at) {
        // A copy of that very size, so that a look past the end is one outside the memory.
        ++cut[Verdict(Bytes(full.data(), full.data() + at))];
        full[at] ^= 0xFF;
        ++changed[Verdict(full)];
        full[at] ^= 0xFF;
    }
    CheckRules(L"native_format.txt",
               {{L"cut", [&](Cell verdict) { return cut[verdict]; }},
                {L"changed", [&](Cell verdict) { return changed[verdict]; }}});
}

TEST_CASE("Versions from 1 to the newest are read") {
    SecretBytes payload = WriteNativeEstimate({});
    for (payload[4] = 0; payload[4] < kNewestVersion + 2; ++payload[4]) {
        const bool isKnown = payload[4] >= 1 && payload[4] <= kNewestVersion;
        CHECK(Verdict(payload) == (isKnown ? L"" : L"Unsupported estimate file version."));
    }
}

TEST_CASE("What follows the record is ignored, and any byte but 0 is true") {
    Bytes payload = TestData(L"payload-v1-blank.bin");
    payload.back() = 2;
    payload.push_back(0);
    CHECK(Verdict(payload) == L"");
    CHECK(Differences(read, Estimate()) == L"ReservedFlag ");
}

TEST_CASE("Lists of a thousand are read, longer ones are written all the same") {
    Estimate estimate;
    estimate.Lines.resize(1000);
    estimate.SeparateItems.resize(1000);
    CHECK(Verdict(WriteNativeEstimate(estimate)) == L"");
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
