#pragma once

// Lines of a context's pen.

#include "canvas.h"

namespace win32 {

// The dotted pen: so many pixels on, as many off.
constexpr unsigned DotLength = 3;
constexpr unsigned DotPeriod = 2 * DotLength;

struct Stroke {
    DWORD ink;
    DWORD gapInk;
    bool dotted;
    bool gapsPainted;
    int width;
    int rop;
};

Stroke StrokeOf(const DeviceContext& context, const Canvas& canvas);
/// How far a pen reaches beyond the line's own pixels.
RECT StrokeBox(const DeviceContext& context, POINT from, POINT to);
/// The outer edge of a shape drawn in the rectangle: a wide pen's outline stands half outside the shape's own
/// edge pixels; without an outline the last row and column go.
RECT OuterEdge(const DeviceContext& context, const RECT& rect);
/// The pixels from `from` up to, not with, `to` (device pixels); a wide pen draws the last one, too. A dotted
/// one begins `phase` pixels into its pattern; the answer is the phase at `to`.
unsigned StrokeLine(const Canvas& canvas, const Stroke& stroke, POINT from, POINT to, unsigned phase);

} // namespace win32
