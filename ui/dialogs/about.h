// The About box.
#pragma once

#include <windows.h>

namespace tessaline {

/// Shows the box until the user closes it.
void ShowAbout(HWND owner);

}  // namespace tessaline
