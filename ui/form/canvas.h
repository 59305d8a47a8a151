// The window that carries the form's controls and colours them.
#pragma once

#include <windows.h>

namespace tessaline {

LRESULT HandleCanvasMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace tessaline
