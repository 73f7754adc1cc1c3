#include "ops/handles.h"

#include "ops/saturate.h"

Corners CornersOf(const CRect& rc) {
    const double dLeft = rc.left;
    const double dTop = rc.top;
    const double dRight = rc.right;
    const double dBottom = rc.bottom;
    return {{{dLeft, dTop}, {dRight, dTop}, {dRight, dBottom}, {dLeft, dBottom}}};
}

Corners Shifted(Corners corners, CPoint ptOrigin) {
    for (CTxPoint& corner : corners) {
        corner.x -= ptOrigin.x;
        corner.y -= ptOrigin.y;
    }
    return corners;
}

CRect HandleSquare(const Corners& corners, int nHandle) {
    const HandleRow& row = HandleOf(nHandle);
    const double dX = (corners[row.first].x + corners[row.second].x) / 2.0;
    const double dY = (corners[row.first].y + corners[row.second].y) / 2.0;
    return CRect(Truncated(dX - HandleHalfSize), Truncated(dY - HandleHalfSize),
                 Truncated(dX + HandleHalfSize), Truncated(dY + HandleHalfSize));
}

int HandleAt(const Corners& corners, CPoint point) {
    for (const int nHandle : HandleOrder) {
        if (HandleSquare(corners, nHandle).PtInRect(point)) {
            return nHandle;
        }
    }
    return NoHandle;
}
