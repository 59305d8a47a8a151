// The main window: its classes, its creation and its procedure.
#pragma once

#include <windows.h>

namespace tessaline {

/// Makes the main window and everything in it, hidden, with a new estimate in the form. The theme
/// and the application state must be there. Null when it cannot be made.
[[nodiscard]] HWND CreateMainWindow();

}  // namespace tessaline
