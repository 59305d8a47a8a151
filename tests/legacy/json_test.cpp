#include "legacy/json.h"

#include "tests/support/rule_table.h"

using namespace tessaline;

namespace {

// A tree on one line: strings in single quotes, members in their order.
std::wstring Show(const JsonValue& value) {
    std::wstring list;
    switch (value.Kind()) {
        case JsonKind::kNull:
            return L"null";
        case JsonKind::kBoolean:
            return std::get<bool>(value.content) ? L"true" : L"false";
        case JsonKind::kNumber:
            return Told(std::get<double>(value.content));
        case JsonKind::kString:
            return L"'" + std::wstring(AsString(value)) + L"'";
        case JsonKind::kObject:
            for (const auto& [key, member] : std::get<JsonMembers>(value.content)) {
                list.append(key).append(L":").append(Show(member)).append(L",");
            }
            return L"{" + list + L"}";
        default:
            for (const JsonValue& item : std::get<JsonItems>(value.content)) {
                list.append(Show(item)).append(L",");
            }
            return L"[" + list + L"]";
    }
}

// The value at the start of `text` and what is left behind it.
std::wstring Read(std::wstring_view text) {
    JsonCursor cursor{text};
    JsonValue value;
    // As of an earlier reading.
    value.content = true;
    if (!ParseValue(cursor, value)) return L"none";
    const std::wstring rest(text.substr(cursor.position));
    return Show(value) + (rest.empty() ? L"" : L"~" + rest);
}

bool IsRead(std::wstring_view text) {
    return Read(text) != L"none";
}

std::wstring Repeated(int times, std::wstring_view text) {
    std::wstring all;
    for (int count = 0; count < times; ++count) all += text;
    return all;
}

}  // namespace

TEST_CASE("JSON is read with the older edition's leniencies, and nothing else") {
    CheckRules(L"json.txt", {{L"read", Read}});
}

TEST_CASE("A document that ends early fails, wherever it ends") {
    const std::wstring json = LR"({"a" : [1, "\u00e9\n", {"b" : true}], "c" : null})";
    CHECK(IsRead(json));
    for (std::size_t size = 0; size < json.size(); ++size) {
        CAPTURE(size);
        CHECK_FALSE(IsRead(json.substr(0, size)));
    }
}

TEST_CASE("Nesting ends at 512 levels, whatever is nested") {
    const std::wstring innermost = Repeated(510, L"[") + L"{\"a\":[]}" + Repeated(510, L"]");
    CHECK(IsRead(innermost));
    CHECK_FALSE(IsRead(L"[" + innermost + L"]"));
    CHECK_FALSE(IsRead(L"{\"a\":" + innermost + L"}"));
    CHECK_FALSE(IsRead(L"{\"a\":1,\"a\":" + innermost + L"}"));
    CHECK_FALSE(IsRead(Repeated(1000, L"[[],") + L"1" + Repeated(1000, L"]")));
}

TEST_CASE("A large document is read at once") {
    CHECK(Read(L"[" + Repeated(100'000, L"[],") + L"1]").size() == 300'004);
    CHECK(Read(L"\"" + Repeated(200'000, L"a\\n") + L"\"").size() == 400'002);
    // At every level the tree below moves when a second element comes.
    const std::wstring leaves = Repeated(50'000, L"0,");
    CHECK(IsRead(Repeated(511, L"[") + leaves + L"0" + Repeated(511, L",0]")));
}
