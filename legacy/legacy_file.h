// Opening a file of the older edition. These files are only ever read: saving writes a native file
// and leaves the old one as it is.
#pragma once

#include <string>

#include "model/estimate.h"
#include "store/local_store.h"

namespace tessaline {

/// Fills `estimate`, which must be a default record, from the older edition's file at `path`. On
/// false throw it away; `error` then holds the text for the user, or stays as it was for a file
/// that is too short for one of these, lacks their "GFE2", or decrypts to nothing at all.
[[nodiscard]] bool OpenLegacyEstimateFile(const std::wstring& path, const LocalStore& store,
                                          Estimate& estimate, std::wstring& error);

}  // namespace tessaline
