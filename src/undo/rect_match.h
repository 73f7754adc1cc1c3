// When two captured rectangles count as the same.
#pragma once

#include <afxwin.h>

/// The rectangles' intersection is as wide and as high as their union.
inline bool CoverEachOther(const CRect& rc, const CRect& rcOther) {
    CRect rcCommon;
    CRect rcWhole;
    rcCommon.IntersectRect(&rc, &rcOther);
    rcWhole.UnionRect(&rc, &rcOther);
    return rcCommon.Width() == rcWhole.Width() && rcCommon.Height() == rcWhole.Height();
}
