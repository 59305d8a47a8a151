// The few platform services that the readers need, for the machine of the fuzzers. Texts are code
// units of UTF-16 here too, each in a wider character.
#include <algorithm>
#include <codecvt>
#include <cstring>
#include <locale>

#include "platform/secret_bytes.h"
#include "platform/utf8.h"

namespace tessaline {
namespace {

const std::codecvt_utf8_utf16<wchar_t> conversion;

}  // namespace

void WipeMemory(void* memory, std::size_t size) noexcept {
    if (memory != nullptr) std::memset(memory, 0, size);
}

void AppendUtf8(SecretBytes& bytes, std::wstring_view text) {
    const wchar_t* from = text.data();
    const wchar_t* const end = from + text.size();
    const std::size_t start = bytes.size();
    bytes.resize(start + 3 * text.size());
    char* const first = reinterpret_cast<char*>(bytes.data());
    char* to = first + start;
    while (from != end) {
        std::mbstate_t state{};
        // Stops at an unpaired surrogate.
        conversion.out(state, from, end, from, to, first + bytes.size(), to);
        if (from == end) break;
        ++from;
        to = std::copy_n("\xEF\xBF\xBD", 3, to);
    }
    bytes.resize(static_cast<std::size_t>(to - first));
}

std::wstring FromUtf8(ByteView utf8) {
    const char* from = reinterpret_cast<const char*>(utf8.data());
    const char* const end = from + utf8.size();
    std::wstring text(utf8.size(), L'\0');
    wchar_t* to = text.data();
    while (from != end) {
        std::mbstate_t state{};
        // Stops at ill-formed bytes, which are replaced one by one.
        conversion.in(state, from, end, from, to, text.data() + text.size(), to);
        if (from == end) break;
        ++from;
        *to++ = 0xFFFD;
    }
    text.resize(static_cast<std::size_t>(to - text.data()));
    return text;
}

}  // namespace tessaline
