// One axis of a rectangle, so that what holds for both axes is written once.
#pragma once

#include <afxwin.h>

#include "ops/saturate.h"

enum class Axis { Horizontal, Vertical };

/// The left or top edge, and the right or bottom edge.
inline long long NearEdge(const CRect& rc, Axis axis) { return axis == Axis::Horizontal ? rc.left : rc.top; }
inline long long FarEdge(const CRect& rc, Axis axis) {
    return axis == Axis::Horizontal ? rc.right : rc.bottom;
}
inline long long Extent(const CRect& rc, Axis axis) { return FarEdge(rc, axis) - NearEdge(rc, axis); }
/// Width and height, saturated.
inline CSize ExtentOf(const CRect& rc) {
    return CSize(Saturated(Extent(rc, Axis::Horizontal)), Saturated(Extent(rc, Axis::Vertical)));
}
/// A point moved, and a rectangle at a point; what lies beyond 32 bits stays at their limits.
inline CPoint Moved(CPoint point, CSize offset) {
    return CPoint(Saturated(static_cast<long long>(point.x) + offset.cx),
                  Saturated(static_cast<long long>(point.y) + offset.cy));
}
inline CRect RectAt(CPoint ptCorner, CSize size) { return CRect(ptCorner, Moved(ptCorner, size)); }
/// A distance along one axis.
inline CSize Along(Axis axis, long long nDistance) {
    const int n = Saturated(nDistance);
    return axis == Axis::Horizontal ? CSize(n, 0) : CSize(0, n);
}
