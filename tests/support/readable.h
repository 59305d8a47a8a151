// What every test includes instead of doctest.h: doctest, taught to print wide texts in its
// messages, and access to the files in tests/data.
#pragma once

#include <doctest/doctest.h>
#include <test_data_folder.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "platform/files.h"
#include "platform/utf8.h"

namespace doctest {

template <typename Text>
requires std::is_convertible_v<const Text&, std::wstring_view>
struct StringMaker<Text> {
    static String convert(std::wstring_view text) {
        tessaline::SecretBytes utf8;
        tessaline::AppendUtf8(utf8, text);
        return std::string(utf8.begin(), utf8.end()).c_str();
    }
};

// A specialisation of its own, because doctest would print the address.
template <>
struct StringMaker<const wchar_t*> : StringMaker<std::wstring_view> {};

}  // namespace doctest

namespace tessaline {

/// The content of a file in tests/data. The test ends when there is none.
[[nodiscard]] inline Bytes TestData(const std::wstring& name) {
    Bytes bytes = ReadFileBytes(std::wstring(kTestDataFolder) + L"/" + name);
    REQUIRE_FALSE(bytes.empty());
    return bytes;
}

/// A number from the environment.
[[nodiscard]] inline unsigned Setting(const wchar_t* name, unsigned otherwise) {
    const wchar_t* text = _wgetenv(name);
    return text == nullptr ? otherwise : static_cast<unsigned>(std::wcstoul(text, nullptr, 10));
}

/// Checks lines against a text of such lines.
inline void CheckLines(const std::vector<std::wstring>& lines, const std::wstring& text) {
    std::wistringstream wanted(text);
    std::wstring line;
    for (const auto& found : lines) CHECK((std::getline(wanted, line) ? line : L"none") == found);
    CHECK_FALSE(std::getline(wanted, line));
}

}  // namespace tessaline
