// Builds the controls of the form and of the button bar from their rows.
#pragma once

#include <windows.h>

#include "ui/form_rows.h"

namespace tessaline {

/// The size of the canvas that holds the form, in pixels at 96 DPI.
inline constexpr int kCanvasWidth = 930;
inline constexpr int kCanvasHeight = 1960;

/// Makes the eight sections on the canvas, in order (which is also the focus order), and enters
/// their controls in the application state.
void BuildForm(HWND canvas);

/// Makes one button and enters it in the application state.
HWND BuildButton(HWND parent, const ButtonRow& row);

/// Makes one field, its label before it, and enters it in the application state.
HWND BuildField(HWND parent, const FieldRow& row, HFONT labelFont);

}  // namespace tessaline
