// The colours of the document: one for the preview on the screen, one in grey for paper.
#pragma once

#include <windows.h>

namespace tessaline {

/// What a part of the page is coloured with, by where the page is drawn.
struct PageColour {
    COLORREF preview;
    COLORREF print;

    [[nodiscard]] constexpr COLORREF In(bool printMode) const {
        return printMode ? print : preview;
    }
};

// clang-format off
//                                                  preview             print
inline constexpr PageColour kTitleText          {RGB( 18,  58,  80), RGB( 20,  20,  20)};
inline constexpr PageColour kSubtitleText       {RGB( 30, 139, 144), RGB( 60,  60,  60)};
inline constexpr PageColour kLabelText          {RGB(101, 116, 129), RGB( 70,  70,  70)};
inline constexpr PageColour kRuleFill           {RGB( 30, 139, 144), RGB( 80,  80,  80)};
inline constexpr PageColour kSectionFrame       {RGB(200, 210, 216), RGB(140, 140, 140)};
inline constexpr PageColour kTotalFill          {RGB(226, 245, 245), RGB(250, 250, 250)};
inline constexpr PageColour kTotalFrame         {RGB( 30, 139, 144), RGB(100, 100, 100)};
inline constexpr PageColour kTotalCaption       {RGB( 30, 139, 144), RGB( 50,  50,  50)};
inline constexpr PageColour kTotalAmount        {RGB( 18,  58,  80), RGB( 10,  10,  10)};
inline constexpr PageColour kItemsHeaderFill    {RGB( 18,  58,  80), RGB(238, 238, 238)};
inline constexpr PageColour kItemsHeaderText    {RGB(255, 255, 255), RGB( 20,  20,  20)};
inline constexpr PageColour kItemRowFrame       {RGB(200, 210, 216), RGB(185, 185, 185)};
inline constexpr PageColour kRightsFill         {RGB(255, 247, 222), RGB(255, 255, 255)};
inline constexpr PageColour kRightsFrame        {RGB(220, 195, 125), RGB(120, 120, 120)};
inline constexpr PageColour kSeparateItemFrame  {RGB(200, 210, 216), RGB(180, 180, 180)};

// The same everywhere.
inline constexpr COLORREF kBodyText       = RGB( 30,  41,  51);
inline constexpr COLORREF kMutedText      = RGB(101, 116, 129);
inline constexpr COLORREF kPageBackground = RGB(255, 255, 255);
inline constexpr COLORREF kPreviewOutline = RGB(170, 170, 170);
// clang-format on

}  // namespace tessaline
