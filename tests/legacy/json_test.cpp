#include "legacy/json.h"

#include <array>
#include <charconv>

#include "tests/support/readable.h"

using namespace tessaline;

namespace {

// A tree on one line: strings in single quotes, members in their order.
std::wstring Show(const JsonValue& value) {
    std::wstring list;
    std::array<char, 32> digits{};
    switch (value.Kind()) {
        case JsonKind::kNull:
            return L"null";
        case JsonKind::kBoolean:
            return std::get<bool>(value.content) ? L"true" : L"false";
        case JsonKind::kNumber:
            return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(),
                                                 std::get<double>(value.content))
                                       .ptr};
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

bool IsRead(std::wstring_view text) {
    JsonCursor cursor{text};
    JsonValue value;
    return ParseValue(cursor, value);
}

// The value at the start of `text`, a bar and what is left behind it.
std::wstring Read(std::wstring_view text) {
    JsonCursor cursor{text};
    JsonValue value;
    REQUIRE(ParseValue(cursor, value));
    return Show(value) + L"|" + std::wstring(text.substr(cursor.position));
}

std::wstring Repeated(int times, std::wstring_view text) {
    std::wstring all;
    for (int count = 0; count < times; ++count) all += text;
    return all;
}

}  // namespace

TEST_CASE("JSON is read with the older edition's leniencies") {
    struct Row {
        std::wstring_view json;
        std::wstring_view result;
    };
    // clang-format off
    const Row rows[] = {
        {L" \t\n\v\f\r\x00A0{ } x", L"{}| x"}, {L"[ ]]", L"[]|]"},
        {L"{ \"a\" : [ 1 , 2 ] , \"b\" : 3 }", L"{a:[1,2,],b:3,}|"},
        {L"truefalse", L"true|false"}, {L"falsex", L"false|x"}, {L"null1", L"null|1"},
        {L"1-2", L"1|"}, {L"-", L"0|"}, {L"+", L"0|"}, {L".", L"0|"}, {L"e", L"0|"},
        {L"E", L"0|"}, {L"--5", L"0|"}, {L"12abc", L"12|abc"}, {L"+.5", L"0.5|"},
        {L"1.e2.5", L"100|"}, {L"-0", L"-0|"}, {L"1e999", L"inf|"}, {L"0x10", L"0|x10"},
        {L"1,5", L"1|,5"}, {L"-inf", L"0|inf"},
        {LR"("\"\\\/\b\f\n\r\t")", L"'\"\\/\b\f\n\r\t'|"}, {L"\"a\nb\"", L"'a\nb'|"},
        {LR"("\q\x\U")", L"'qxU'|"}, {LR"("\u00e9\u00E9!")", L"'\u00e9\u00e9!'|"},
        {LR"("\ug0z4g")", L"'\x0004g'|"}, {LR"("\ud83e\uddb5")", L"'\xd83e\xddb5'|"},
        {LR"("\uddb5\ud83eg")", L"'\xddb5\xd83eg'|"}, {LR"("\u12")", L"'12'|"},
        {LR"("\u")", L"''|"},
        {LR"({"b":1,"B":2,"ab":3,"a":4})", L"{B:2,a:4,ab:3,b:1,}|"},
        {LR"({"a":1,"b":2,"a":{"c":3}})", L"{a:1,b:2,}|"}, {LR"({"":null})", L"{:null,}|"},
        {LR"([null,[{}],"a",false])", L"[null,[{},],'a',false,]|"},
    };
    // clang-format on
    for (const Row& row : rows) {
        CAPTURE(row.json);
        CHECK(Read(row.json) == row.result);
    }
}

TEST_CASE("What else is no JSON fails") {
    // clang-format off
    const std::wstring_view texts[] = {
        L"", L" \n", L"tru", L"fals", L"nul", L"True", L"[truex]", L"NaN",
        LR"("open)", LR"("\")", LR"("\)",
        LR"(["\u12"])",  // takes the quote and the bracket as digits
        LR"({"a":1,"a":nul})", LR"({"a":1,})", LR"({"a":1 "b":2})", LR"({"a" 1})", LR"({"a":})",
        LR"({a:1})", LR"({"a":1])", L"[1,]", L"[,]", L"[1 2]", L"[1}",
    };
    // clang-format on
    for (const std::wstring_view text : texts) {
        CAPTURE(text);
        CHECK_FALSE(IsRead(text));
    }
}

TEST_CASE("A document that ends early fails, wherever it ends") {
    const std::wstring json = LR"({"a" : [1, "\u00e9\n", {"b" : true}], "c" : null})";
    CHECK(IsRead(json));
    for (std::size_t size = 0; size < json.size(); ++size) {
        CAPTURE(size);
        CHECK_FALSE(IsRead(json.substr(0, size)));
    }
}

TEST_CASE("A cursor steps from value to value, and each replaces the last") {
    JsonCursor cursor{LR"([1] "b"null)"};
    JsonValue value;
    REQUIRE(ParseValue(cursor, value));
    CHECK(Show(value) == L"[1,]");
    REQUIRE(ParseValue(cursor, value));
    CHECK(Show(value) == L"'b'");
    REQUIRE(ParseValue(cursor, value));
    CHECK(Show(value) == L"null");
    CHECK_FALSE(ParseValue(cursor, value));
}

TEST_CASE("What a value does not have reads as null and empty") {
    JsonCursor cursor{LR"({"a":"text","b":5})"};
    JsonValue value;
    REQUIRE(ParseValue(cursor, value));
    CHECK(AsString(Member(value, L"a")) == L"text");
    CHECK(AsString(Member(value, L"b")).empty());
    CHECK(Member(value, L"A").Kind() == JsonKind::kNull);
    CHECK(&Member(value, L"c") == &Member(Member(value, L"a"), L"a"));
}

TEST_CASE("Nesting ends at 512 levels, whatever is nested") {
    const std::wstring innermost = Repeated(510, L"[") + L"{\"a\":[]}" + Repeated(510, L"]");
    CHECK(IsRead(innermost));
    CHECK_FALSE(IsRead(L"[" + innermost + L"]"));
    CHECK_FALSE(IsRead(L"{\"a\":" + innermost + L"}"));
    CHECK_FALSE(IsRead(L"{\"a\":1,\"a\":" + innermost + L"}"));
    CHECK_FALSE(IsRead(Repeated(1000, L"[[],") + L"1" + Repeated(1000, L"]")));
}

TEST_CASE("A large document is read or refused at once") {
    CHECK_FALSE(IsRead(Repeated(524'288, L"[")));
    CHECK_FALSE(IsRead(Repeated(100'000, L"{\"a\":")));
    CHECK(Read(L"[" + Repeated(100'000, L"[],") + L"1]").size() == 300'005);
    CHECK(Read(L"\"" + Repeated(200'000, L"a\\n") + L"\"").size() == 400'003);
    // At every level the tree below moves when a second element comes.
    const std::wstring leaves = Repeated(50'000, L"0,");
    CHECK(IsRead(Repeated(511, L"[") + leaves + L"0" + Repeated(511, L",0]")));
}
