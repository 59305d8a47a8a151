// doctest, with the record's texts readable in its messages. Tests include this instead of
// doctest.
#pragma once

#include <doctest/doctest.h>

#include <string>
#include <string_view>
#include <type_traits>

#include "platform/utf8.h"

namespace tessaline {

inline doctest::String Readable(std::wstring_view text) {
    SecretBytes utf8;
    AppendUtf8(utf8, text);
    return doctest::String(std::string(utf8.begin(), utf8.end()).c_str());
}

}  // namespace tessaline

namespace doctest {

template <typename Text>
requires std::is_convertible_v<const Text&, std::wstring_view>
struct StringMaker<Text> {
    static String convert(const Text& text) { return tessaline::Readable(text); }
};

// For itself, because doctest takes it for any pointer.
template <>
struct StringMaker<const wchar_t*> {
    static String convert(const wchar_t* text) { return tessaline::Readable(text); }
};

}  // namespace doctest
