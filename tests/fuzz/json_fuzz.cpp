// Any text: the JSON reader ends inside it, and what it read can be copied and freed.
#include <cstdlib>

#include "legacy/json.h"
#include "platform/utf8.h"

using namespace tessaline;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::wstring text = FromUtf8({data, size});
    JsonCursor cursor{text};
    JsonValue value;
    const bool parsed = ParseValue(cursor, value);
    if (cursor.position > text.size()) std::abort();
    const JsonValue copy = value;
    if (parsed && copy.Kind() != value.Kind()) std::abort();
    return 0;
}
