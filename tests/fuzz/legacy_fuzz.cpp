// Any decrypted text of an older file: the JSON reader ends inside it, what it read can be moved
// and freed, and what maps to a record survives the native format.
#include <cstdlib>
#include <utility>

#include "legacy/legacy_mapping.h"
#include "platform/utf8.h"
#include "store/native_format.h"

using namespace tessaline;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::wstring text = FromUtf8({data, size});
    JsonCursor cursor{text};
    JsonValue root;
    Estimate estimate;
    const bool parsed = ParseValue(cursor, root);
    const JsonKind kind = root.Kind();
    const JsonValue moved = std::move(root);
    if (cursor.position > text.size() || moved.Kind() != kind) std::abort();
    if (!parsed || !MapLegacyEstimate(moved, estimate)) return 0;
    if (estimate.EstimateId.empty() || estimate.CreatedOn < 0) std::abort();
    const SecretBytes written = WriteNativeEstimate(estimate);
    Estimate again;
    std::wstring error;
    const bool listed = estimate.Lines.size() <= 1000 && estimate.SeparateItems.size() <= 1000;
    if (ReadNativeEstimate(written, again, error) != listed) std::abort();
    return 0;
}
