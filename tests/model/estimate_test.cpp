#include "model/estimate.h"

#include "model/validation.h"
#include "tests/support/record_values.h"

using namespace tessaline;

TEST_CASE("The total is the sum of quantity times charge, unrounded") {
    Estimate estimate;
    estimate.Lines = {{L"", L"", L"", L"", L"", 2, 10.25}, {L"", L"", L"", L"", L"", -1, 5.001}};
    CHECK(TotalExpectedCharge(estimate) == 20.5 - 5.001);
}

// With the order of the fields in the native payloads this ties every field's name to its member.
TEST_CASE("Fields are described in the order of the record's members") {
    const auto check = [](const auto& record) {
        const void* previous = nullptr;
        ForEachField(record, [&previous](const wchar_t* name, const auto& value) {
            CAPTURE(name);
            CHECK(previous < static_cast<const void*>(&value));
            previous = &value;
        });
    };
    const Estimate estimate;
    check(estimate);
    check(estimate.Patient);
    check(estimate.Provider);
    check(ServiceLine());
    check(SeparateItem());
}

TEST_CASE("The first rule that an estimate breaks is what the user is told") {
    Estimate estimate;
    const auto set = [&estimate](const std::wstring& path, const std::wstring& text) {
        REQUIRE(SetValue(estimate, path, text));
        return ValidateEstimate(estimate, std::chrono::year{2026} / 3 / 7);
    };
    CheckRules(L"validation.txt", {{L"set", set}});
}
