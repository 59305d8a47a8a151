#include "model/estimate.h"

#include <cstdint>

#include "model/dates.h"
#include "model/new_estimate.h"
#include "tests/support/readable.h"

using namespace tessaline;

TEST_CASE("A new line is one CPT code without a charge") {
    CHECK((ServiceLine() == ServiceLine{L"", L"", L"", L"CPT", L"", 1, 0.0}));
}

TEST_CASE("The total is the sum of quantity times charge, unrounded") {
    Estimate estimate;
    CHECK(TotalExpectedCharge(estimate) == 0.0);
    estimate.Lines = {{L"", L"", L"", L"", L"", 2, 10.25}, {L"", L"", L"", L"", L"", 3, 0.5}};
    CHECK(TotalExpectedCharge(estimate) == 22.0);
    estimate.Lines[1] = {L"", L"", L"", L"", L"", -1, 5.001};
    CHECK(TotalExpectedCharge(estimate) == 20.5 - 5.001);
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
