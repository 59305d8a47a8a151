// Parts of GCC's runtime, written anew. What -fstack-protector calls is in place of libssp, whose
// start-up code loads the old crypto libraries before the program has limited where libraries are
// looked for. What ends the program after an exception that nobody caught is in place of 40 kB of
// code that prints the exception's name, for which a program with windows has no console.
#include <windows.h>

#include <cstdint>
#include <cstdlib>

#if defined(__GNUC__) && !defined(__clang__)
#define WITHOUT_GUARD __attribute__((no_stack_protector))
#else
#define WITHOUT_GUARD
#endif

// NOLINTBEGIN: the compiler gives the names.
extern "C" {
/// Stands between a function's arrays and its return address.
std::uintptr_t __stack_chk_guard = 0;

/// A function has written past an array. Nothing in the process can be trusted any more, so it
/// ends at once, with the status 0xC0000409 (FAST_FAIL_STACK_COOKIE_CHECK_FAILURE of winnt.h).
[[noreturn]] WITHOUT_GUARD void __stack_chk_fail() {
    asm volatile("int $0x29" : : "c"(2));
    __builtin_unreachable();
}
}

namespace __gnu_cxx {
[[noreturn]] void __verbose_terminate_handler() {
    std::abort();
}
}  // namespace __gnu_cxx
// NOLINTEND

namespace {

// The sources of Microsoft's __security_init_cookie: what differs from process to process and
// cannot be known outside. Windows 64-bit cookies have 48 bits; the highest bytes stay 0, so that
// no string copy can write the guard.
WITHOUT_GUARD std::uintptr_t MakeGuard() {
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    LARGE_INTEGER counter{};
    QueryPerformanceCounter(&counter);
    std::uintptr_t guard = (std::uintptr_t{now.dwHighDateTime} << 32U) | now.dwLowDateTime;
    guard ^= std::uintptr_t{GetCurrentThreadId()} ^ (std::uintptr_t{GetCurrentProcessId()} << 16U);
    guard ^= GetTickCount64() << 8U;
    guard ^= static_cast<std::uintptr_t>(counter.QuadPart) * 0x9E3779B97F4A7C15U;
    guard ^= reinterpret_cast<std::uintptr_t>(&guard);
    return guard & 0x0000FFFFFFFFFFFFU;
}

// Before all other constructors; those of the C library's start-up have no guards.
__attribute__((constructor(101))) WITHOUT_GUARD void SetGuard() {
    __stack_chk_guard = MakeGuard();
}

}  // namespace
