// The few platform services that the readers need, for the machine of the fuzzers. Texts are code
// units of UTF-16 here too, each in a wider character.
#include <cstring>

#include "platform/secret_bytes.h"
#include "platform/utf8.h"

namespace tessaline {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;

void PutCodePoint(SecretBytes& bytes, std::uint32_t point) {
    const int following = point < 0x80 ? 0 : point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
    constexpr std::uint32_t kLead[] = {0, 0xC0, 0xE0, 0xF0};
    bytes.push_back(static_cast<std::uint8_t>(kLead[following] | point >> (6 * following)));
    for (int i = following - 1; i >= 0; --i) {
        bytes.push_back(static_cast<std::uint8_t>(0x80 | (point >> (6 * i) & 0x3F)));
    }
}

void PutUnits(std::wstring& text, std::uint32_t point) {
    if (point < 0x10000) {
        text.push_back(static_cast<wchar_t>(point));
        return;
    }
    text.push_back(static_cast<wchar_t>(0xD800 + ((point - 0x10000) >> 10)));
    text.push_back(static_cast<wchar_t>(0xDC00 + ((point - 0x10000) & 0x3FF)));
}

// The code point at the front of `utf8`, which is stepped over; ill-formed bytes one by one.
std::uint32_t TakeCodePoint(ByteView& utf8) {
    const std::uint8_t lead = utf8[0];
    const std::size_t size = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
    constexpr std::uint32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    std::uint32_t point = size == 1 ? lead : lead & (0x7FU >> size);
    bool valid = size > 0 && size <= utf8.size();
    for (std::size_t i = 1; valid && i < size; ++i) {
        valid = (utf8[i] & 0xC0) == 0x80;
        point = point << 6 | (utf8[i] & 0x3F);
    }
    valid = valid && point >= kLeast[size] && point <= 0x10FFFF && (point & 0xFFFFF800) != 0xD800;
    utf8 = utf8.subspan(valid ? size : 1);
    return valid ? point : kReplacement;
}

bool IsHighSurrogate(wchar_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(wchar_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

}  // namespace

void WipeMemory(void* memory, std::size_t size) noexcept {
    if (memory != nullptr) std::memset(memory, 0, size);
}

std::size_t Utf8Room(std::wstring_view text) {
    return text.size() * 3;
}

void AppendUtf8(SecretBytes& bytes, std::wstring_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto unit = static_cast<std::uint32_t>(text[i]);
        if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            const auto low = static_cast<std::uint32_t>(text[++i]);
            PutCodePoint(bytes, 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00));
        } else {
            PutCodePoint(bytes, (unit & 0xFFFFF800) == 0xD800 ? kReplacement : unit);
        }
    }
}

std::wstring FromUtf8(ByteView utf8) {
    std::wstring text;
    while (!utf8.empty()) PutUnits(text, TakeCodePoint(utf8));
    return text;
}

}  // namespace tessaline
