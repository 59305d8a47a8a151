// The mapping of page units onto a device. A page is 816 units wide and 1056 high, US Letter at 96
// units per inch, with the origin at its top left.
#pragma once

#include <windows.h>

namespace tessaline {

inline constexpr double kPageWidth = 816.0;    // page units
inline constexpr double kPageHeight = 1056.0;  // page units

/// A rectangle in page units: its top left corner and its size.
struct PageRect {
    int x;
    int y;
    int w;
    int h;
};

/// Where a page lies on its device, in device pixels, and how many of them a page unit takes. The
/// two axes are independent: a page is stretched to its place and need not keep its proportions.
struct PageTransform {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
    double scaleX;
    double scaleY;
};

/// The transform that stretches a page over `area`, in device pixels.
[[nodiscard]] PageTransform StretchPageOver(const RECT& area);

/// The device rectangle of the whole page.
[[nodiscard]] RECT PageArea(const PageTransform& transform);

/// The device rectangle of a rectangle in page units. Each edge is cut to whole pixels by itself,
/// so boxes that share an edge on the page share it on the device.
[[nodiscard]] RECT MapRect(const PageTransform& transform, const PageRect& rect);

/// The page in the preview: as large as the client area (in pixels) allows below the buttons,
/// centred, in its own proportions. A client area too small for it gives an empty or inverted
/// page.
[[nodiscard]] PageTransform PreviewTransform(int clientWidth, int clientHeight);

/// The page on paper: the printable area (in device pixels) less a small margin, each axis
/// stretched by itself.
[[nodiscard]] PageTransform PrintTransform(int printableWidth, int printableHeight);

}  // namespace tessaline
