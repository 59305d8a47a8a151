#include "platform/system_error.h"

#include <windows.h>

#include "tests/support/readable.h"

using namespace tessaline;

TEST_CASE("Error codes have the system's text on one line, or none") {
    const std::wstring text = SystemErrorText(ERROR_ACCESS_DENIED);
    CHECK_FALSE(text.empty());
    CHECK(text != L"Unknown error");
    CHECK(text.find_last_not_of(L" \r\n") == text.size() - 1);
    CHECK(SystemErrorText(0xE1234567) == L"Unknown error");
}
