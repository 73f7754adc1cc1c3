#include "stroke.h"

#include <algorithm>
#include <cmath>

namespace win32 {

// The pixels of one row; empty when low is not below high.
struct Span {
    LONG low;
    LONG high;
};

namespace {

// The pixels of row y whose centres lie inside the ellipse of `box`. In units of half a pixel around the
// middle, the centres of columns and rows are whole numbers, which never lie right on the curve.
Span EllipseRow(const RECT& box, LONG y) {
    const LONG width = box.right - box.left;
    const LONG height = box.bottom - box.top;
    if (width <= 0 || y < box.top || y >= box.bottom) {
        return {0, 0};
    }
    const double up = (2.0 * (y - box.top) + 1 - height) / height;
    const double reach = width * std::sqrt(1 - up * up);
    const LONG columns = static_cast<LONG>((reach + width - 1) / 2) + 1;
    const LONG left = box.left + width - columns;
    return {left, box.left + columns};
}

RECT Row(LONG low, LONG high, LONG y) { return {low, y, high, y + 1}; }

// The row's pixels that have all four neighbours inside, which a thin outline leaves to the brush.
Span ThinInside(const RECT& box, LONG y) {
    const Span above = EllipseRow(box, y - 1);
    const Span below = EllipseRow(box, y + 1);
    const Span here = EllipseRow(box, y);
    return {std::max({here.low + 1, above.low, below.low}),
            std::min({here.high - 1, above.high, below.high})};
}

void DrawRow(const DeviceContext& context, const Canvas& canvas, Span outer, Span inner, LONG y) {
    const Stroke stroke = StrokeOf(context, canvas);
    const bool framed = context.pen->style != PS_NULL;
    const Span inside = inner.low < inner.high ? inner : Span{outer.high, outer.high};
    if (framed) {
        FillArea(canvas, Row(outer.low, inside.low, y), stroke.ink, stroke.rop);
        FillArea(canvas, Row(inside.high, outer.high, y), stroke.ink, stroke.rop);
    }
    if (!context.brush->hollow) {
        const Span filled = framed ? inside : outer;
        FillArea(canvas, Row(filled.low, filled.high, y), PixelOf(canvas, context.brush->color), stroke.rop);
    }
}

} // namespace

} // namespace win32

using namespace win32;

BOOL Ellipse(HDC dc, int left, int top, int right, int bottom) {
    DeviceContext* context = FindDc(dc);
    if (!context) {
        return FALSE;
    }
    const RECT rect = ToDeviceRect(*context, left, top, right, bottom);
    const RECT outer = OuterEdge(*context, rect);
    const LONG width = context->pen->width;
    RECT inner = outer;
    InflateRect(&inner, -width, -width);
    Canvas canvas;
    if (IsRectEmpty(&rect) || !OpenForDrawing(*context, outer, &canvas)) {
        return TRUE;
    }
    for (LONG y = canvas.clip.top; y < canvas.clip.bottom; ++y) {
        const Span inside = width == 1 ? ThinInside(outer, y) : EllipseRow(inner, y);
        DrawRow(*context, canvas, EllipseRow(outer, y), inside, y);
    }
    return TRUE;
}
