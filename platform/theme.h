// Fonts, colours and brushes of the user interface. They live from start-up to exit.
#pragma once

#include "platform/handles.h"

namespace tessaline {

inline constexpr COLORREF kPageColour = RGB(244, 247, 249);
inline constexpr COLORREF kInkColour = RGB(30, 41, 51);
inline constexpr COLORREF kNavyColour = RGB(14, 52, 73);
inline constexpr COLORREF kAccentColour = RGB(28, 111, 154);
inline constexpr COLORREF kMutedColour = RGB(95, 112, 125);
inline constexpr COLORREF kErrorFillColour = RGB(255, 239, 239);
inline constexpr COLORREF kErrorTextColour = RGB(187, 30, 30);
inline constexpr COLORREF kTotalFillColour = RGB(224, 246, 247);
inline constexpr COLORREF kWhiteColour = RGB(255, 255, 255);

/// The drawing objects of the windows; windows and classes only borrow them.
struct Theme {
    FontOwner uiFont;
    FontOwner labelFont;
    FontOwner smallFont;
    FontOwner boldFont;
    FontOwner titleFont;
    FontOwner sectionFont;
    FontOwner totalFont;
    BrushOwner pageBrush;
    BrushOwner whiteBrush;
    BrushOwner errorFillBrush;
};

/// The theme of this process. Its members are null before `CreateTheme`.
[[nodiscard]] const Theme& CurrentTheme();

/// Creates the fonts for the current `ScreenDpi` and, the first time, the brushes (window classes
/// keep their handles).
void CreateTheme();

/// Deletes all of them. No window may be left.
void ReleaseTheme();

}  // namespace tessaline
