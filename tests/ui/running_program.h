// The whole program in process: its real main window over a store of the test's own, with the
// modal windows and message boxes that its commands open.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <utility>

#include "tests/support/temporary_store.h"
#include "ui/app_state.h"

namespace tessaline {

[[nodiscard]] bool IsBox(HWND window);

/// A message box in words; `answer` receives the button with which `expected` ends, or the first.
[[nodiscard]] std::wstring DescribeBox(HWND box, const std::wstring& expected, HWND& answer);

/// Whether the wait cursor shows.
[[nodiscard]] bool IsWaiting();

/// The preview that is on top.
[[nodiscard]] HWND Preview();

/// One at a time.
class RunningProgram {
  public:
    explicit RunningProgram(int dpi);
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram();

    TemporaryStore store;
    AppState app;

    /// Handles every message that waits. The exit code when one was to quit, else -1.
    int Settle() const;

    /// From now on this user deals with every box and dialog, each time that its loop is idle.
    void LeaveTo(std::function<void(HWND modal)> user) { user_ = std::move(user); }

    /// Puts an estimate whose fields are all distinct, an older one and the older edition's key.
    void PutFiles() const;

    /// Every file loads.
    void CheckFiles() const;

    /// A form without changes is what its file holds, if it has one.
    void CheckForm() const;

    /// Closes every preview, and sees that no print job is left open.
    void CloseOutput() const;

  private:
    std::function<void(HWND)> user_;
    UINT_PTR timer_ = 0;
};

}  // namespace tessaline
