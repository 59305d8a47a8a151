// The wait cursor while the program reads.
#pragma once

#include <windows.h>

namespace tessaline {

/// Shows the wait cursor for the time of a scope and gives the earlier one back on every way out.
class WaitCursor {
  public:
    WaitCursor() noexcept : previous_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() { SetCursor(previous_); }

  private:
    HCURSOR previous_;
};

}  // namespace tessaline
