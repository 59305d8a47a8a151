#include "store/local_store.h"

#include <filesystem>

#include "platform/files.h"
#include "tests/support/readable.h"

using namespace tessaline;

TEST_CASE("The data folders stand below the local application data") {
    const LocalStore store = LocalStoreBelow(L".");
    CHECK(store.BaseFolder == L".\\NORVAK\\Tessaline");
    CHECK(store.EstimatesFolder == L".\\NORVAK\\Tessaline\\Estimates");
}

TEST_CASE("Starting twice finds the folders of the first start") {
    const LocalStore first = PrepareDataFolders();
    CHECK(std::filesystem::is_directory(first.EstimatesFolder));
    const LocalStore second = PrepareDataFolders();
    CHECK(second.EstimatesFolder == first.EstimatesFolder);
    CHECK(std::filesystem::path(first.BaseFolder).is_absolute());
}
