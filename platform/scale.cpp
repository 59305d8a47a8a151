#include "platform/scale.h"

#include <algorithm>

#include "platform/handles.h"

namespace tessaline {
namespace {

constexpr int kBaseDpi = 96;
int screenDpi = kBaseDpi;

}  // namespace

int ScreenDpi() {
    return screenDpi;
}

void SetScreenDpi(int dpi) {
    screenDpi = std::max(dpi, kBaseDpi);
}

int ReadScreenDpi() {
    const WindowDeviceContext screen(nullptr);
    return GetDeviceCaps(screen.Get(), LOGPIXELSX);
}

int Scale(int pixels) {
    return MulDiv(pixels, screenDpi, kBaseDpi);
}

int Unscale(int pixels) {
    return MulDiv(pixels, kBaseDpi, screenDpi);
}

}  // namespace tessaline
