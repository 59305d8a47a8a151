// Builds the controls of the form and of the button bar from their rows.
#pragma once

#include <windows.h>

#include "ui/form/form_rows.h"

namespace tessaline {

/// Makes the eight sections on the canvas, from top to bottom, which is also the order in which
/// screen readers read them, and enters their controls in the application state.
void BuildForm(HWND canvas);

/// Makes one button and enters it in the application state. `top` is where its section begins on
/// the parent.
HWND BuildButton(HWND parent, const ButtonRow& row, int top = 0);

/// Makes one field, its label before it, likewise. `line` is where its line begins on the parent.
HWND BuildField(HWND parent, const FieldRow& row, HFONT labelFont, int line = 0);

}  // namespace tessaline
