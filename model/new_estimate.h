// How an estimate begins.
#pragma once

#include "model/estimate.h"

namespace tessaline {

/// A default record with an identifier of its own, which is also its root, and both its creation
/// and its modification stamped now.
[[nodiscard]] Estimate NewEstimate();

}  // namespace tessaline
