#include "store/revision.h"

#include "model/dates.h"
#include "model/text.h"
#include "tests/support/record_values.h"
#include "tests/support/temporary_store.h"

using namespace tessaline;

namespace {

// An estimate told as "identifier/root/number".
Estimate Member(Cell told) {
    Estimate estimate = DistinctEstimate();
    std::wistringstream parts(told);
    std::getline(parts, estimate.EstimateId, L'/');
    std::getline(parts, estimate.RootEstimateId, L'/');
    parts >> estimate.RevisionNumber;
    return estimate;
}

std::wstring Revise(Cell revised, Cell saved) {
    const TemporaryStore store;
    std::wistringstream members(saved);
    for (std::wstring member; members >> member;) {
        store.PutEstimate(CleanFileName(member) + L".gfe", Member(member));
    }
    const Estimate revision = MakeRevision(store, Member(revised));
    CHECK(revision.ParentEstimateId == Member(revised).EstimateId);
    return revision.EstimateId + L"/" + revision.RootEstimateId + L"/" +
           Told(revision.RevisionNumber);
}

}  // namespace

TEST_CASE("A revision is numbered above every saved member of its family") {
    CheckRules(L"revision.txt", {{L"revision", Revise}});
}

TEST_CASE("A revision is a fresh draft with everything else kept, and is not saved") {
    const TemporaryStore store;
    const Estimate issued = DistinctEstimate();
    const std::int64_t before = NowSeconds();
    const Estimate revision = MakeRevision(store, issued);
    Estimate draft = issued;
    draft.EstimateStatus = L"Draft";
    draft.IssuedOn = draft.CancelledOn = 0;
    draft.ReservedFlag = false;
    CHECK(Differences(revision, draft) ==
          L"EstimateId ParentEstimateId RevisionNumber CreatedOn LastModifiedOn ");
    CHECK(revision.CreatedOn >= before);
    CHECK(revision.LastModifiedOn == revision.CreatedOn);
    CHECK(std::filesystem::is_empty(store.EstimatesFolder));
}
