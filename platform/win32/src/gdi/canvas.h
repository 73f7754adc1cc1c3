#pragma once

// The pixels under a device context. A drawing call maps to device pixels, opens the canvas on the box it may
// touch, leaves when nothing of that is to be seen, and loops.

#include "dc.h"

namespace win32 {

constexpr DWORD ColorBits = 0x00FFFFFF;

struct Canvas {
    DWORD* At(LONG x, LONG y) const { return pixels + (y + offset.y) * stride + (x + offset.x); }

    DWORD* pixels = nullptr;
    ptrdiff_t stride = 0;
    POINT offset{}; // Of device pixel (0, 0).
    RECT clip{};    // Device pixels that are there, to be seen, and not clipped away.
    bool monochrome = false;
};

/// False when nothing may be touched. For reading, or for asking the clip.
bool OpenCanvas(const DeviceContext& context, Canvas* canvas);
/// The same, limited to `box` (device pixels), which is noted as drawn on.
bool OpenForDrawing(DeviceContext& context, const RECT& box, Canvas* canvas);
/// The second half of this, for a canvas that is open.
bool NarrowForDrawing(DeviceContext& context, const RECT& box, Canvas* canvas);

/// A device rectangle with its corners in order, brought within what the loops can count.
RECT ToDeviceRect(const DeviceContext& context, int left, int top, int right, int bottom);
/// Whether a device point is within what the loops can count.
bool IsReachable(POINT point);

constexpr DWORD SwapRedBlue(DWORD color) {
    return ((color & 0xFF) << 16) | (color & 0xFF00) | ((color >> 16) & 0xFF);
}
/// The pixel of a colour; on a one-bit canvas the nearer of black and white.
DWORD PixelOf(const Canvas& canvas, COLORREF color);

/// Mixes a pen's or brush's pixel into the canvas.
inline void Plot(DWORD* pixel, DWORD ink, int rop) {
    switch (rop) {
    case R2_COPYPEN: *pixel = ink; break;
    case R2_XORPEN: *pixel ^= ink; break;
    case R2_NOT: *pixel ^= ColorBits; break;
    default: break;
    }
}

/// Fills the part of `area` (device pixels) that the canvas's clip leaves.
void FillArea(const Canvas& canvas, const RECT& area, DWORD ink, int rop);

} // namespace win32
