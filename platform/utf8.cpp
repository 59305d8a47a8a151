#include "platform/utf8.h"

#include <windows.h>

#include <algorithm>

namespace tessaline {
namespace {

// Nearly every text is ASCII, where a unit of UTF-16 is a byte of UTF-8. Widening and narrowing
// those here makes the whole several times as fast as asking Windows for every text.
bool IsAscii(ByteView utf8) {
    unsigned seen = 0;
    for (const std::uint8_t byte : utf8) seen |= byte;
    return seen < 0x80;
}

}  // namespace

void AppendUtf8(SecretBytes& bytes, std::wstring_view text) {
    const std::size_t start = bytes.size();
    bytes.resize(start + text.size());
    unsigned seen = 0;
    std::transform(text.begin(), text.end(), bytes.begin() + static_cast<std::ptrdiff_t>(start),
                   [&seen](wchar_t unit) {
                       seen |= unit;
                       return static_cast<std::uint8_t>(unit);
                   });
    if (seen < 0x80) return;
    // No unit of UTF-16 gives more than three bytes.
    const std::size_t room = 3 * text.size();
    bytes.resize(start + room);
    char* target = reinterpret_cast<char*>(bytes.data() + start);
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                         target, static_cast<int>(room), nullptr, nullptr);
    bytes.resize(start + static_cast<std::size_t>(size));
}

std::wstring FromUtf8(ByteView utf8) {
    if (IsAscii(utf8)) return {utf8.begin(), utf8.end()};
    const char* source = reinterpret_cast<const char*>(utf8.data());
    const int size = static_cast<int>(utf8.size());
    // No byte of UTF-8 gives more than one unit.
    std::wstring text(utf8.size(), L'\0');
    const int length = MultiByteToWideChar(CP_UTF8, 0, source, size, text.data(), size);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

}  // namespace tessaline
