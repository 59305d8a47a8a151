// The button bar above the form, with the estimate's status and the running total.
#pragma once

#include <windows.h>

namespace tessaline {

/// Makes the bar's controls and enters them in the application state.
void BuildBar(HWND bar);

/// Moves the controls at the bar's right end to fit its present width.
void LayOutBar(HWND bar);

LRESULT HandleBarMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT HandleTotalMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace tessaline
