#include "ops/marks.h"

#include "ops/areas.h"
#include "ops/canvas.h"
#include "ops/drawing.h"
#include "ops/nodes.h"
#include "ops/saturate.h"

namespace {

constexpr int MarkLineWidth = 1; ///< client pixels of the plain mark's edges
constexpr COLORREF MarkColor = RGB(255, 255, 255);
constexpr COLORREF NodeFrameColor = 0x0080FF;

// Along the inside of a rectangle of the page, in a picture that starts at the origin.
void DrawInside(CDC& dc, CRect rc, CPoint ptOrigin, COLORREF crLine) {
    rc.OffsetRect(-ptOrigin.x, -ptOrigin.y);
    DrawDottedOutline(dc, CornersOf(CRect(rc.left, rc.top, rc.right - 1, rc.bottom - 1)), crLine);
}

// The mark becomes part of the cached picture: what paints the view from then on shows it.
void DrawMarkIntoCache(CTool& tool, const CCanvas& canvas, CImgNode* pNode, Shown shown) {
    CCachePicture picture(canvas, MarkRect(tool, pNode, shown));
    if (!picture) {
        return;
    }
    CPoint ptOrigin = picture.Origin();
    if (shown == Shown::Alone) {
        tool.DrawSelectionMark(&picture.DC(), &ptOrigin, pNode);
    } else {
        tool.DrawMarkRect(&picture.DC(), &ptOrigin, pNode);
    }
    picture.PutBack();
}

void HideMark(CTool& tool, CImgNode* pNode, Shown shown) {
    if (shown == Shown::Alone) {
        tool.InvalidateSelectionMark(pNode);
    } else {
        tool.InvalidateMarkRect(pNode);
    }
}

} // namespace

int InvalidateStrips(CTool& tool, const CRect& rc, int nWidth) {
    const CCanvas canvas(tool);
    if (!canvas) {
        return 0;
    }
    const int nTop = Saturated(static_cast<long long>(rc.top) + nWidth);
    const int nRight = Saturated(static_cast<long long>(rc.right) - nWidth);
    const int nBottom = Saturated(static_cast<long long>(rc.bottom) - nWidth);
    const int nLeft = Saturated(static_cast<long long>(rc.left) + nWidth);
    CRect strips[] = {CRect(rc.left, rc.top, rc.right, nTop), CRect(nRight, rc.top, rc.right, rc.bottom),
                      CRect(rc.left, nBottom, rc.right, rc.bottom), CRect(rc.left, rc.top, nLeft, rc.bottom)};
    for (CRect& rcStrip : strips) {
        canvas.View().m_fnFlushCacheRect(rcStrip);
    }
    return 1;
}

int marks::ShowSelectionMarks(CTool& tool, int nShow) {
    const CCanvas canvas(tool);
    if (!canvas) {
        return 0;
    }
    const Shown shown = ShownAs(canvas.Selection());
    for (CImgNode* pNode : Each(canvas.Selection())) {
        if (nShow) {
            DrawMarkIntoCache(tool, canvas, pNode, shown);
        } else {
            HideMark(tool, pNode, shown);
        }
    }
    return 1;
}

int marks::DrawMarkRect(CTool& tool, CDC* pDC, const CPoint* pOrigin, CImgNode* pNode) {
    CRect rc;
    if (!pDC || !pOrigin || !tool.GetNodeRect(pNode, &rc)) {
        return 0;
    }
    DrawInside(*pDC, rc, *pOrigin, MarkColor);
    return 1;
}

int marks::InvalidateMarkRect(CTool& tool, CImgNode* pNode) {
    CRect rc;
    return tool.GetNodeRect(pNode, &rc) ? InvalidateStrips(tool, rc, MarkLineWidth) : 0;
}

int marks::ShowNodeFrame(CTool& tool, CImgNode* pNode, int nShow) {
    const CCanvas canvas(tool);
    CRect rc;
    if (!canvas || !pNode || !tool.GetNodeRect(pNode, &rc)) {
        return 0;
    }
    if (!nShow) {
        canvas.View().m_fnFlushCacheRect(rc);
        return 1;
    }
    CCachePicture picture(canvas, rc);
    if (!picture) {
        return 0;
    }
    DrawInside(picture.DC(), rc, picture.Origin(), NodeFrameColor);
    picture.PutBack();
    return 1;
}

int marks::FlushViewRect(CTool& tool, const RECT* pRect) {
    const CCanvas canvas(tool);
    if (!canvas || !pRect) {
        return 0;
    }
    CRect rc(*pRect);
    canvas.View().m_fnFlushCacheRect(rc);
    return 1;
}

int marks::RedrawRect(CTool& tool, const RECT* pRect) {
    const CCanvas canvas(tool);
    if (!canvas || !pRect) {
        return 0;
    }
    canvas.View().RepaintViewRect(CRect(*pRect), 1);
    return 1;
}

int marks::FlushSelectionArea(CTool& tool) {
    CRect rc(0, 0, 0, 0);
    return tool.GetSelectionOutlineRect(&rc) ? tool.FlushViewRect(&rc) : 0;
}

int marks::RedrawSelectionArea(CTool& tool) {
    CRect rc(0, 0, 0, 0);
    return tool.GetSelectionOutlineRect(&rc) ? tool.RedrawRect(&rc) : 0;
}
