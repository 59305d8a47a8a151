// Whole files, listings and folders. Paths are passed to Windows as they stand: nothing is added,
// normalised or made absolute.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/bytes.h"
#include "platform/secret_bytes.h"

namespace tessaline {

/// The whole content of a file; empty for a file that is missing, unreadable, empty or larger than
/// 256 MB.
[[nodiscard]] Bytes ReadFileBytes(const std::wstring& path);

/// The same for a file that holds a key.
[[nodiscard]] SecretBytes ReadSecretFile(const std::wstring& path);

/// The first `most` bytes of a file, fewer where it is shorter, none where there is no such file;
/// null when there may be one that cannot be read.
[[nodiscard]] std::optional<Bytes> ReadFileStart(const std::wstring& path, std::uint32_t most);

/// Moves a file, with its times, into a folder, which is made where it is missing. The name has an
/// extension. Where a file of that name lies there already, the moved one gets a number:
/// "a (2).gfe". False when it could not be moved and is still in its place.
[[nodiscard]] bool MoveFileAside(const std::wstring& path, const std::wstring& folder);

/// Replaces the content of a file, creating it and the folders above it where they are missing.
/// True once every byte has been handed to the disk. The file is overwritten in place: after a
/// failure it may be truncated.
[[nodiscard]] bool WriteFileBytes(const std::wstring& path, ByteView bytes);

/// Creates a folder and every missing folder above it, outermost first. True when the whole path
/// exists afterwards.
bool EnsureFolder(const std::wstring& path);

/// Calls `visit(name)` for every file (no folder) in `folder` whose name matches `pattern`, by
/// Windows' own rules and in Windows' order, until `visit` returns false. A folder that cannot be
/// listed has no files.
void ForEachFile(const std::wstring& folder, const std::wstring& pattern,
                 const std::function<bool(const std::wstring& name)>& visit);

}  // namespace tessaline
