#include "platform/system_error.h"

#include "model/text.h"
#include "platform/handles.h"

namespace tessaline {

std::wstring SystemErrorText(std::uint32_t code) {
    LocalOwner<wchar_t> buffer;
    // With FORMAT_MESSAGE_ALLOCATE_BUFFER the "buffer" argument is where the address is stored.
    const DWORD length =
        FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS |
                           FORMAT_MESSAGE_FROM_SYSTEM,
                       nullptr, code, MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT),
                       reinterpret_cast<wchar_t*>(buffer.Receive()), 0, nullptr);
    return length == 0 ? L"Unknown error" : Trim({buffer.Get(), length});
}

}  // namespace tessaline
