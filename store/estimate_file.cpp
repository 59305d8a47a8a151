#include "store/estimate_file.h"

#include <cstdint>
#include <optional>

#include "legacy/legacy_cipher.h"
#include "legacy/legacy_file.h"
#include "model/dates.h"
#include "model/text.h"
#include "platform/files.h"
#include "store/envelope.h"
#include "store/native_format.h"

namespace tessaline {
namespace {

void Stamp(Estimate& estimate) {
    if (estimate.EstimateId.empty()) estimate.EstimateId = NewEstimateId();
    if (estimate.RootEstimateId.empty()) estimate.RootEstimateId = estimate.EstimateId;
    const std::int64_t now = NowSeconds();
    if (estimate.CreatedOn < 1) estimate.CreatedOn = now;
    estimate.LastModifiedOn = now;
}

bool ReadNativeFile(ByteView content, Estimate& estimate, std::wstring& error) {
    const SecretBytes payload = UnprotectEstimateData(content, error);
    return !payload.empty() && ReadNativeEstimate(payload, estimate, error);
}

// A file of the older edition may be the clinic's only copy of a record, so one that a save would
// overwrite is moved away first. False when it cannot be moved, or when the file cannot be read
// and might be one.
bool PutOlderFileAside(const LocalStore& store, const std::wstring& path) {
    const std::optional<Bytes> start = ReadFileStart(path, sizeof(kLegacyMarker));
    if (!start) return false;
    if (KindOfEstimateFile(*start) != EstimateFileKind::kLegacy) return true;
    return MoveFileAside(path, store.BaseFolder + L"\\Older edition");
}

}  // namespace

EstimateFileKind KindOfEstimateFile(ByteView content) {
    if (BeginsWith(content, kNativeMarker)) return EstimateFileKind::kNative;
    if (BeginsWith(content, kLegacyMarker)) return EstimateFileKind::kLegacy;
    return EstimateFileKind::kUnknown;
}

std::wstring EstimateFilePath(const LocalStore& store, const std::wstring& estimateId) {
    return store.EstimatesFolder + L"\\" + CleanFileName(estimateId) + L".gfe";
}

bool SaveEstimate(const LocalStore& store, Estimate& estimate, std::wstring& path,
                  std::wstring& error) {
    Stamp(estimate);
    const Bytes content = ProtectEstimateData(WriteNativeEstimate(estimate), error);
    if (content.empty()) return false;
    path = EstimateFilePath(store, estimate.EstimateId);
    if (PutOlderFileAside(store, path) && WriteFileBytes(path, content)) return true;
    error = L"Could not write the estimate file.";
    return false;
}

bool LoadEstimateFile(const LocalStore& store, const std::wstring& path, Estimate& estimate,
                      std::wstring& error) {
    const Bytes content = ReadFileBytes(path);
    if (content.empty()) {
        error = L"Could not read the estimate file.";
        return false;
    }
    switch (KindOfEstimateFile(content)) {
        case EstimateFileKind::kNative:
            return ReadNativeFile(content, estimate, error);
        case EstimateFileKind::kLegacy:
            return ReadLegacyEstimate(content, store, estimate, error);
        case EstimateFileKind::kUnknown:
            break;
    }
    error = L"Unsupported estimate file format.";
    return false;
}

}  // namespace tessaline
