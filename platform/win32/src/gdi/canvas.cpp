#include "canvas.h"

#include "window_tree.h"
#include "wrap.h"

#include <algorithm>

namespace win32 {

// The squares of lengths below this stay far within 64 bits.
constexpr LONG FarthestPixel = 1 << 27;

namespace {

bool OpenBitmap(const Bitmap& bitmap, Canvas* canvas) {
    canvas->pixels = bitmap.firstRow;
    canvas->stride = bitmap.stride;
    canvas->monochrome = bitmap.IsMonochrome();
    canvas->clip = {0, 0, bitmap.width, bitmap.height};
    return true;
}

bool OpenWindow(HWND handle, Canvas* canvas) {
    Window* window = g_windows.Find(handle);
    if (!window) {
        return false;
    }
    const Window& top = TopLevelOf(*window);
    canvas->pixels = top.pixels.get();
    canvas->stride = top.Width();
    canvas->offset = OriginInTop(*window);
    canvas->clip = VisibleArea(*window);
    return canvas->pixels != nullptr;
}

} // namespace

bool OpenCanvas(const DeviceContext& context, Canvas* canvas) {
    const bool opened = context.kind == DcKind::Memory ? context.bitmap && OpenBitmap(*context.bitmap, canvas)
                                                       : OpenWindow(context.window, canvas);
    if (!opened) {
        return false;
    }
    if (context.painting) {
        IntersectRect(&canvas->clip, &canvas->clip, &context.paintArea);
    }
    if (context.clipped) {
        IntersectRect(&canvas->clip, &canvas->clip, &context.clip);
    }
    return !IsRectEmpty(&canvas->clip);
}

bool OpenForDrawing(DeviceContext& context, const RECT& box, Canvas* canvas) {
    return OpenCanvas(context, canvas) && NarrowForDrawing(context, box, canvas);
}

bool NarrowForDrawing(DeviceContext& context, const RECT& box, Canvas* canvas) {
    if (!IntersectRect(&canvas->clip, &canvas->clip, &box)) {
        return false;
    }
    if (context.kind == DcKind::Window) {
        RECT drawn = canvas->clip;
        OffsetRect(&drawn, canvas->offset.x, canvas->offset.y);
        UnionRect(&context.dirty, &context.dirty, &drawn);
    }
    return true;
}

POINT ToDevice(const DeviceContext& context, int x, int y) {
    return {WrapSum(WrapDifference(x, context.windowOrg.x), context.viewportOrg.x),
            WrapSum(WrapDifference(y, context.windowOrg.y), context.viewportOrg.y)};
}

bool IsReachable(POINT point) {
    return point.x >= -FarthestPixel && point.x <= FarthestPixel && point.y >= -FarthestPixel &&
           point.y <= FarthestPixel;
}

namespace {

LONG Reach(LONG coordinate) { return std::clamp(coordinate, -FarthestPixel, FarthestPixel); }

} // namespace

RECT ToDeviceRect(const DeviceContext& context, int left, int top, int right, int bottom) {
    const POINT a = ToDevice(context, left, top);
    const POINT b = ToDevice(context, right, bottom);
    return {Reach(std::min(a.x, b.x)), Reach(std::min(a.y, b.y)), Reach(std::max(a.x, b.x)),
            Reach(std::max(a.y, b.y))};
}

DWORD PixelOf(const Canvas& canvas, COLORREF color) {
    if (!canvas.monochrome) {
        return SwapRedBlue(color);
    }
    // The usual weights of the primaries in lightness, in hundredths.
    const int lightness = 30 * GetRValue(color) + 59 * GetGValue(color) + 11 * GetBValue(color);
    return lightness * 2 > 255 * 100 ? ColorBits : 0;
}

void FillArea(const Canvas& canvas, const RECT& area, DWORD ink, int rop) {
    RECT part;
    if (!IntersectRect(&part, &area, &canvas.clip)) {
        return;
    }
    const LONG width = part.right - part.left;
    for (LONG y = part.top; y < part.bottom; ++y) {
        DWORD* row = canvas.At(part.left, y);
        if (rop == R2_COPYPEN) {
            std::fill_n(row, width, ink);
            continue;
        }
        std::for_each(row, row + width, [=](DWORD& pixel) { Plot(&pixel, ink, rop); });
    }
}

} // namespace win32
