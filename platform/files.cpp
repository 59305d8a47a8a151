#include "platform/files.h"

#include <algorithm>

#include "platform/handles.h"

namespace tessaline {
namespace {

// A bound on what a damaged or foreign file can make the program allocate.
constexpr LONGLONG kLargestFile = 256LL * 1024 * 1024;

FileOwner OpenFile(const std::wstring& path, DWORD access, DWORD disposition) {
    // Nothing is locked against other programs.
    const HANDLE file =
        CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    return FileOwner(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

bool IsFolder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::wstring ParentFolder(const std::wstring& path) {
    const std::size_t slash = path.find_last_of(L"\\/");
    return slash == std::wstring::npos ? std::wstring() : path.substr(0, slash);
}

// Some network and memory disks have no flushing; what is written to them is written.
bool CanFlush(DWORD error) {
    return error != ERROR_INVALID_FUNCTION && error != ERROR_NOT_SUPPORTED;
}

// Null for a file that could not be opened.
std::optional<LONGLONG> SizeOf(const FileOwner& file) {
    LARGE_INTEGER size{};
    if (!file || !GetFileSizeEx(file.Get(), &size)) return std::nullopt;
    return size.QuadPart;
}

template <typename Buffer>
std::optional<Buffer> ReadStart(const FileOwner& file, LONGLONG size) {
    Buffer bytes(static_cast<std::size_t>(size));
    DWORD read = 0;
    const DWORD wanted = static_cast<DWORD>(bytes.size());
    // A file that shrank since its size was taken gives fewer bytes; a read error gives none.
    if (!ReadFile(file.Get(), bytes.data(), wanted, &read, nullptr)) return std::nullopt;
    bytes.resize(read);
    return bytes;
}

template <typename Buffer>
Buffer ReadWhole(const std::wstring& path) {
    const FileOwner file = OpenFile(path, GENERIC_READ, OPEN_EXISTING);
    const std::optional<LONGLONG> size = SizeOf(file);
    if (!size || *size > kLargestFile) return {};
    return ReadStart<Buffer>(file, *size).value_or(Buffer());
}

}  // namespace

Bytes ReadFileBytes(const std::wstring& path) {
    return ReadWhole<Bytes>(path);
}

SecretBytes ReadSecretFile(const std::wstring& path) {
    return ReadWhole<SecretBytes>(path);
}

std::optional<Bytes> ReadFileStart(const std::wstring& path, std::uint32_t most) {
    const FileOwner file = OpenFile(path, GENERIC_READ, OPEN_EXISTING);
    const DWORD error = GetLastError();
    const bool isMissing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
    if (!file && isMissing) return Bytes();
    const std::optional<LONGLONG> size = SizeOf(file);
    if (!size) return std::nullopt;
    return ReadStart<Bytes>(file, std::min<LONGLONG>(*size, most));
}

bool MoveFileAside(const std::wstring& path, const std::wstring& folder) {
    if (!EnsureFolder(folder)) return false;
    const std::wstring name = path.substr(path.find_last_of(L"\\/") + 1);
    const std::size_t dot = name.rfind(L'.');
    const std::wstring place = folder + L"\\";
    std::wstring free = name;
    for (int number = 2; !MoveFileW(path.c_str(), (place + free).c_str()); ++number) {
        const DWORD error = GetLastError();
        if (error != ERROR_ALREADY_EXISTS && error != ERROR_FILE_EXISTS) return false;
        free = name;
        free.insert(dot, L" ()").insert(dot + 2, std::to_wstring(number));
    }
    return true;
}

bool WriteFileBytes(const std::wstring& path, ByteView bytes) {
    EnsureFolder(ParentFolder(path));
    const FileOwner file = OpenFile(path, GENERIC_WRITE, CREATE_ALWAYS);
    if (!file) return false;
    DWORD written = 0;
    const DWORD size = static_cast<DWORD>(bytes.size());
    if (!WriteFile(file.Get(), bytes.data(), size, &written, nullptr)) return false;
    // Where the disk fills up, some systems write a part and call that a success.
    if (written != bytes.size()) return false;
    // "Saved" is said only when a pulled plug can no longer take it back.
    return FlushFileBuffers(file.Get()) != 0 || !CanFlush(GetLastError());
}

bool EnsureFolder(const std::wstring& path) {
    if (path.empty() || IsFolder(path)) return true;
    EnsureFolder(ParentFolder(path));
    return CreateDirectoryW(path.c_str(), nullptr) != 0 || IsFolder(path);
}

void ForEachFile(const std::wstring& folder, const std::wstring& pattern,
                 const std::function<bool(const std::wstring& name)>& visit) {
    WIN32_FIND_DATAW found{};
    const HANDLE handle = FindFirstFileW((folder + L"\\" + pattern).c_str(), &found);
    const FindOwner search(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
    if (!search) return;
    do {
        const bool isFile = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
        if (isFile && !visit(found.cFileName)) return;
    } while (FindNextFileW(search.Get(), &found));
}

}  // namespace tessaline
