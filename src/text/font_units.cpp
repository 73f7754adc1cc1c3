#include "text/font_units.h"

#include <windows.h>

namespace {

constexpr int PointsPerInch = 72;

// The display's vertical resolution in pixels an inch.
int DisplayDpi() {
    constexpr int DefaultDpi = 96;
    HDC hDC = GetDC(nullptr);
    if (!hDC) {
        return DefaultDpi;
    }
    const int nDpi = GetDeviceCaps(hDC, LOGPIXELSY);
    ReleaseDC(nullptr, hDC);
    return nDpi;
}

} // namespace

int font_units::PointsToPixels(int nPoints) { return MulDiv(nPoints, DisplayDpi(), PointsPerInch); }

int font_units::PixelsToNearestPoints(int nPixels) { return MulDiv(nPixels, PointsPerInch, DisplayDpi()); }
