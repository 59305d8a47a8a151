// The reader of the older edition's JSON. It accepts everything that is well-formed and some
// things that are not, as the older edition's own reader did: see `ParseValue`.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory_resource>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tessaline {

enum class JsonKind : std::int32_t {
    kNull = 0,
    kBoolean = 1,
    kNumber = 2,
    kString = 3,
    kObject = 4,
    kArray = 5,
};

struct JsonValue;
using JsonText = std::pmr::wstring;
using JsonMembers = std::pmr::map<JsonText, JsonValue, std::less<>>;  ///< by code units
using JsonItems = std::pmr::vector<JsonValue>;

/// One value with everything in it.
struct JsonValue {
    /// In the order of the kinds.
    std::variant<std::monostate, bool, double, JsonText, JsonMembers, JsonItems> content;

    [[nodiscard]] JsonKind Kind() const { return static_cast<JsonKind>(content.index()); }

    // Not copied: moving a map takes memory in Microsoft's library, and a vector whose elements
    // may throw when they move would copy whole trees, once for every level above them.
    JsonValue() = default;
    JsonValue(const JsonValue&) = delete;
    JsonValue(JsonValue&&) = default;  // NOLINT(performance-noexcept-move-constructor): see above
    JsonValue& operator=(const JsonValue&) = delete;
    JsonValue& operator=(JsonValue&&) = default;  // NOLINT(performance-noexcept-move-constructor)
    ~JsonValue() = default;
};

/// A place in a text. The text must outlive the cursor.
struct JsonCursor {
    std::wstring_view text;
    std::size_t position = 0;  ///< in code units
};

/// Reads the value at the cursor, after white space, and steps past it; what follows is left
/// alone. On false the text is no such value, ends too early or nests deeper than 512 levels, and
/// `value` is only partly filled. Whatever the value owns is taken from `memory`, which must
/// outlive it.
///
/// Lenient where the older edition was: white space is whatever the C library calls so; nothing
/// needs to stand between a literal and what follows; a number is any run of digits, signs, points
/// and exponent letters, worth what its front is worth ("1-2" is 1, "-" is 0); strings may hold
/// control characters; an unknown escape stands for its character; "\u" takes any four characters,
/// those that are no hexadecimal digits as 0, and loses its "u" when the text has fewer left;
/// surrogates need no partner; of equal keys the first counts.
[[nodiscard]] bool ParseValue(
    JsonCursor& cursor, JsonValue& value,
    std::pmr::memory_resource* memory = std::pmr::get_default_resource());

/// The member called exactly `key`; a null value when there is none or `value` is no object.
[[nodiscard]] const JsonValue& Member(const JsonValue& value, std::wstring_view key);

/// The text of a string, empty for every other kind.
[[nodiscard]] std::wstring_view AsString(const JsonValue& value);

}  // namespace tessaline
