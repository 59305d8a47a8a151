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

bool AtEnd(const JsonCursor& cursor) {
    return cursor.position >= cursor.text.size();
}

bool Take(JsonCursor& cursor, wchar_t expected) {
    if (AtEnd(cursor) || cursor.text[cursor.position] != expected) return false;
    ++cursor.position;
    return true;
}

bool TakeWord(JsonCursor& cursor, std::wstring_view expected) {
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
    std::size_t end = start;
    while (end < cursor.text.size() && test(cursor.text[end])) ++end;
    cursor.position = end;
    return cursor.text.substr(start, end - start);
}

void SkipSpace(JsonCursor& cursor) {
    while (!AtEnd(cursor) && IsSpace(cursor.text[cursor.position])) ++cursor.position;
}

unsigned HexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9') return static_cast<unsigned>(c - L'0');
    if (c >= L'a' && c <= L'f') return static_cast<unsigned>(c - L'a') + 10;
    if (c >= L'A' && c <= L'F') return static_cast<unsigned>(c - L'A') + 10;
    return 0;
}

// The cursor stands behind "\u".
void ParseCodeUnit(JsonCursor& cursor, JsonText& text) {
    if (cursor.text.size() - cursor.position < kHexDigits) return;
    unsigned unit = 0;
    for (const wchar_t c : cursor.text.substr(cursor.position, kHexDigits)) {
        unit = unit * 16 + HexDigit(c);
    }
    text.push_back(static_cast<wchar_t>(unit));
    cursor.position += kHexDigits;
}

// The cursor stands behind the backslash, and not at the end.
void ParseEscape(JsonCursor& cursor, JsonText& text) {
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

bool ParseString(JsonCursor& cursor, JsonText& text) {
    if (!Take(cursor, L'"')) return false;
    for (;;) {
        text.append(TakeWhile(cursor, [](wchar_t c) { return c != L'"' && c != L'\\'; }));
        if (Take(cursor, L'"')) return true;
        if (!Take(cursor, L'\\') || AtEnd(cursor)) return false;
        ParseEscape(cursor, text);
    }
}

bool ParseNumber(JsonCursor& cursor, JsonValue& value) {
    const std::wstring_view run = TakeWhile(cursor, IsInNumber);
    if (run.empty()) return false;
    value.content = ReadDecimal(run);
    return true;
}

bool ParseLiteral(JsonCursor& cursor, JsonValue& value) {
    if (TakeWord(cursor, L"null")) return true;
    const bool isTrue = TakeWord(cursor, L"true");
    if (!isTrue && !TakeWord(cursor, L"false")) return false;
    value.content = isTrue;
    return true;
}

// Where a value stands: what it may take memory from, and how many levels may open below it.
struct Place {
    std::pmr::memory_resource* memory;
    int levelsLeft;

    [[nodiscard]] Place Below() const { return {memory, levelsLeft - 1}; }
};

bool ParseNested(JsonCursor& cursor, JsonValue& value, Place place);

// From the opening to the closing bracket of an object or array.
template <typename ParseElement>
bool ParseElements(JsonCursor& cursor, wchar_t close, ParseElement parseElement) {
    ++cursor.position;
    SkipSpace(cursor);
    if (Take(cursor, close)) return true;
    do {
        if (!parseElement()) return false;
        SkipSpace(cursor);
        if (Take(cursor, close)) return true;
    } while (Take(cursor, L','));
    return false;
}

bool ParseMember(JsonCursor& cursor, JsonMembers& members, Place place) {
    JsonText key(place.memory);
    SkipSpace(cursor);
    if (!ParseString(cursor, key)) return false;
    SkipSpace(cursor);
    if (!Take(cursor, L':')) return false;
    const auto [member, isNew] = members.try_emplace(std::move(key));
    JsonValue dropped;
    return ParseNested(cursor, isNew ? member->second : dropped, place);
}

bool ParseObject(JsonCursor& cursor, JsonValue& value, Place place) {
    auto& members = value.content.emplace<JsonMembers>(place.memory);
    return ParseElements(cursor, L'}', [&] { return ParseMember(cursor, members, place); });
}

bool ParseArray(JsonCursor& cursor, JsonValue& value, Place place) {
    auto& items = value.content.emplace<JsonItems>(place.memory);
    return ParseElements(cursor, L']',
                         [&] { return ParseNested(cursor, items.emplace_back(), place); });
}

bool ParseNested(JsonCursor& cursor, JsonValue& value, Place place) {
    SkipSpace(cursor);
    if (AtEnd(cursor)) return false;
    switch (cursor.text[cursor.position]) {
        case L'{':
            return place.levelsLeft > 0 && ParseObject(cursor, value, place.Below());
        case L'[':
            return place.levelsLeft > 0 && ParseArray(cursor, value, place.Below());
        case L'"':
            return ParseString(cursor, value.content.emplace<JsonText>(place.memory));
        default:
            return ParseLiteral(cursor, value) || ParseNumber(cursor, value);
    }
}

}  // namespace

bool ParseValue(JsonCursor& cursor, JsonValue& value, std::pmr::memory_resource* memory) {
    value = {};
    return ParseNested(cursor, value, {memory, kDeepestNesting});
}

const JsonValue& Member(const JsonValue& value, std::wstring_view key) {
    static const JsonValue null;
    const auto* members = std::get_if<JsonMembers>(&value.content);
    if (members == nullptr) return null;
    const auto member = members->find(key);
    return member == members->end() ? null : member->second;
}

std::wstring_view AsString(const JsonValue& value) {
    const auto* text = std::get_if<JsonText>(&value.content);
    return text == nullptr ? std::wstring_view() : *text;
}

}  // namespace tessaline
