// The classes of the main window and its parts.
#pragma once

namespace tessaline {

inline constexpr wchar_t kMainClass[] = L"NORVAK_GFE_NATIVE_MAIN";
inline constexpr wchar_t kHeaderClass[] = L"NORVAK_GFE_NATIVE_HEADER";
inline constexpr wchar_t kScrollClass[] = L"NORVAK_GFE_NATIVE_SCROLL";
inline constexpr wchar_t kCanvasClass[] = L"NORVAK_GFE_NATIVE_CANVAS";
inline constexpr wchar_t kBarClass[] = L"NORVAK_GFE_NATIVE_BAR";
inline constexpr wchar_t kTotalClass[] = L"NORVAK_GFE_NATIVE_TOTAL";

}  // namespace tessaline
