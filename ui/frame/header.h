// The band at the top of the main window: banner, title, hints and the maker's contact details.
#pragma once

#include <windows.h>

namespace tessaline {

/// Loads the banner picture from the program's resources. Without one the header paints white.
void LoadHeaderBanner();
void ReleaseHeaderBanner();

LRESULT HandleHeaderMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace tessaline
