// The demonstration estimate.
#pragma once

#include "model/estimate.h"

namespace tessaline {

/// A complete, valid estimate of an invented patient.
[[nodiscard]] Estimate SampleEstimate();

/// Whether an estimate is the sample, by its identifier or by the marker in its notes. Output
/// never saves one.
[[nodiscard]] bool IsSampleEstimate(const Estimate& estimate);

/// The Sample command: asks, then fills the form. The sample counts as unsaved.
void LoadSample();

}  // namespace tessaline
