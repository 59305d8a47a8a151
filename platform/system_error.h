// The one place where a Windows error code becomes text for the user.
#pragma once

#include <cstdint>
#include <string>

namespace tessaline {

/// Windows' own text for an error code, in the user's language and without its line end; "Unknown
/// error" where Windows has none. Take `GetLastError` at once and hand it over: almost any call in
/// between may change it.
[[nodiscard]] std::wstring SystemErrorText(std::uint32_t code);

}  // namespace tessaline
