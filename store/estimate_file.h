// One record, one file: how a record becomes a file in the estimates folder and a file becomes a
// record again.
#pragma once

#include <string>

#include "model/estimate.h"
#include "platform/bytes.h"
#include "platform/local_store.h"

namespace tessaline {

enum class EstimateFileKind { kNative, kLegacy, kUnknown };

/// What a file is, by its first four bytes.
[[nodiscard]] EstimateFileKind KindOfEstimateFile(ByteView content);

/// Where the estimate of that identifier is kept. Identifiers that differ only in characters that
/// Windows forbids in file names share one file.
[[nodiscard]] std::wstring EstimateFilePath(const LocalStore& store,
                                            const std::wstring& estimateId);

/// Stamps `estimate` (its missing identifiers and creation time, and always its modification) and
/// writes it, over an earlier file of that identifier. A file of the older edition in that place
/// is not overwritten: it is moved, unchanged, into the folder "Older edition" beside the
/// estimates folder first. `path` receives the file's path as soon as it is known. On false,
/// `error` holds the text for the user; the stamps stay, and a file of the older edition is still
/// whole.
[[nodiscard]] bool SaveEstimate(const LocalStore& store, Estimate& estimate, std::wstring& path,
                                std::wstring& error);

/// Reads a file of this or the older edition into `estimate`, which should be a default record. On
/// false, `error` holds the text for the user and `estimate` is to be thrown away.
[[nodiscard]] bool LoadEstimateFile(const LocalStore& store, const std::wstring& path,
                                    Estimate& estimate, std::wstring& error);

}  // namespace tessaline
