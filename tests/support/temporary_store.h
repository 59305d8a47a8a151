// Data folders of a test's own: a fresh folder below the system's temporary folder, removed with
// everything in it when the test ends.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

#include "platform/files.h"
#include "platform/handles.h"
#include "platform/local_store.h"
#include "store/envelope.h"
#include "store/native_format.h"

namespace tessaline {

class TemporaryStore : public LocalStore {
  public:
    TemporaryStore() {
        static int count = 0;
        folder_ /= L"tessaline-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
                   std::to_wstring(++count);
        // A run with the same process id that was ended early may have left its folder.
        Remove();
        LocalStore::operator=(LocalStoreBelow(folder_.wstring()));
        EnsureFolder(EstimatesFolder);
    }
    TemporaryStore(const TemporaryStore&) = delete;
    TemporaryStore& operator=(const TemporaryStore&) = delete;
    ~TemporaryStore() { Remove(); }

    /// The path of a file in the estimates folder.
    [[nodiscard]] std::wstring Path(const std::wstring& name) const {
        return EstimatesFolder + L"\\" + name;
    }

    /// Writes a file into the estimates folder.
    bool Put(const std::wstring& name, ByteView bytes) const {
        return WriteFileBytes(Path(name), bytes);
    }

    /// Writes a record as it is, which `SaveEstimate` would stamp.
    bool PutEstimate(const std::wstring& name, const Estimate& estimate) const {
        std::wstring error;
        return Put(name, ProtectEstimateData(WriteNativeEstimate(estimate), error));
    }

    /// Keeps a file open, so that nobody else can open it unless it is shared.
    [[nodiscard]] FileOwner Lock(const std::wstring& name, DWORD share = 0) const {
        return FileOwner(CreateFileW(Path(name).c_str(), GENERIC_READ | GENERIC_WRITE, share,
                                     nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    }

  private:
    void Remove() const {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    std::filesystem::path folder_ = std::filesystem::temp_directory_path();
};

}  // namespace tessaline
