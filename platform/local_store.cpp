#include "platform/local_store.h"

#include <windows.h>

#include <shlobj.h>

#include <array>

#include "platform/files.h"

namespace tessaline {

LocalStore LocalStoreBelow(const std::wstring& applicationData) {
    LocalStore store;
    store.BaseFolder = applicationData + L"\\NORVAK\\Tessaline";
    store.EstimatesFolder = store.BaseFolder + L"\\Estimates";
    return store;
}

LocalStore PrepareDataFolders() {
    std::array<wchar_t, MAX_PATH> folder{};
    const HRESULT found =
        SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder.data());
    LocalStore store = LocalStoreBelow(SUCCEEDED(found) ? folder.data() : L".");
    EnsureFolder(store.EstimatesFolder);
    return store;
}

}  // namespace tessaline
