// The revision that is made when an issued estimate is edited.
#pragma once

#include "model/estimate.h"
#include "platform/local_store.h"

namespace tessaline {

/// The next revision of `estimate`: a draft with a new identifier, numbered above every saved
/// member of its family, and otherwise as `estimate` is. Reads every saved estimate and saves
/// nothing.
[[nodiscard]] Estimate MakeRevision(const LocalStore& store, const Estimate& estimate);

}  // namespace tessaline
