#include "legacy/json.h"

#include <cwctype>
#include <utility>

#include "model/number.h"

namespace tessaline {
namespace {

// Far above what any estimate needs and far below what the stack holds, both while the tree grows
// and while it is freed.
constexpr int kDeepestNesting = 512;

constexpr std::size_t kHexDigits = 4;

const JsonValue& NullValue() {
    static const JsonValue null;
    return null;
}

bool AtEnd(const JsonCursor& cursor) {
    return cursor.position >= cursor.text.size();
}

bool Take(JsonCursor& cursor, std::wstring_view expected) {
    if (!cursor.text.substr(cursor.position).starts_with(expected)) return false;
    cursor.position += expected.size();
    return true;
}

// ASCII is answered here: the C library looks its locale up for every character.
bool IsSpace(wchar_t c) {
    if (c < 0x80) return c == L' ' || (c >= L'\t' && c <= L'\r');
    return std::iswspace(static_cast<std::wint_t>(c)) != 0;
}

bool IsDigit(wchar_t c) {
    if (c < 0x80) return c >= L'0' && c <= L'9';
    return std::iswdigit(static_cast<std::wint_t>(c)) != 0;
}

bool IsInNumber(wchar_t c) {
    return IsDigit(c) || c == L'-' || c == L'+' || c == L'.' || c == L'e' || c == L'E';
}

template <typename Test>
std::wstring_view TakeWhile(JsonCursor& cursor, Test test) {
    const std::size_t start = cursor.position;
    while (!AtEnd(cursor) && test(cursor.text[cursor.position])) ++cursor.position;
    return cursor.text.substr(start, cursor.position - start);
}

void SkipSpace(JsonCursor& cursor) {
    TakeWhile(cursor, IsSpace);
}

unsigned HexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9') return static_cast<unsigned>(c - L'0');
    if (c >= L'a' && c <= L'f') return static_cast<unsigned>(c - L'a') + 10;
    if (c >= L'A' && c <= L'F') return static_cast<unsigned>(c - L'A') + 10;
    return 0;
}

// The cursor stands behind "\u".
void ParseCodeUnit(JsonCursor& cursor, std::wstring& text) {
    if (cursor.text.size() - cursor.position < kHexDigits) return;
    unsigned unit = 0;
    for (const wchar_t c : cursor.text.substr(cursor.position, kHexDigits)) {
        unit = unit * 16 + HexDigit(c);
    }
    text.push_back(static_cast<wchar_t>(unit));
    cursor.position += kHexDigits;
}

// The cursor stands behind the backslash, and not at the end.
void ParseEscape(JsonCursor& cursor, std::wstring& text) {
    const wchar_t escaped = cursor.text[cursor.position++];
    switch (escaped) {
        case L'b':
            text.push_back(L'\b');
            break;
        case L'f':
            text.push_back(L'\f');
            break;
        case L'n':
            text.push_back(L'\n');
            break;
        case L'r':
            text.push_back(L'\r');
            break;
        case L't':
            text.push_back(L'\t');
            break;
        case L'u':
            ParseCodeUnit(cursor, text);
            break;
        default:
            text.push_back(escaped);
            break;
    }
}

bool ParseString(JsonCursor& cursor, std::wstring& text) {
    if (!Take(cursor, L"\"")) return false;
    for (;;) {
        text.append(TakeWhile(cursor, [](wchar_t c) { return c != L'"' && c != L'\\'; }));
        if (Take(cursor, L"\"")) return true;
        if (!Take(cursor, L"\\") || AtEnd(cursor)) return false;
        ParseEscape(cursor, text);
    }
}

bool ParseNumber(JsonCursor& cursor, JsonValue& value) {
    const std::wstring_view run = TakeWhile(cursor, IsInNumber);
    if (run.empty()) return false;
    value.kind = JsonKind::kNumber;
    value.number = ReadDecimal(run);
    return true;
}

bool ParseLiteral(JsonCursor& cursor, JsonValue& value) {
    if (Take(cursor, L"null")) return true;
    value.boolean = Take(cursor, L"true");
    if (!value.boolean && !Take(cursor, L"false")) return false;
    value.kind = JsonKind::kBoolean;
    return true;
}

bool ParseNested(JsonCursor& cursor, JsonValue& value, int levelsLeft);

// From the opening to the closing bracket of an object or array.
template <typename ParseElement>
bool ParseElements(JsonCursor& cursor, std::wstring_view close, ParseElement parseElement) {
    ++cursor.position;
    SkipSpace(cursor);
    if (Take(cursor, close)) return true;
    do {
        if (!parseElement()) return false;
        SkipSpace(cursor);
        if (Take(cursor, close)) return true;
    } while (Take(cursor, L","));
    return false;
}

bool ParseMember(JsonCursor& cursor, JsonValue& object, int levelsLeft) {
    std::wstring key;
    SkipSpace(cursor);
    if (!ParseString(cursor, key)) return false;
    SkipSpace(cursor);
    if (!Take(cursor, L":")) return false;
    const auto [member, isNew] = object.members.try_emplace(std::move(key));
    JsonValue dropped;
    return ParseNested(cursor, isNew ? member->second : dropped, levelsLeft);
}

bool ParseObject(JsonCursor& cursor, JsonValue& value, int levelsLeft) {
    value.kind = JsonKind::kObject;
    return ParseElements(cursor, L"}", [&] { return ParseMember(cursor, value, levelsLeft); });
}

bool ParseArray(JsonCursor& cursor, JsonValue& value, int levelsLeft) {
    value.kind = JsonKind::kArray;
    return ParseElements(
        cursor, L"]", [&] { return ParseNested(cursor, value.items.emplace_back(), levelsLeft); });
}

bool ParseNested(JsonCursor& cursor, JsonValue& value, int levelsLeft) {
    SkipSpace(cursor);
    if (AtEnd(cursor)) return false;
    switch (cursor.text[cursor.position]) {
        case L'{':
            return levelsLeft > 0 && ParseObject(cursor, value, levelsLeft - 1);
        case L'[':
            return levelsLeft > 0 && ParseArray(cursor, value, levelsLeft - 1);
        case L'"':
            value.kind = JsonKind::kString;
            return ParseString(cursor, value.text);
        default:
            return ParseLiteral(cursor, value) || ParseNumber(cursor, value);
    }
}

}  // namespace

bool ParseValue(JsonCursor& cursor, JsonValue& value) {
    value = {};
    return ParseNested(cursor, value, kDeepestNesting);
}

const JsonValue& Member(const JsonValue& value, std::wstring_view key) {
    const auto member = value.members.find(key);
    return member == value.members.end() ? NullValue() : member->second;
}

const std::wstring& AsString(const JsonValue& value) {
    return value.kind == JsonKind::kString ? value.text : NullValue().text;
}

}  // namespace tessaline
