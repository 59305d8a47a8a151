// What the main window's buttons and controls do.
#pragma once

#include <windows.h>

namespace tessaline {

/// Runs the command of a control. False when the control has none for this notification.
bool RunCommand(int id, int notification);

/// Runs the command that a double click in a list stands for. False for other notifications.
bool RunListNotification(const NMHDR& notification);

/// Whether the program may close: asks the user when changes would be lost.
[[nodiscard]] bool MayClose();

}  // namespace tessaline
