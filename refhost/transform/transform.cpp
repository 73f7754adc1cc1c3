#include "host/transform.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

LONG Truncated(double dValue) {
    constexpr double Low = std::numeric_limits<LONG>::min();
    constexpr double High = std::numeric_limits<LONG>::max();
    if (std::isnan(dValue)) {
        return 0;
    }
    return static_cast<LONG>(std::clamp(dValue, Low, High));
}

/// Above 0 on one side of the line from `a` to `b`, below 0 on the other.
double SideOf(const CTxPoint& a, const CTxPoint& b, const CTxPoint& point) {
    return (b.x - a.x) * (point.y - a.y) - (b.y - a.y) * (point.x - a.x);
}

/// The outline's bounds; they decide where corners lie on one line, where no side tells inside from outside.
bool InBounds(const CTxPoint& point, const CTxPoint* pCorners) {
    const auto [minX, maxX] = std::minmax({pCorners[0].x, pCorners[1].x, pCorners[2].x, pCorners[3].x});
    const auto [minY, maxY] = std::minmax({pCorners[0].y, pCorners[1].y, pCorners[2].y, pCorners[3].y});
    return point.x >= minX && point.x <= maxX && point.y >= minY && point.y <= maxY;
}

} // namespace

void CTxParam::SetOrWH(int nWidthOrg, int nHeightOrg, int /*nKeep*/) {
    nOrgWidth = nWidthOrg;
    nOrgHeight = nHeightOrg;
}

int PtInBound(CTxPoint& point, CTxPoint* pCorners) {
    if (!pCorners || !InBounds(point, pCorners)) {
        return 0;
    }
    bool bPositive = false;
    bool bNegative = false;
    for (int i = 0; i < 4; ++i) {
        const double dSide = SideOf(pCorners[i], pCorners[(i + 1) % 4], point);
        bPositive |= dSide > 0.0;
        bNegative |= dSide < 0.0;
    }
    return bPositive && bNegative ? 0 : 1;
}

void GetBoundRect(CTxPoint* pPoints, int nCount, RECT* pRect) {
    if (!pRect) {
        return;
    }
    *pRect = RECT{0, 0, 0, 0};
    if (!pPoints || nCount <= 0) {
        return;
    }
    const auto byX = [](const CTxPoint& a, const CTxPoint& b) { return a.x < b.x; };
    const auto byY = [](const CTxPoint& a, const CTxPoint& b) { return a.y < b.y; };
    const auto [left, right] = std::minmax_element(pPoints, pPoints + nCount, byX);
    const auto [top, bottom] = std::minmax_element(pPoints, pPoints + nCount, byY);
    *pRect = RECT{Truncated(left->x), Truncated(top->y), Truncated(right->x), Truncated(bottom->y)};
}
