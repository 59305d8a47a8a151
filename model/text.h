// Small text tools that the form, the rules, the store and the document share. Only their ASCII
// behaviour is fixed; beyond it they follow the C library's wide-character classification.
#pragma once

#include <string>
#include <string_view>

#include "model/estimate.h"

namespace tessaline {

/// Removes white space from both ends.
[[nodiscard]] std::wstring Trim(std::wstring_view text);

/// Whether `text` holds nothing but white space.
[[nodiscard]] bool IsBlank(std::wstring_view text);

/// Keeps the characters "0" to "9", in order.
[[nodiscard]] std::wstring DigitsOnly(std::wstring_view text);

/// Upper case by the current locale, character by character, so that the length stays the same.
[[nodiscard]] std::wstring ToUpper(std::wstring text);

/// Lower case, likewise.
[[nodiscard]] std::wstring ToLower(std::wstring text);

/// Whether `needle` occurs in `haystack` as one run, ignoring case. An empty needle occurs in all.
[[nodiscard]] bool ContainsNoCase(std::wstring_view haystack, std::wstring_view needle);

/// First, middle and last name with single blanks between those that are there.
[[nodiscard]] std::wstring JoinName(const PatientInfo& patient);

/// A postal address on one line, such as "12 Oak St Apt 4, Springfield, IL 62701", without the
/// separators of missing pieces.
[[nodiscard]] std::wstring JoinAddress(std::wstring_view street, std::wstring_view apartment,
                                       std::wstring_view city, std::wstring_view state,
                                       std::wstring_view zip);

/// Replaces each of the nine characters that Windows forbids in file names (<>:"/\|?*) by a
/// hyphen. Control characters and device names are left as they are.
[[nodiscard]] std::wstring CleanFileName(std::wstring_view name);

}  // namespace tessaline
