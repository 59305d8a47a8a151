// Where the program keeps its files. The folders below are its only persistent state.
#pragma once

#include <string>

namespace tessaline {

/// The data folders, fixed after start-up. Neither path ends in a backslash; every file path is a
/// folder, a backslash and a name.
struct LocalStore {
    std::wstring BaseFolder;       ///< holds the older edition's key file "data.key"
    std::wstring EstimatesFolder;  ///< holds every estimate file, "*.gfe"
};

/// The folders below a local application-data folder.
[[nodiscard]] LocalStore LocalStoreBelow(const std::wstring& applicationData);

/// Finds the user's local application-data folder (the current folder where the shell knows none)
/// and creates the data folders below it. Does not fail: if the folders cannot be used, saves fail
/// later and lists stay empty.
[[nodiscard]] LocalStore PrepareDataFolders();

}  // namespace tessaline
