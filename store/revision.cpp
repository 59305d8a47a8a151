#include "store/revision.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "model/dates.h"
#include "store/catalogue.h"

namespace tessaline {
namespace {

// The highest number among `estimate` and the saved estimates that go back to `root`.
std::int32_t HighestRevision(const LocalStore& store, const Estimate& estimate,
                             const std::wstring& root) {
    std::int32_t highest = estimate.RevisionNumber;
    for (const SavedEstimateEntry& entry : LoadAllEstimates(store)) {
        const Estimate& saved = entry.Record;
        const bool isFamily = saved.RootEstimateId == root || saved.EstimateId == root;
        if (isFamily) highest = std::max(highest, saved.RevisionNumber);
    }
    return highest;
}

// Wraps around: only a forged file can hold the largest number, and overflow would be undefined.
std::int32_t NumberAfter(std::int32_t number) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(number) + 1);
}

}  // namespace

Estimate MakeRevision(const LocalStore& store, const Estimate& estimate) {
    Estimate revision = estimate;
    if (revision.RootEstimateId.empty()) revision.RootEstimateId = estimate.EstimateId;
    revision.ParentEstimateId = estimate.EstimateId;
    revision.RevisionNumber =
        NumberAfter(HighestRevision(store, estimate, revision.RootEstimateId));
    revision.EstimateId =
        revision.RootEstimateId + L"-R" + std::to_wstring(revision.RevisionNumber);
    revision.CreatedOn = NowSeconds();
    revision.LastModifiedOn = revision.CreatedOn;
    revision.IssuedOn = 0;
    revision.CancelledOn = 0;
    revision.EstimateStatus = kStatusDraft;
    revision.ReservedFlag = false;
    return revision;
}

}  // namespace tessaline
