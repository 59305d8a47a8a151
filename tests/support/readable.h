// doctest, with the record's texts readable in its messages. Tests include this instead of
// doctest.
#pragma once

#include <doctest/doctest.h>

#include <string>
#include <string_view>

#include "platform/utf8.h"

namespace tessaline {

inline doctest::String Readable(std::wstring_view text) {
    SecretBytes utf8;
    AppendUtf8(utf8, text);
    return doctest::String(std::string(utf8.begin(), utf8.end()).c_str());
}

}  // namespace tessaline

namespace doctest {

template <>
struct StringMaker<std::wstring> {
    static String convert(const std::wstring& text) { return tessaline::Readable(text); }
};

template <>
struct StringMaker<std::wstring_view> {
    static String convert(std::wstring_view text) { return tessaline::Readable(text); }
};

template <>
struct StringMaker<const wchar_t*> {
    static String convert(const wchar_t* text) { return tessaline::Readable(text); }
};

template <std::size_t N>
struct StringMaker<wchar_t[N]> {
    static String convert(const wchar_t* text) { return tessaline::Readable(text); }
};

}  // namespace doctest
