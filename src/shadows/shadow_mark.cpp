#include "shadows/shadow_mark.h"

#include "ops/areas.h"
#include "ops/axis.h"
#include "ops/drawing.h"
#include "ops/saturate.h"

namespace {

constexpr int HandleSize = 12;      ///< client pixels; so the next three
constexpr int HandleDistance = 12;  ///< from the shadow's right edge to the handle's square
constexpr int ConnectorLength = 18; ///< to the handle's centre
constexpr int MarkWidth = 31;       ///< what the mark needs right of the shadow
constexpr int MarkHeight = 1;
constexpr COLORREF OutlineColor = RGB(255, 255, 255);
constexpr COLORREF HandleColor = RGB(0, 255, 0);

// The middle of the right edge.
CPoint HandleAnchor(const Corners& corners) {
    return CPoint(Truncated(corners[TopRight].x),
                  Truncated((corners[TopRight].y + corners[BottomRight].y) / 2.0));
}

CRect Widened(const CRect& rc, int nRight, int nBottom) {
    return CRect(rc.TopLeft(), Moved(rc.BottomRight(), CSize(nRight, nBottom)));
}

void DrawHandle(CDC& dc, const CRect& rc) {
    const CFilledShapeScope shape(dc, HandleColor);
    if (shape) {
        dc.Ellipse(&rc);
    }
}

} // namespace

Corners ShadowCorners(CTool& tool, const CImgNode& object) {
    return CornersOfNode(tool, object.m_pShadowNode);
}

CRect ShadowHandle(const Corners& corners) {
    const CPoint ptCorner = Moved(HandleAnchor(corners), CSize(HandleDistance, -HandleSize / 2));
    return RectAt(ptCorner, CSize(HandleSize, HandleSize));
}

CRect ShadowMarkRect(const Corners& corners) { return Widened(BoundsOf(corners), MarkWidth, MarkHeight); }

bool IsOnShadowHandle(CTool& tool, const CImgNode& object, CPoint point) {
    return object.m_pShadowNode && ShadowHandle(ShadowCorners(tool, object)).PtInRect(point);
}

bool IsOnShadowMark(CTool& tool, const CImgNode& object, CPoint point) {
    if (!object.m_pShadowNode) {
        return false;
    }
    const Corners corners = ShadowCorners(tool, object);
    return Widened(BoundsOf(corners), 1, 1).PtInRect(point) || ShadowHandle(corners).PtInRect(point);
}

void DrawShadowMark(CDC& dc, CPoint ptOrigin, const Corners& corners) {
    const Corners shifted = Shifted(corners, ptOrigin);
    const CPoint ptAnchor = HandleAnchor(shifted);
    {
        CDottedPenScope pen(dc, OutlineColor);
        pen.Outline(shifted);
        pen.Line(ptAnchor, Moved(ptAnchor, CSize(ConnectorLength, 0)));
    }
    DrawHandle(dc, ShadowHandle(shifted));
}
