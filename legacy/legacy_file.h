// Reads a file of the older edition. The program never writes one: saving writes a native file and
// does not overwrite the old one (store/estimate_file.h).
#pragma once

#include <string>

#include "model/estimate.h"
#include "platform/bytes.h"
#include "platform/local_store.h"

namespace tessaline {

/// Fills `estimate`, which must be a default record, from the content of a file of the older
/// edition; `store` says where its key is. On false throw the record away; `error` then holds the
/// text for the user, or stays as it was for content that is too short, lacks "GFE2" at its front,
/// or decrypts to nothing at all.
[[nodiscard]] bool ReadLegacyEstimate(ByteView content, const LocalStore& store,
                                      Estimate& estimate, std::wstring& error);

}  // namespace tessaline
