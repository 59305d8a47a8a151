#include "store/revision.h"

#include <limits>

#include "model/dates.h"
#include "tests/support/distinct_estimate.h"
#include "tests/support/readable.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

namespace {

struct Member {
    const wchar_t *id, *root;
    std::int32_t number;
};

Estimate Of(const Member& member) {
    Estimate estimate = DistinctEstimate();
    estimate.EstimateId = member.id;
    estimate.RootEstimateId = member.root;
    estimate.RevisionNumber = member.number;
    return estimate;
}

}  // namespace

TEST_CASE("A revision is numbered above every saved member of its family") {
    struct Row {
        Member revised;
        std::vector<Member> saved;
        const wchar_t *id, *root;
        std::int32_t number;
    };
    constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
    const Row rows[] = {
        {{L"G", L"G", 0}, {}, L"G-R1", L"G", 1},
        {{L"G", L"", 0}, {{L"G", L"G", 0}}, L"G-R1", L"G", 1},
        {{L"G-R1", L"G", 1}, {{L"G-R3", L"G", 3}, {L"G-R2", L"G", 2}}, L"G-R4", L"G", 4},
        {{L"G-R9", L"G", 9}, {{L"G-R3", L"G", 3}}, L"G-R10", L"G", 10},
        {{L"G", L"G", 0}, {{L"G", L"", 5}}, L"G-R6", L"G", 6},
        {{L"G", L"", 0}, {{L"x", L"G", 5}}, L"G-R6", L"G", 6},
        {{L"G-R1", L"G", 1}, {{L"x", L"G-R1", 7}, {L"y", L"g", 8}}, L"G-R2", L"G", 2},
        {{L"", L"", 0}, {{L"x", L"", 4}}, L"-R5", L"", 5},
        {{L"G", L"G", -7}, {}, L"G-R-6", L"G", -6},
        {{L"G", L"G", kLargest}, {}, L"G-R-2147483648", L"G", -kLargest - 1},
    };
    for (const Row& row : rows) {
        const TemporaryStore store;
        for (const Member& member : row.saved) {
            store.PutEstimate(member.id + std::wstring(L".gfe"), Of(member));
        }
        const Estimate revision = MakeRevision(store, Of(row.revised));
        CHECK(revision.EstimateId == row.id);
        CHECK(revision.RootEstimateId == row.root);
        CHECK(revision.ParentEstimateId == row.revised.id);
        CHECK(revision.RevisionNumber == row.number);
    }
}

TEST_CASE("A revision is a fresh draft with everything else kept, and is not saved") {
    const TemporaryStore store;
    const Estimate issued = DistinctEstimate();
    const std::int64_t before = NowSeconds();
    const Estimate revision = MakeRevision(store, issued);
    CHECK(Differences(revision, issued) ==
          L"EstimateId ParentEstimateId RevisionNumber CreatedOn LastModifiedOn IssuedOn "
          L"CancelledOn EstimateStatus ReservedFlag ");
    CHECK(revision.CreatedOn >= before);
    CHECK(revision.LastModifiedOn == revision.CreatedOn);
    CHECK(revision.IssuedOn == 0);
    CHECK(revision.CancelledOn == 0);
    CHECK(revision.EstimateStatus == L"Draft");
    CHECK_FALSE(revision.ReservedFlag);
    CHECK(std::filesystem::is_empty(store->EstimatesFolder));
}
