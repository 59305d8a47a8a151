#include "model/estimate.h"

#include <cstdint>
#include <string>
#include <type_traits>

#include "model/dates.h"
#include "model/estimate_fields.h"
#include "model/new_estimate.h"
#include "tests/support/readable.h"

using namespace tessaline;

TEST_CASE("A new record holds five texts and nothing else") {
    std::wstring texts;
    std::int64_t numbers = 0;
    std::size_t elements = 0;
    const auto note = [&](const wchar_t* name, const auto& value) {
        using Value = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, std::wstring>) {
            if (!value.empty()) texts += name + (L"=" + value) + L";";
        } else if constexpr (std::is_arithmetic_v<Value>) {
            numbers |= static_cast<std::int64_t>(value);
        } else if constexpr (requires { value.size(); }) {
            elements += value.size();
        }
    };
    const Estimate estimate;
    ForEachField(estimate, note);
    ForEachField(estimate.Patient, note);
    ForEachField(estimate.Provider, note);
    CHECK(texts ==
          L"EstimateStatus=Draft;CoverageStatus=Uninsured;TriggerReason=Scheduled care;"
          L"DeliveryMethod=Email;ContactPreference=Email;");
    CHECK(numbers == 0);
    CHECK(elements == 0);
    CHECK_FALSE(estimate.ReservedFlag);
}

TEST_CASE("A new line is one CPT code without a charge") {
    const ServiceLine line;
    CHECK(line.ServiceCodeType == L"CPT");
    CHECK(line.Quantity == 1);
    CHECK(line.ExpectedCharge == 0.0);
    CHECK(
        (line.ServiceItem + line.ServiceAddress + line.DiagnosisCode + line.ServiceCode).empty());
}

TEST_CASE("The total is the sum of quantity times charge, unrounded") {
    Estimate estimate;
    CHECK(TotalExpectedCharge(estimate) == 0.0);
    estimate.Lines.resize(2);
    estimate.Lines[0].Quantity = 2;
    estimate.Lines[0].ExpectedCharge = 10.25;
    estimate.Lines[1].Quantity = 3;
    estimate.Lines[1].ExpectedCharge = 0.5;
    CHECK(TotalExpectedCharge(estimate) == 22.0);
    Estimate copy = estimate;
    copy.Lines[1].Quantity = -1;
    copy.Lines[1].ExpectedCharge = 5.001;
    CHECK(TotalExpectedCharge(copy) == 20.5 - 5.001);
    CHECK(TotalExpectedCharge(estimate) == 22.0);
}

TEST_CASE("A code is shown after its type") {
    ServiceLine line;
    CHECK(CodeText(line) == L"CPT");
    line.ServiceCode = L"29881";
    CHECK(CodeText(line) == L"CPT 29881");
}

TEST_CASE("A new estimate has an identifier, which is its root, and was made now") {
    const std::int64_t before = NowSeconds();
    const Estimate estimate = NewEstimate();
    CHECK(estimate.EstimateId.size() == 19);
    CHECK(estimate.RootEstimateId == estimate.EstimateId);
    CHECK(estimate.ParentEstimateId.empty());
    CHECK(estimate.CreatedOn >= before);
    CHECK(estimate.CreatedOn <= NowSeconds());
    CHECK(estimate.LastModifiedOn == estimate.CreatedOn);
    CHECK(estimate.IssuedOn == 0);
}
