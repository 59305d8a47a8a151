// What the built program is made of: its protections, what it needs beside it, its resources.
#include <windows.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <string>

#include "platform/files.h"
#include "platform/handles.h"
#include "tests/support/readable.h"

using namespace tessaline;

namespace {

struct ModuleEnd {
    static void Free(HMODULE module) { FreeLibrary(module); }
};
using DataModule = Owner<HMODULE, ModuleEnd::Free>;

std::wstring ProgramPath() {
    const wchar_t* path = _wgetenv(L"TESSALINE_EXE");
    REQUIRE(path != nullptr);
    return path;
}

const IMAGE_NT_HEADERS64& HeadersOf(const Bytes& file) {
    REQUIRE(file.size() > 4096);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(file.data());
    return *reinterpret_cast<const IMAGE_NT_HEADERS64*>(file.data() + dos->e_lfanew);
}

// The bytes of a resource.
ByteView Resource(HMODULE module, int name, const wchar_t* type) {
    const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(name), type);
    REQUIRE(found != nullptr);
    const void* bytes = LockResource(LoadResource(module, found));
    return {static_cast<const std::uint8_t*>(bytes), SizeofResource(module, found)};
}

bool Holds(ByteView bytes, const void* part, std::size_t size) {
    const auto* first = static_cast<const std::uint8_t*>(part);
    return std::search(bytes.begin(), bytes.end(), first, first + size) != bytes.end();
}

}  // namespace

TEST_CASE("The program is protected against the usual attacks on memory") {
    const Bytes file = ReadFileBytes(ProgramPath());
    const IMAGE_NT_HEADERS64& headers = HeadersOf(file);
    constexpr int kProtections = 0x0020 /* high-entropy addresses */ |
                                 IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE |
                                 IMAGE_DLLCHARACTERISTICS_NX_COMPAT;
    CHECK((headers.OptionalHeader.DllCharacteristics & kProtections) == kProtections);
    CHECK((headers.FileHeader.Characteristics & IMAGE_FILE_RELOCS_STRIPPED) == 0);
    // Without relocations Windows could not load the program at another address.
    CHECK(headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_BASERELOC].Size > 0);
    const IMAGE_SECTION_HEADER* section = IMAGE_FIRST_SECTION(&headers);
    for (int i = 0; i < headers.FileHeader.NumberOfSections; ++i, ++section) {
        constexpr DWORD kBoth = IMAGE_SCN_MEM_WRITE | IMAGE_SCN_MEM_EXECUTE;
        CHECK((section->Characteristics & kBoth) != kBoth);
    }
#ifdef __GNUC__
    constexpr char kStackProtector[] = "stack smashing detected";
    CHECK(Holds(file, kStackProtector, sizeof(kStackProtector) - 1));
#endif
}

TEST_CASE("The program needs nothing but Windows") {
    const std::set<std::string> windows = {"advapi32.dll", "comctl32.dll", "comdlg32.dll",
                                           "gdi32.dll",    "kernel32.dll", "msvcrt.dll",
                                           "shell32.dll",  "user32.dll"};
    const DataModule module(
        LoadLibraryExW(ProgramPath().c_str(), nullptr, DONT_RESOLVE_DLL_REFERENCES));
    REQUIRE(module);
    const auto* base = reinterpret_cast<const char*>(module.Get());
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS64*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY imports =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const auto* import =
        reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
    int count = 0;
    for (; import->Name != 0; ++import, ++count) {
        std::string name = base + import->Name;
        std::transform(name.begin(), name.end(), name.begin(), [](char c) {
            return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        });
        CHECK_MESSAGE(windows.contains(name), name);
    }
    CHECK(count > 0);
}

TEST_CASE("The program carries its icon, its banner, its version and its manifest") {
    const DataModule module(
        LoadLibraryExW(ProgramPath().c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE));
    REQUIRE(module);
    // An icon group: two words, the number of pictures, then 14 bytes each that begin with the
    // width.
    const ByteView icon = Resource(module.Get(), 101, RT_GROUP_ICON);
    REQUIRE(icon.size() == 6 + 6 * 14);
    CHECK(icon[4] == 6);
    CHECK(icon[6] == 16);
    CHECK(icon[6 + 5 * 14] == 0);  // 256

    BITMAPINFOHEADER banner{};
    std::memcpy(&banner, Resource(module.Get(), 102, RT_BITMAP).data(), sizeof(banner));
    CHECK(banner.biWidth == 1600);
    CHECK(banner.biHeight == 180);
    CHECK(banner.biBitCount == 24);

    const ByteView version = Resource(module.Get(), VS_VERSION_INFO, RT_VERSION);
    constexpr wchar_t kVersion[] = L"3.0.6";
    CHECK(Holds(version, kVersion, sizeof(kVersion)));

    const ByteView manifest = Resource(module.Get(), 1, RT_MANIFEST);
    for (const std::string part : {"Microsoft.Windows.Common-Controls", "level=\"asInvoker\"",
                                   ">system<", "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"}) {
        CHECK_MESSAGE(Holds(manifest, part.data(), part.size()), part);
    }
}
