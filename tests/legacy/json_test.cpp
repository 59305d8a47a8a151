#include "legacy/json.h"

#include "tests/support/rule_table.h"

using namespace tessaline;

namespace {

// A tree on one line: strings in single quotes, members in their order.
std::wstring Show(const JsonValue& value) {
    std::wstring list;
    if (const auto* members = std::get_if<JsonMembers>(&value.content)) {
        for (const auto& [key, member] : *members) list.append(key) += L":" + Show(member) + L",";
        return L"{" + list + L"}";
    }
    if (const auto* items = std::get_if<JsonItems>(&value.content)) {
        for (const JsonValue& item : *items) list += Show(item) + L",";
        return L"[" + list + L"]";
    }
    if (const auto* flag = std::get_if<bool>(&value.content)) return Told(*flag);
    if (const auto* number = std::get_if<double>(&value.content)) return Told(*number);
    if (value.Kind() == JsonKind::kNull) return L"null";
    return L"'" + std::wstring(AsString(value)) + L"'";
}

// The value at the start of `text` and what is left behind it.
std::wstring Read(std::wstring_view text) {
    JsonCursor cursor{text};
    JsonValue value;
    value.content = true;  // of an earlier reading
    if (!ParseValue(cursor, value)) return L"none";
    const std::wstring rest(text.substr(cursor.position));
    return Show(value) + (rest.empty() ? L"" : L"~" + rest);
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
    for (std::size_t size = 0; size <= json.size(); ++size) {
        CHECK((Read(json.substr(0, size)) == L"none") == (size < json.size()));
    }
}

TEST_CASE("Nesting ends at 512 levels, whatever is nested") {
    const std::wstring innermost = Repeated(510, L"[") + L"{\"a\":[]}" + Repeated(510, L"]");
    CHECK(Read(innermost) != L"none");
    CHECK(Read(L"[" + innermost + L"]") == L"none");
    CHECK(Read(L"{\"a\":" + innermost + L"}") == L"none");
    CHECK(Read(L"{\"a\":1,\"a\":" + innermost + L"}") == L"none");
    CHECK(Read(Repeated(1000, L"[[],") + L"1" + Repeated(1000, L"]")) == L"none");
}

TEST_CASE("A large document is read at once") {
    CHECK(Read(L"[" + Repeated(100'000, L"[],") + L"1]").size() == 300'004);
    CHECK(Read(L"\"" + Repeated(200'000, L"a\\n") + L"\"").size() == 400'002);
    // At every level the tree below moves when a second element comes.
    const std::wstring leaves = Repeated(50'000, L"0,");
    CHECK(Read(Repeated(511, L"[") + leaves + L"0" + Repeated(511, L",0]")) != L"none");
}
