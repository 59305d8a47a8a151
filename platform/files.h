// Whole files, listings and folders. Paths are passed to Windows as they stand: nothing is added,
// normalised or made absolute.
#pragma once

#include <functional>
#include <string>

#include "platform/bytes.h"

namespace tessaline {

/// The whole content of a file; empty for a file that is missing, unreadable, empty or larger than
/// 256 MB.
[[nodiscard]] Bytes ReadFileBytes(const std::wstring& path);

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
