#include "legacy/legacy_key.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "legacy/sha256.h"
#include "platform/files.h"
#include "platform/utf8.h"

namespace tessaline {
namespace {

// Part of every derived key: files could no longer be read if it changed.
constexpr wchar_t kDerivationSuffix[] = L"|KOVAL-DQX-MERID-BLOC-7720";

constexpr wchar_t kSeparators[] = L"\\/";

bool IsSeparator(wchar_t c) {
    return c == L'\\' || c == L'/';
}

// The end of "C:" or of "\\server" at the front of a path.
std::size_t RootNameEnd(std::wstring_view path) {
    if (path.size() >= 2 && path[1] == L':') return 2;
    const bool isServer = path.size() > 2 && IsSeparator(path[0]) && IsSeparator(path[1]);
    return isServer ? std::min(path.find_first_of(kSeparators, 2), path.size()) : 0;
}

// The segments of a path without its root, "." dropped and ".." resolved against what is before
// it.
std::vector<std::wstring_view> NormalSegments(std::wstring_view path, bool hasRootFolder) {
    std::vector<std::wstring_view> segments;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of(kSeparators), path.size());
        const std::wstring_view segment = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (segment.empty() || segment == L".") continue;
        const bool goesUp = segment == L"..";
        if (goesUp && !segments.empty() && segments.back() != L"..") {
            segments.pop_back();
        } else if (!goesUp || !hasRootFolder) {
            segments.push_back(segment);
        }
    }
    return segments;
}

// The path in lexically normal form, as the standard library defines it for Windows (mingw-w64's
// knows no "\\server"), for a folder that does not begin with three separators and does not end in
// a separator, "." or "..".
std::wstring NormalFolder(const std::wstring& folder) {
    std::wstring_view rest = folder;
    const std::size_t rootNameEnd = RootNameEnd(rest);
    std::wstring normal(rest.substr(0, rootNameEnd));
    std::replace(normal.begin(), normal.end(), L'/', L'\\');
    rest.remove_prefix(rootNameEnd);
    const bool hasRootFolder = !rest.empty() && IsSeparator(rest.front());
    if (hasRootFolder) normal += L'\\';
    const std::size_t start = normal.size();
    for (const std::wstring_view segment : NormalSegments(rest, hasRootFolder)) {
        if (normal.size() > start) normal += L'\\';
        normal += segment;
    }
    return normal;
}

std::wstring CurrentUserName() {
    std::array<wchar_t, 256> name{};
    DWORD size = static_cast<DWORD>(name.size());
    // A failure leaves the name empty, and the key is derived all the same.
    GetUserNameW(name.data(), &size);
    return name.data();
}

}  // namespace

SecretBytes GetLegacyKey(const LocalStore& store) {
    SecretBytes key = ReadSecretFile(store.BaseFolder + L"\\data.key");
    if (key.size() == kLegacyKeySize) return key;
    return DeriveLegacyKey(CurrentUserName(), store.BaseFolder);
}

SecretBytes DeriveLegacyKey(const std::wstring& userName, const std::wstring& baseFolder) {
    SecretBytes source;
    AppendUtf8(source, userName + L"|" + NormalFolder(baseFolder) + kDerivationSuffix);
    return Sha256(source);
}

}  // namespace tessaline
