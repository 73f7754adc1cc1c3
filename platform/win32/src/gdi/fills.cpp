#include "stroke.h"

#include <algorithm>
#include <array>

namespace win32 {

namespace {

// The four strips of `outer` around `inner`, which lies within it; none of their pixels is in two.
std::array<RECT, 4> Frame(const RECT& outer, const RECT& inner) {
    return {{{outer.left, outer.top, outer.right, inner.top},
             {outer.left, inner.bottom, outer.right, outer.bottom},
             {outer.left, inner.top, inner.left, inner.bottom},
             {inner.right, inner.top, outer.right, inner.bottom}}};
}

// What is left inside a frame of this thickness; where that is nothing, an empty rectangle at its middle.
RECT Inside(const RECT& outer, LONG thickness) {
    RECT inner = outer;
    InflateRect(&inner, -thickness, -thickness);
    if (inner.left > inner.right) {
        inner.left = inner.right = (outer.left + outer.right) / 2;
    }
    if (inner.top > inner.bottom) {
        inner.top = inner.bottom = (outer.top + outer.bottom) / 2;
    }
    return inner;
}

void FillFrame(const Canvas& canvas, const RECT& outer, const RECT& inner, DWORD ink, int rop) {
    for (const RECT& strip : Frame(outer, inner)) {
        FillArea(canvas, strip, ink, rop);
    }
}

// Clockwise from the top left corner; one pixel high or wide it is a single line.
void DotFrame(const Canvas& canvas, const Stroke& stroke, const RECT& rect) {
    const LONG right = rect.right - 1;
    const LONG bottom = rect.bottom - 1;
    if (right == rect.left || bottom == rect.top) {
        const POINT end = {right == rect.left ? right : rect.right,
                           right == rect.left ? rect.bottom : bottom};
        StrokeLine(canvas, stroke, {rect.left, rect.top}, end, 0);
        return;
    }
    const std::array<POINT, 5> corners = {{{rect.left, rect.top},
                                           {right, rect.top},
                                           {right, bottom},
                                           {rect.left, bottom},
                                           {rect.left, rect.top}}};
    unsigned phase = 0;
    for (size_t i = 0; i + 1 < corners.size(); ++i) {
        phase = StrokeLine(canvas, stroke, corners[i], corners[i + 1], phase);
    }
}

void FillWithBrush(DeviceContext& context, const Canvas& canvas, const RECT& area) {
    if (!context.brush->hollow) {
        FillArea(canvas, area, PixelOf(canvas, context.brush->color), context.rop);
    }
}

void DrawRectangle(DeviceContext& context, const Canvas& canvas, const RECT& rect, const RECT& outer) {
    const Stroke stroke = StrokeOf(context, canvas);
    const RECT inner = Inside(outer, stroke.width);
    if (stroke.dotted) {
        DotFrame(canvas, stroke, rect);
    } else {
        FillFrame(canvas, outer, inner, stroke.ink, stroke.rop);
    }
    FillWithBrush(context, canvas, inner);
}

BOOL FillDevice(DeviceContext& context, const RECT& area, COLORREF color, int rop) {
    Canvas canvas;
    if (OpenForDrawing(context, area, &canvas)) {
        FillArea(canvas, area, PixelOf(canvas, color), rop);
    }
    return TRUE;
}

} // namespace

} // namespace win32

using namespace win32;

BOOL Rectangle(HDC dc, int left, int top, int right, int bottom) {
    DeviceContext* context = FindDc(dc);
    if (!context) {
        return FALSE;
    }
    const RECT rect = ToDeviceRect(*context, left, top, right, bottom);
    const RECT outer = OuterEdge(*context, rect);
    Canvas canvas;
    if (IsRectEmpty(&rect) || !OpenForDrawing(*context, outer, &canvas)) {
        return TRUE;
    }
    if (context->pen->style == PS_NULL) {
        FillWithBrush(*context, canvas, outer);
    } else {
        DrawRectangle(*context, canvas, rect, outer);
    }
    return TRUE;
}

int FillRect(HDC dc, LPCRECT rect, HBRUSH handle) {
    DeviceContext* context = FindDc(dc);
    const Brush* brush = FindBrush(handle);
    if (!context || !rect || !brush) {
        return FALSE;
    }
    if (brush->hollow || IsRectEmpty(rect)) {
        return TRUE;
    }
    return FillDevice(*context, ToDeviceRect(*context, rect->left, rect->top, rect->right, rect->bottom),
                      brush->color, R2_COPYPEN);
}

int FrameRect(HDC dc, LPCRECT rect, HBRUSH handle) {
    DeviceContext* context = FindDc(dc);
    const Brush* brush = FindBrush(handle);
    if (!context || !rect || !brush) {
        return FALSE;
    }
    const RECT outer = ToDeviceRect(*context, rect->left, rect->top, rect->right, rect->bottom);
    Canvas canvas;
    if (!brush->hollow && !IsRectEmpty(rect) && OpenForDrawing(*context, outer, &canvas)) {
        FillFrame(canvas, outer, Inside(outer, 1), PixelOf(canvas, brush->color), R2_COPYPEN);
    }
    return TRUE;
}

BOOL PatBlt(HDC dc, int x, int y, int width, int height, DWORD operation) {
    DeviceContext* context = FindDc(dc);
    if (!context) {
        return FALSE;
    }
    // In 64 bits the far corner may lie beyond any coordinate; there it is out of reach anyway.
    const auto far = [](int near, int size) {
        return static_cast<int>(
            std::clamp<LONGLONG>(static_cast<LONGLONG>(near) + size, INT32_MIN, INT32_MAX));
    };
    const RECT area = ToDeviceRect(*context, x, y, far(x, width), far(y, height));
    switch (operation) {
    case PATCOPY:
        return context->brush->hollow || FillDevice(*context, area, context->brush->color, R2_COPYPEN);
    case PATINVERT:
        return context->brush->hollow || FillDevice(*context, area, context->brush->color, R2_XORPEN);
    case DSTINVERT: return FillDevice(*context, area, 0, R2_NOT);
    case BLACKNESS: return FillDevice(*context, area, RGB(0, 0, 0), R2_COPYPEN);
    case WHITENESS: return FillDevice(*context, area, RGB(255, 255, 255), R2_COPYPEN);
    default: return FailWith(ERROR_INVALID_PARAMETER);
    }
}

COLORREF SetPixel(HDC dc, int x, int y, COLORREF color) {
    DeviceContext* context = FindDc(dc);
    const POINT at = context ? ToDevice(*context, x, y) : POINT{};
    Canvas canvas;
    if (!context || !IsReachable(at) ||
        !OpenForDrawing(*context, {at.x, at.y, at.x + 1, at.y + 1}, &canvas)) {
        return CLR_INVALID;
    }
    DWORD* pixel = canvas.At(at.x, at.y);
    *pixel = PixelOf(canvas, color);
    return SwapRedBlue(*pixel);
}

COLORREF GetPixel(HDC dc, int x, int y) {
    const DeviceContext* context = FindDc(dc);
    const POINT at = context ? ToDevice(*context, x, y) : POINT{};
    Canvas canvas;
    if (!context || !OpenCanvas(*context, &canvas) || !PtInRect(&canvas.clip, at)) {
        return CLR_INVALID;
    }
    return SwapRedBlue(*canvas.At(at.x, at.y));
}
