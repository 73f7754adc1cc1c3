#include "dc.h"

#include "platform/display.h"

namespace {

int g_dpi = 96;

} // namespace

namespace platform {

void SetDisplayDpi(int dpi) {
    if (dpi > 0) {
        g_dpi = dpi;
    }
}

int DisplayDpi() { return g_dpi; }

} // namespace platform

int GetDeviceCaps(HDC dc, int index) {
    const bool asked = index == LOGPIXELSX || index == LOGPIXELSY;
    return asked && win32::FindDc(dc) ? g_dpi : 0;
}
