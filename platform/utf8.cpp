#include "platform/utf8.h"

#include <windows.h>

#include <algorithm>

namespace tessaline {
namespace {

// Nearly every text is ASCII, where a unit of UTF-16 is a byte of UTF-8. Looking for that first
// makes the whole several times as fast as asking Windows for every text.
template <typename Units>
bool IsAscii(const Units& units) {
    unsigned seen = 0;
    for (const auto unit : units) seen |= static_cast<unsigned>(unit);
    return seen < 0x80;
}

}  // namespace

void AppendUtf8(SecretBytes& bytes, std::wstring_view text) {
    const std::size_t start = bytes.size();
    if (IsAscii(text)) {
        bytes.resize(start + text.size());
        std::transform(text.begin(), text.end(),
                       bytes.begin() + static_cast<std::ptrdiff_t>(start),
                       [](wchar_t unit) { return static_cast<std::uint8_t>(unit); });
        return;
    }
    // No unit of UTF-16 takes more than three bytes.
    bytes.resize(start + 3 * text.size());
    const int written = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                            reinterpret_cast<char*>(bytes.data() + start),
                                            static_cast<int>(3 * text.size()), nullptr, nullptr);
    bytes.resize(start + static_cast<std::size_t>(written));
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
