// The test program. A test that hangs is ended after a while, with its name.
#define DOCTEST_CONFIG_IMPLEMENT
#define DOCTEST_CONFIG_NO_MULTITHREADING  // mingw-w64 with Win32 threads has no std::mutex
#include <doctest/doctest.h>
#include <windows.h>

#include <cstdio>
#include <utility>

#include "tests/ui/story.h"

namespace {

DWORD WINAPI EndHangs(void*) {
    // The long versions of tests are left to soak.sh.
    const DWORD seconds = _wgetenv(L"TESSALINE_SOAK") != nullptr ? 7200 : 250;
    const doctest::detail::TestCase* watched = nullptr;
    for (DWORD second = 0; second < seconds; ++second) {
        Sleep(1000);
        const doctest::ContextOptions* const run = doctest::getContextOptions();
        const auto* const current = run == nullptr ? nullptr : run->currentTest;
        if (current != std::exchange(watched, current)) second = 0;
    }
    std::printf("A test hangs: %s\n", watched == nullptr ? "none" : watched->m_name);
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 3);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    tessaline::RegisterStories();
    CloseHandle(CreateThread(nullptr, 0, EndHangs, nullptr, 0, nullptr));
    return doctest::Context(argc, argv).run();
}
