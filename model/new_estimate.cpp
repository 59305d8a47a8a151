#include "model/new_estimate.h"

#include "model/dates.h"

namespace tessaline {

Estimate NewEstimate() {
    Estimate estimate;
    estimate.EstimateId = NewEstimateId();
    estimate.RootEstimateId = estimate.EstimateId;
    estimate.CreatedOn = NowSeconds();
    estimate.LastModifiedOn = estimate.CreatedOn;
    return estimate;
}

}  // namespace tessaline
