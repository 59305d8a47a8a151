// The test program. A test that hangs is ended after a while, with its name.
#define DOCTEST_CONFIG_IMPLEMENT
#define DOCTEST_CONFIG_NO_MULTITHREADING  // mingw-w64 with Win32 threads has no std::mutex
#include <doctest/doctest.h>
#include <windows.h>

#include <atomic>
#include <cstdio>

#include "tests/ui/story.h"

namespace {

std::atomic<const char*> currentTest = "none";
std::atomic<ULONGLONG> currentTestStart = 0;

// In milliseconds. The long versions of tests are left to soak.sh.
const ULONGLONG longestTest = _wgetenv(L"TESSALINE_SOAK") != nullptr ? 7'200'000 : 100'000;

struct NameKeeper : doctest::IReporter {
    explicit NameKeeper(const doctest::ContextOptions&) {}
    void test_case_start(const doctest::TestCaseData& test) override {
        currentTest = test.m_name;
        currentTestStart = GetTickCount64();
    }
    void test_case_end(const doctest::CurrentTestCaseStats&) override { currentTestStart = 0; }
    void report_query(const doctest::QueryData&) override {}
    void test_run_start() override {}
    void test_run_end(const doctest::TestRunStats&) override {}
    void test_case_reenter(const doctest::TestCaseData&) override {}
    void test_case_exception(const doctest::TestCaseException&) override {}
    void subcase_start(const doctest::SubcaseSignature&) override {}
    void subcase_end() override {}
    void log_assert(const doctest::AssertData&) override {}
    void log_message(const doctest::MessageData&) override {}
    void test_case_skipped(const doctest::TestCaseData&) override {}
};

DWORD WINAPI EndHangs(void*) {
    for (;;) {
        Sleep(200);
        const ULONGLONG start = currentTestStart;
        if (start == 0 || GetTickCount64() - start < longestTest) continue;
        std::printf("A test hangs: %s\n", currentTest.load());
        std::fflush(stdout);
        TerminateProcess(GetCurrentProcess(), 3);
    }
}

}  // namespace

REGISTER_LISTENER("names", 1, NameKeeper);

int main(int argc, char** argv) {
    CloseHandle(CreateThread(nullptr, 0, EndHangs, nullptr, 0, nullptr));
    tessaline::RegisterStories();
    return doctest::Context(argc, argv).run();
}
