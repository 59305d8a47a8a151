#include "legacy/legacy_mapping.h"

#include <limits>

#include "tests/support/distinct_estimate.h"
#include "tests/support/readable.h"

using namespace tessaline;

namespace {

bool Map(std::wstring_view json, Estimate& estimate) {
    JsonCursor cursor{json};
    JsonValue root;
    REQUIRE(ParseValue(cursor, root));
    return MapLegacyEstimate(root, estimate);
}

// One value of each kind, and what it gives to a field of each type.
struct Sample {
    const wchar_t* json;
    const wchar_t* text = L"";
    double number = 0;
    bool flag = false;
};

// clang-format off
constexpr Sample kSamples[] = {
    {L"null"}, {L"true", L"", 0, true}, {L"7.9", L"", 7.9}, {L"\"7\"", L"7"},
    {L"\"true\"", L"true"}, {L"{}"}, {L"[]"},
};
// clang-format on

// `text` with `value` in each place of `mark`.
std::wstring With(std::wstring text, wchar_t mark, const std::wstring& value) {
    std::size_t at = 0;
    while ((at = text.find(mark, at)) != std::wstring::npos) {
        text.replace(at, 1, value);
        at += value.size();
    }
    return text;
}

// An object with a member for every field of every record.
std::wstring EveryField(const Sample& sample) {
    std::wstring members;
    const auto add = [&](const wchar_t* name, const auto&) {
        members += With(LR"("#":)", L'#', name).append(sample.json).append(L",");
    };
    const Estimate estimate;
    ForEachField(estimate, add);
    ForEachField(estimate.Patient, add);
    ForEachField(estimate.Provider, add);
    const ServiceLine line;
    ForEachField(line, add);
    const SeparateItem item;
    ForEachField(item, add);
    return L"{" + members + L"\"\":0}";
}

template <typename Record>
Record Expected(const Sample& sample) {
    Record record;
    ForEachField(record, [&](const wchar_t*, auto& field) {
        using Value = std::remove_reference_t<decltype(field)>;
        if constexpr (std::is_same_v<Value, std::wstring>) field = sample.text;
        if constexpr (std::is_same_v<Value, bool>) field = sample.flag;
        if constexpr (std::is_same_v<Value, double>) field = sample.number;
        if constexpr (std::is_same_v<Value, std::int32_t>) field = int(sample.number);
        if constexpr (std::is_class_v<Value> && requires { field.State; }) {
            field = Expected<Value>({});
        }
    });
    if constexpr (std::is_same_v<Record, PatientInfo>) {
        if (record.ContactPreference.empty()) record.ContactPreference = L"Email";
    }
    return record;
}

}  // namespace

TEST_CASE("A field of the wrong kind is empty, 0 or false, not the field's default") {
    for (const Sample& sample : kSamples) {
        CAPTURE(sample.json);
        const std::wstring all = EveryField(sample);
        Estimate flat;
        CHECK(Map(all, flat) == (sample.text[0] != L'\0'));
        CHECK(Differences(flat, Expected<Estimate>(sample)) == L"");

        Estimate deep;
        const wchar_t* const json =
            LR"({"Patient":#, "Provider":#, "Lines":[#, @], "SeparateItems":[@, #]})";
        CHECK_FALSE(Map(With(With(json, L'#', all), L'@', sample.json), deep));
        Estimate expected = Expected<Estimate>({});
        expected.Patient = Expected<PatientInfo>(sample);
        expected.Provider = Expected<ProviderInfo>(sample);
        expected.Lines = {Expected<ServiceLine>(sample), Expected<ServiceLine>({})};
        expected.SeparateItems = {SeparateItem(), Expected<SeparateItem>(sample)};
        CHECK(Differences(deep, expected) == L"");
    }
}

TEST_CASE("Whole numbers lose their fraction and stop at the ends of 32 bits") {
    constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
    struct Row {
        const wchar_t* json;
        std::int32_t number;
    };
    // clang-format off
    const Row rows[] = {
        {L"2.9", 2}, {L"-2.9", -2}, {L"-0", 0}, {L"2147483647", kLargest},
        {L"2147483648", kLargest}, {L"-2147483649", kSmallest}, {L"1e999", kLargest},
        {L"-1e999", kSmallest}, {L"-e+.E", 0},
    };
    // clang-format on
    for (const Row& row : rows) {
        CAPTURE(row.json);
        Estimate estimate;
        CHECK(Map(With(LR"({"EstimateId":"a","RevisionNumber":#,"Lines":[{"Quantity":#}]})", L'#',
                       row.json),
                  estimate));
        CHECK(estimate.RevisionNumber == row.number);
        CHECK(estimate.Lines.at(0).Quantity == row.number);
    }
}

TEST_CASE("A document counts as an estimate when it is an object with an identifier") {
    struct Row {
        const wchar_t* json;
        bool isEstimate;
    };
    const Row rows[] = {{LR"({"EstimateId":"a"})", true},
                        {LR"({"Other":[{}],"EstimateId":"a","EstimateId":"b"})", true},
                        {LR"({"EstimateId":""})", false},
                        {LR"({"estimateId":"a"})", false},
                        {LR"({})", false}};
    for (const Row& row : rows) {
        CAPTURE(row.json);
        Estimate estimate;
        CHECK(Map(row.json, estimate) == row.isEstimate);
        CHECK(estimate.EstimateId == (row.isEstimate ? L"a" : L""));
        CHECK(estimate.EstimateStatus == L"");
    }
    Estimate untouched;
    CHECK_FALSE(Map(LR"([{"EstimateId":"a"}])", untouched));
    CHECK(untouched == Estimate());
}

TEST_CASE("A time is read as UTC, up to the second") {
    struct Row {
        std::wstring_view text;
        std::int64_t stamp;
    };
    // clang-format off
    const Row rows[] = {
        {L"2024-02-29T23:59:59.1234567Z", 1709251199}, {L"2024-02-29T23:59:59+05:00", 1709251199},
        {L"2024-02-29", 1709164800}, {L"2024-02-29 23:59:59", 1709164800},
        {L"2024-02-29T", 1709164800}, {L"2024-02-29T01", 1709168400},
        {L"2024-02-29T01:00:", 1709168400}, {L"2024-02-29T1:0:1x", 1709168401},
        {L" +2024- 2- 29T +1: 0: 1", 1709168401}, {L"1970-01-01T00:00:01Z", 1},
        {L"30827-12-31", 910670428800},
    };
    // clang-format on
    for (const Row& row : rows) {
        CAPTURE(row.text);
        CHECK(ParseLegacyTime(row.text) == row.stamp);
    }
}

TEST_CASE("What is no time after the first second of 1970 is not set") {
    // clang-format off
    const std::wstring_view texts[] = {
        L"", L"2024-02", L"2024-02-x", L"2024 -02-29", L"2024/02/29", L"2024--2-29",
        L"2023-02-29", L"2100-02-29", L"2024-00-01", L"2024-13-01", L"2024-01-00", L"2024-04-31",
        L"2024-01-01T24:00:00", L"2024-01-01T23:60:00", L"2024-01-01T23:59:60",
        L"2024-01-01T-1:00:00", L"1970-01-01T00:00:00Z", L"1969-12-31T23:59:59Z",
        L"30828-01-01", L"67560-02-29", L"99999999999-01-01",
    };
    // clang-format on
    for (const std::wstring_view text : texts) {
        CAPTURE(text);
        CHECK(ParseLegacyTime(text) == 0);
    }
}
