// The window that scrolls the form's canvas up and down.
#pragma once

#include <windows.h>

namespace tessaline {

LRESULT HandleScrollMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace tessaline
