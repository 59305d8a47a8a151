// The few platform services that the readers need, for the machine of the fuzzers. Texts are code
// units of UTF-16 here too, each in a wider character.
#include <codecvt>
#include <cstring>
#include <locale>

#include "platform/secret_bytes.h"
#include "platform/utf8.h"

namespace tessaline {
namespace {

// Made once: making one takes longer than most texts.
std::wstring_convert<std::codecvt_utf8_utf16<wchar_t>> conversion("?", L"?");

}  // namespace

void WipeMemory(void* memory, std::size_t size) noexcept {
    if (memory != nullptr) std::memset(memory, 0, size);
}

// Windows replaces what is ill-formed piece by piece. Here a text with an unpaired surrogate is
// one mark, and bytes that are no UTF-8 are widened, so that mutations still reach the readers.
void AppendUtf8(SecretBytes& bytes, std::wstring_view text) {
    const std::string utf8 = conversion.to_bytes(text.data(), text.data() + text.size());
    bytes.insert(bytes.end(), utf8.begin(), utf8.end());
}

std::wstring FromUtf8(ByteView utf8) {
    const auto* bytes = reinterpret_cast<const char*>(utf8.data());
    const std::wstring text = conversion.from_bytes(bytes, bytes + utf8.size());
    return text == L"?" ? std::wstring(utf8.begin(), utf8.end()) : text;
}

}  // namespace tessaline
