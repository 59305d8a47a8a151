#include "platform/theme.h"

#include "platform/scale.h"

namespace tessaline {
namespace {

Theme theme;

struct FontRow {
    FontOwner Theme::*font;
    int points;
    int weight;
};

constexpr FontRow kFonts[] = {
    {&Theme::uiFont, 9, FW_NORMAL},       {&Theme::labelFont, 8, FW_NORMAL},
    {&Theme::smallFont, 7, FW_NORMAL},    {&Theme::boldFont, 9, FW_SEMIBOLD},
    {&Theme::titleFont, 20, FW_SEMIBOLD}, {&Theme::sectionFont, 12, FW_SEMIBOLD},
    {&Theme::totalFont, 17, FW_SEMIBOLD},
};

HFONT MakeFont(int points, int weight) {
    // A negative height asks for the height of the characters, without the leading above them.
    return CreateFontW(-MulDiv(points, ScreenDpi(), 72), 0, 0, 0, weight, FALSE, FALSE, FALSE,
                       DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                       DEFAULT_PITCH | FF_DONTCARE, L"Segoe UI");
}

}  // namespace

const Theme& CurrentTheme() {
    return theme;
}

void CreateTheme() {
    for (const FontRow& row : kFonts) (theme.*row.font).Reset(MakeFont(row.points, row.weight));
    if (theme.pageBrush) return;
    theme.pageBrush.Reset(CreateSolidBrush(kPageColour));
    theme.whiteBrush.Reset(CreateSolidBrush(kWhiteColour));
    theme.errorFillBrush.Reset(CreateSolidBrush(kErrorFillColour));
}

void ReleaseTheme() {
    theme = Theme{};
}

}  // namespace tessaline
