#include "tests/support/stand_in.h"

namespace {

// What Windows has under that name.
template <typename Function>
Function Own(const wchar_t* library, const char* name) {
    void* const found = reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(library), name));
    return reinterpret_cast<Function>(found);
}

}  // namespace

// clang-format off
#define STAND_IN(library, name) \
    decltype(&(name)) __imp_##name = Own<decltype(&(name))>(library, #name)
// clang-format on

STAND_IN(L"user32", BeginPaint);
STAND_IN(L"gdi32", EndDoc);
STAND_IN(L"gdi32", EndPage);
STAND_IN(L"kernel32", FindFirstFileW);
STAND_IN(L"gdi32", GetDeviceCaps);
STAND_IN(L"comdlg32", PrintDlgW);
STAND_IN(L"gdi32", StartDocW);
STAND_IN(L"gdi32", StartPage);
