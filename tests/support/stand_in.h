// Functions of Windows in whose place a test puts its own for a while. The program calls them
// through pointers that its import libraries would define; the test program defines them itself.
#pragma once

#include <windows.h>

#include <commdlg.h>

#include <type_traits>
#include <utility>

namespace tessaline {

/// What Windows itself has under that name.
template <typename Function>
[[nodiscard]] Function OfWindows(const wchar_t* library, const char* name) {
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(library), name)));
}

/// Stands in until the end of its scope.
template <typename Function>
class StandIn {
  public:
    StandIn(Function& pointer, std::type_identity_t<Function> own)
        : pointer_(pointer), before_(std::exchange(pointer, own)) {}
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;
    ~StandIn() { pointer_ = before_; }

  private:
    Function& pointer_;
    Function before_;
};

}  // namespace tessaline

// clang-format off
#define POINTER_TO(library, name) \
    inline decltype(&(name)) __imp_##name = \
        tessaline::OfWindows<decltype(&(name))>(library, #name)
// clang-format on

extern "C" {
POINTER_TO(L"user32", BeginPaint);
POINTER_TO(L"gdi32", EndDoc);
POINTER_TO(L"gdi32", EndPage);
POINTER_TO(L"kernel32", FindFirstFileW);
POINTER_TO(L"gdi32", GetDeviceCaps);
POINTER_TO(L"comdlg32", PrintDlgW);
POINTER_TO(L"gdi32", StartDocW);
POINTER_TO(L"gdi32", StartPage);
}
