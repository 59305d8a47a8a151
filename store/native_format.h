// The bytes of one record: "GFED", a version and its fields (store/native_versions.h). Texts are
// counted UTF-8; all numbers are little-endian. These bytes reach the disk only inside the
// envelope (store/envelope.h).
#pragma once

#include <string>

#include "model/estimate.h"
#include "platform/bytes.h"
#include "platform/secret_bytes.h"

namespace tessaline {

/// The payload of `estimate`, in the newest version. Nothing is refused: a list of more than 1,000
/// elements is written, though the reader will not take it back.
[[nodiscard]] SecretBytes WriteNativeEstimate(const Estimate& estimate);

/// Replaces `estimate` by the record in `payload`, of any version up to the newest; what follows
/// the record is ignored. On false, `error` holds the text for the user and `estimate` may be
/// partly filled: throw it away.
[[nodiscard]] bool ReadNativeEstimate(ByteView payload, Estimate& estimate, std::wstring& error);

}  // namespace tessaline
