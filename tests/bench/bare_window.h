// A window as the floor of the program's start makes it.
#pragma once

#include <windows.h>

namespace tessaline::bench {

/// One window of a tree, in order of creation; a parent comes before its children. A file of them
/// is what the bare program reads.
struct BareWindow {
    wchar_t className[32];
    wchar_t text[128];
    DWORD style;
    DWORD extendedStyle;
    RECT box;    ///< in pixels: left, top, width, height
    int parent;  ///< index of the parent; -1 for the top window
    int fontOf;  ///< index of the first window with the same font; -1 for none
    LOGFONTW font;
};

}  // namespace tessaline::bench
