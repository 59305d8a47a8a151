#include "model/text.h"

#include <algorithm>
#include <cwctype>
#include <iterator>

namespace tessaline {
namespace {

bool IsSpace(wchar_t c) {
    return std::iswspace(static_cast<std::wint_t>(c)) != 0;
}

// The C library looks the locale up for every character. ASCII is the same in all of them, and
// searching ten thousand rows asks for millions of characters.
wchar_t UpperOf(wchar_t c) {
    if (c >= L'a' && c <= L'z') return static_cast<wchar_t>(c - L'a' + L'A');
    return c < 0x80 ? c : static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(c)));
}

wchar_t LowerOf(wchar_t c) {
    if (c >= L'A' && c <= L'Z') return static_cast<wchar_t>(c - L'A' + L'a');
    return c < 0x80 ? c : static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c)));
}

// Appends `piece`, and `separator` before it when something stands there already.
void AppendPiece(std::wstring& text, std::wstring_view separator, std::wstring_view piece) {
    if (piece.empty()) return;
    if (!text.empty()) text += separator;
    text += piece;
}

}  // namespace

std::wstring Trim(std::wstring_view text) {
    const auto first = std::find_if_not(text.begin(), text.end(), IsSpace);
    const auto last = std::find_if_not(text.rbegin(), text.rend(), IsSpace).base();
    return first < last ? std::wstring(first, last) : std::wstring();
}

bool IsBlank(std::wstring_view text) {
    return std::all_of(text.begin(), text.end(), IsSpace);
}

std::wstring DigitsOnly(std::wstring_view text) {
    std::wstring digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits),
                 [](wchar_t c) { return c >= L'0' && c <= L'9'; });
    return digits;
}

std::wstring ToUpper(std::wstring text) {
    std::transform(text.begin(), text.end(), text.begin(), UpperOf);
    return text;
}

std::wstring ToLower(std::wstring text) {
    std::transform(text.begin(), text.end(), text.begin(), LowerOf);
    return text;
}

bool ContainsNoCase(std::wstring_view haystack, std::wstring_view needle) {
    return ToLower(std::wstring(haystack)).find(ToLower(std::wstring(needle))) !=
           std::wstring::npos;
}

std::wstring JoinName(const PatientInfo& patient) {
    std::wstring name;
    name.reserve(patient.FirstName.size() + patient.MiddleName.size() + patient.LastName.size() +
                 2);
    name += patient.FirstName;
    AppendPiece(name, L" ", patient.MiddleName);
    AppendPiece(name, L" ", patient.LastName);
    return name;
}

std::wstring JoinAddress(std::wstring_view street, std::wstring_view apartment,
                         std::wstring_view city, std::wstring_view state, std::wstring_view zip) {
    std::wstring address(street);
    AppendPiece(address, L" ", apartment);
    std::wstring place(city);
    AppendPiece(place, L", ", state);
    AppendPiece(place, L" ", zip);
    AppendPiece(address, L", ", place);
    return address;
}

std::wstring CleanFileName(std::wstring_view name) {
    constexpr std::wstring_view kForbidden = L"<>:\"/\\|?*";
    std::wstring clean(name);
    std::replace_if(
        clean.begin(), clean.end(),
        [&](wchar_t c) { return kForbidden.find(c) != std::wstring_view::npos; }, L'-');
    return clean;
}

}  // namespace tessaline
