#include "ops/resize_geometry.h"

#include <algorithm>

#include "ops/view_margin.h"

namespace {

struct Size {
    double dWidth;
    double dHeight;
};

// The distance from the edge that stays to the pointer; negative when the pointer has crossed that edge.
double Reach(Edge moved, double dNear, double dFar, double dPointer) {
    switch (moved) {
    case Edge::Near: return dFar - dPointer;
    case Edge::Far: return dPointer - dNear;
    default: return dFar - dNear;
    }
}

// Keeps the proportions of `old`: the larger factor wins, then the floor applies to the height and after it
// to the width.
Size Proportional(Size wanted, Size old) {
    const double dFactorX = wanted.dWidth / old.dWidth;
    const double dFactorY = wanted.dHeight / old.dHeight;
    Size size = wanted;
    if (dFactorX > dFactorY) {
        size.dHeight = dFactorX * old.dHeight;
    } else {
        size.dWidth = dFactorY * old.dWidth;
    }
    if (size.dHeight < LeastResizedSide) {
        size = {old.dWidth * LeastResizedSide / old.dHeight, LeastResizedSide};
    }
    if (size.dWidth < LeastResizedSide) {
        size = {LeastResizedSide, old.dHeight * LeastResizedSide / old.dWidth};
    }
    return size;
}

Size ResizedSize(const CRect& rcNode, CPoint point, const HandleRow& row) {
    const Size old = {static_cast<double>(rcNode.right) - rcNode.left,
                      static_cast<double>(rcNode.bottom) - rcNode.top};
    Size size = {Reach(row.horizontal, rcNode.left, rcNode.right, point.x),
                 Reach(row.vertical, rcNode.top, rcNode.bottom, point.y)};
    // A node without width or height has no proportions to keep.
    if (row.IsCorner() && old.dWidth > 0 && old.dHeight > 0) {
        return Proportional(size, old);
    }
    if (row.horizontal != Edge::None) {
        size.dWidth = std::max(size.dWidth, LeastResizedSide);
    }
    if (row.vertical != Edge::None) {
        size.dHeight = std::max(size.dHeight, LeastResizedSide);
    }
    return size;
}

} // namespace

CPoint ClampedPointer(CPoint point, int nHandle, const CRect& rcView) {
    const HandleRow& row = HandleOf(nHandle);
    if (row.horizontal == Edge::Near) {
        point.x = std::min<int>(point.x, rcView.right - ViewMargin);
    }
    if (row.vertical == Edge::Near) {
        point.y = std::min<int>(point.y, rcView.bottom - ViewMargin);
    }
    if (row.horizontal == Edge::Far) {
        point.x = std::max<int>(point.x, rcView.left + ViewMargin);
    }
    if (row.vertical == Edge::Far) {
        point.y = std::max<int>(point.y, rcView.top + ViewMargin);
    }
    return point;
}

Corners ResizedCorners(const CRect& rcNode, CPoint point, int nHandle) {
    const HandleRow& row = HandleOf(nHandle);
    const Size size = ResizedSize(rcNode, point, row);
    const bool bLeftMoves = row.horizontal == Edge::Near;
    const bool bTopMoves = row.vertical == Edge::Near;
    const double dLeft = bLeftMoves ? rcNode.right - size.dWidth : rcNode.left;
    const double dTop = bTopMoves ? rcNode.bottom - size.dHeight : rcNode.top;
    const double dRight = dLeft + size.dWidth;
    const double dBottom = dTop + size.dHeight;
    return {{{dLeft, dTop}, {dRight, dTop}, {dRight, dBottom}, {dLeft, dBottom}}};
}
