#include "document/page_transform.h"

namespace tessaline {
namespace {

constexpr double kPageAspect = kPageWidth / kPageHeight;

}  // namespace

PageTransform StretchPageOver(const RECT& area) {
    return {area.left,
            area.top,
            area.right,
            area.bottom,
            (area.right - area.left) / kPageWidth,
            (area.bottom - area.top) / kPageHeight};
}

RECT PageArea(const PageTransform& transform) {
    return {transform.left, transform.top, transform.right, transform.bottom};
}

RECT MapRect(const PageTransform& transform, const PageRect& rect) {
    const auto deviceX = [&](int x) {
        return static_cast<LONG>(x * transform.scaleX) + transform.left;
    };
    const auto deviceY = [&](int y) {
        return static_cast<LONG>(y * transform.scaleY) + transform.top;
    };
    return {deviceX(rect.x), deviceY(rect.y), deviceX(rect.x + rect.w), deviceY(rect.y + rect.h)};
}

PageTransform PreviewTransform(int clientWidth, int clientHeight) {
    constexpr int kTop = 55;           // room for the buttons and the page label
    constexpr int kVerticalRoom = 82;  // that and 27 pixels below the page
    constexpr int kSideRoom = 40;

    int height = clientHeight - kVerticalRoom;
    int width = static_cast<int>(height * kPageAspect);
    if (width > clientWidth - kSideRoom) {
        width = clientWidth - kSideRoom;
        height = static_cast<int>(width / kPageAspect);
    }
    return StretchPageOver(
        {(clientWidth - width) / 2, kTop, (clientWidth + width) / 2, kTop + height});
}

PageTransform PrintTransform(int printableWidth, int printableHeight) {
    const int marginX = static_cast<int>(printableWidth * 0.04);
    const int marginY = static_cast<int>(printableHeight * 0.035);
    return StretchPageOver(
        {marginX, marginY, printableWidth - marginX, printableHeight - marginY});
}

}  // namespace tessaline
