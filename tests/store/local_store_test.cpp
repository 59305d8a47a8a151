#include "store/local_store.h"

#include <windows.h>

#include <filesystem>

#include "tests/support/readable.h"

using namespace tessaline;

TEST_CASE("A start finds or makes the data folders below the local application data") {
    // Goes only where it is empty.
    RemoveDirectoryW(PrepareDataFolders().EstimatesFolder.c_str());
    const LocalStore store = PrepareDataFolders();
    CHECK(store.BaseFolder == _wgetenv(L"LOCALAPPDATA") + std::wstring(L"\\NORVAK\\Tessaline"));
    CHECK(store.EstimatesFolder == store.BaseFolder + L"\\Estimates");
    CHECK(std::filesystem::is_directory(store.EstimatesFolder));
}
