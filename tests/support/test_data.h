// The files in tests/data.
#pragma once

#include <test_data_folder.h>

#include <doctest/doctest.h>

#include <string>

#include "platform/files.h"

namespace tessaline {

/// The content of a file in tests/data. The test ends when there is none.
[[nodiscard]] inline Bytes TestData(const std::wstring& name) {
    Bytes bytes = ReadFileBytes(std::wstring(kTestDataFolder) + L"/" + name);
    REQUIRE_FALSE(bytes.empty());
    return bytes;
}

}  // namespace tessaline
