// Screen resolution. Every pixel number of the user interface is written at 96 DPI and scaled
// once, where it meets Windows.
#pragma once

namespace tessaline {

/// The DPI that `Scale` works with, at least 96.
[[nodiscard]] int ScreenDpi();

/// Sets it; values below 96 count as 96. For start-up, before the first window.
void SetScreenDpi(int dpi);

/// The horizontal DPI that the screen reports for this process.
[[nodiscard]] int ReadScreenDpi();

/// Pixels at 96 DPI to pixels of the screen.
[[nodiscard]] int Scale(int pixels);

/// Pixels of the screen to pixels at 96 DPI.
[[nodiscard]] int Unscale(int pixels);

}  // namespace tessaline
