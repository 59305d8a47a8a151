#include "ui/frame/header.h"

#include <algorithm>

#include "model/product.h"
#include "platform/scale.h"
#include "platform/theme.h"
#include "platform/window.h"
#include "ui/resource_ids.h"

namespace tessaline {
namespace {

BitmapOwner banner;

// One line of text between two corners, in pixels at 96 DPI.
struct HeaderText {
    const wchar_t* text;
    FontOwner Theme::*font;
    COLORREF colour;
    RECT place;
};

constexpr HeaderText kLeftTexts[] = {
    {L"Good Faith Estimate", &Theme::titleFont, kNavyColour, {34, 25, 374, 61}},
    {L"Enter the estimate, then preview, print, or save the finished document.",
     &Theme::labelFont,
     kMutedColour,
     {34, 62, 434, 84}},
    {L"Estimate form ready. Enter patient and provider information below.",
     &Theme::labelFont,
     kMutedColour,
     {34, 86, 454, 108}},
};

// Their x positions count from the left edge of the right-hand block.
constexpr HeaderText kRightTexts[] = {
    {kMakerWebAddress, &Theme::boldFont, kAccentColour, {0, 24, 250, 46}},
    {kMakerSupportPhone, &Theme::boldFont, kNavyColour, {0, 49, 250, 71}},
    {kProductName, &Theme::labelFont, kMutedColour, {0, 75, 250, 93}},
};

void DrawHeaderText(HDC context, const HeaderText& row, int offset, UINT format) {
    const SelectGuard font(context, (CurrentTheme().*row.font).Get());
    SetTextColor(context, row.colour);
    RECT place{Scale(row.place.left + offset), Scale(row.place.top),
               Scale(row.place.right + offset), Scale(row.place.bottom)};
    DrawTextW(context, row.text, -1, &place, format | DT_NOPREFIX);
}

void DrawBanner(HDC context, const RECT& client) {
    if (!banner) return;
    BITMAP size{};
    GetObjectW(banner.Get(), sizeof(size), &size);
    const DeviceContextOwner source(CreateCompatibleDC(context));
    const SelectGuard picture(source.Get(), banner.Get());
    SetStretchBltMode(context, HALFTONE);
    SetBrushOrgEx(context, 0, 0, nullptr);  // as HALFTONE requires
    StretchBlt(context, 0, 0, client.right, client.bottom, source.Get(), 0, 0, size.bmWidth,
               size.bmHeight, SRCCOPY);
}

void PaintHeader(HWND window) {
    const PaintScope paint(window);
    const HBRUSH white = CurrentTheme().whiteBrush.Get();
    RECT client{};
    GetClientRect(window, &client);
    FillRect(paint.Get(), &client, white);
    DrawBanner(paint.Get(), client);
    SetBkMode(paint.Get(), TRANSPARENT);
    for (const HeaderText& row : kLeftTexts) DrawHeaderText(paint.Get(), row, 0, DT_LEFT);
    // In a narrow window the block is cut off at the right rather than drawn over the title.
    const int blockLeft = std::max(735, Unscale(client.right) - 285);
    const RECT block{Scale(blockLeft - 18), 0, client.right, client.bottom};
    FillRect(paint.Get(), &block, white);
    for (const HeaderText& row : kRightTexts) {
        DrawHeaderText(paint.Get(), row, blockLeft, DT_RIGHT);
    }
}

}  // namespace

void LoadHeaderBanner() {
    banner.Reset(static_cast<HBITMAP>(LoadImageW(ProgramInstance(), MAKEINTRESOURCEW(IDB_BANNER),
                                                 IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
}

void ReleaseHeaderBanner() {
    banner.Reset();
}

LRESULT HandleHeaderMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_PAINT) return DefWindowProcW(window, message, wParam, lParam);
    PaintHeader(window);
    return 0;
}

}  // namespace tessaline
