// Marks and hit tests of the core tool.
#include "ops/drawing.h"
#include "ops/excluded_node.h"
#include "ops/saturate.h"
#include "tools/tool_core.h"

namespace {

constexpr int MarkLineWidth = 1; ///< client pixels of the plain mark's edges
constexpr COLORREF White = RGB(255, 255, 255);

int ClientRectOrNothing(CCanvas& canvas, RECT* pRect) {
    if (!canvas || !pRect) {
        return 0;
    }
    *pRect = canvas.ClientRect();
    return 1;
}

} // namespace

int CToolCore::GetNodeMarkRect(CImgNode* pNode, RECT* pRect) {
    if (!pNode) {
        CCanvas canvas(*this);
        return ClientRectOrNothing(canvas, pRect);
    }
    return GetNodeRect(pNode, pRect);
}

int CToolCore::GetNodeOutlineMarkRect(CImgNode* pNode, RECT* pRect) {
    if (!pNode) {
        CCanvas canvas(*this);
        return ClientRectOrNothing(canvas, pRect);
    }
    return GetNodeOutlineRect(pNode, pRect);
}

int CToolCore::GetNodeRect(CImgNode* pNode, RECT* pRect) {
    CCanvas canvas(*this);
    if (!canvas || !pNode || !pRect) {
        return 0;
    }
    CRect rcDoc;
    pNode->GetBoundRect(&rcDoc);
    CImgNode* pCompanion = pNode->IsFrameNode() ? pNode->m_pOwner : pNode->m_pFrameNode;
    if (pCompanion) {
        CRect rcCompanion;
        pCompanion->GetBoundRect(&rcCompanion);
        rcDoc.UnionRect(&rcDoc, &rcCompanion);
    }
    *pRect = canvas.ToClient(rcDoc);
    return 1;
}

int CToolCore::GetNodeOutlineRect(CImgNode* pNode, RECT* pRect) {
    if (!pNode || !pRect) {
        return 0;
    }
    Corners corners = CornersOfNode(pNode->m_pShadowNode ? pNode->m_pShadowNode : pNode);
    ::GetBoundRect(corners.data(), static_cast<int>(corners.size()), pRect);
    return 1;
}

Corners CToolCore::CornersOfNode(CImgNode* pNode) {
    CRect rc(0, 0, 0, 0);
    GetNodeRect(pNode, &rc);
    return CornersOf(rc);
}

int CToolCore::DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) {
    return DrawMarkRect(pDC, pOrigin, pNode);
}

int CToolCore::DrawShadowMark(CDC*, CPoint*, CImgNode*) { return 1; }

int CToolCore::Reserved18(CDC*, CPoint*, CImgNode*) { return 1; }

int CToolCore::DrawMarkRect(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) {
    CRect rc;
    if (!pDC || !pOrigin || !GetNodeRect(pNode, &rc)) {
        return 0;
    }
    rc.OffsetRect(-pOrigin->x, -pOrigin->y);
    rc.right -= 1;
    rc.bottom -= 1;
    DrawDottedOutline(*pDC, CornersOf(rc), White);
    return 1;
}

int CToolCore::InvalidateSelectionMark(CImgNode* pNode) { return InvalidateMarkRect(pNode); }

int CToolCore::InvalidateMarkRect(CImgNode* pNode) {
    CRect rc;
    if (!GetNodeRect(pNode, &rc)) {
        return 0;
    }
    return InvalidateStrips(rc, MarkLineWidth);
}

int CToolCore::InvalidateStrips(const CRect& rc, int nWidth) {
    CCanvas canvas(*this);
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

int CToolCore::ShowSelectionMarks(int nShow) {
    CCanvas canvas(*this);
    if (!canvas) {
        return 0;
    }
    CImgNodeList& selection = canvas.Selection();
    const bool bOnly = selection.GetCount() == 1;
    for (POSITION position = selection.GetHeadPosition(); position;) {
        CImgNode* pNode = selection.GetNext(position);
        if (nShow) {
            CRect rcMark(0, 0, 0, 0);
            bOnly ? GetNodeMarkRect(pNode, &rcMark) : GetNodeRect(pNode, &rcMark);
            DrawMarkIntoCache(canvas, rcMark, pNode, bOnly);
        } else {
            bOnly ? InvalidateSelectionMark(pNode) : InvalidateMarkRect(pNode);
        }
    }
    return 1;
}

// The mark becomes part of the cached picture: what paints the view from then on shows it.
void CToolCore::DrawMarkIntoCache(CCanvas& canvas, CRect rcMark, CImgNode* pNode, bool bOnly) {
    CCachePicture picture(canvas, rcMark);
    if (!picture) {
        return;
    }
    CPoint ptOrigin = picture.Origin();
    bOnly ? DrawSelectionMark(&picture.DC(), &ptOrigin, pNode)
          : DrawMarkRect(&picture.DC(), &ptOrigin, pNode);
    picture.PutBack();
}

int CToolCore::HitTestSelected(CPoint* pPoint, CImgNode* pNode) { return PtInNodeOutline(pPoint, pNode); }

int CToolCore::PtInNodeOutline(CPoint* pPoint, CImgNode* pNode) {
    if (!pPoint || !pNode) {
        return 0;
    }
    CTxPoint point{static_cast<double>(pPoint->x), static_cast<double>(pPoint->y)};
    Corners corners = CornersOfNode(pNode);
    return PtInBound(point, corners.data());
}

CImgNode* CToolCore::NodeUnderPoint(CPoint point) {
    CCanvas canvas(*this);
    if (!canvas) {
        return nullptr;
    }
    CImgNode* pExcluded = GetExcludedNode();
    CExcludedNodeScope excluded(canvas.Objects(), pExcluded);
    if (pExcluded && !excluded.HasTaken()) {
        return nullptr;
    }
    return canvas.View().m_fnNodeUnderPt(point);
}

bool CToolCore::IsOnExcludedNode(CPoint point) {
    CImgNode* pExcluded = GetExcludedNode();
    CCanvas canvas(*this);
    return pExcluded && canvas && pExcluded->PtInMask(canvas.ToDocument(point)) == 1;
}

bool CToolCore::IsOnSelection(CPoint point) {
    CCanvas canvas(*this);
    if (!canvas) {
        return false;
    }
    if (CImgNode* pOnly = OnlySelectedNode(canvas)) {
        return HitTestSelected(&point, pOnly) != 0;
    }
    CImgNodeList& selection = canvas.Selection();
    for (POSITION position = selection.GetHeadPosition(); position;) {
        if (PtInNodeOutline(&point, selection.GetNext(position))) {
            return true;
        }
    }
    return false;
}

int CToolCore::GetNodesRect(CNodeRefList& nodes, RECT* pRect) {
    if (!pRect) {
        return 0;
    }
    CRect rcUnion(0, 0, 0, 0);
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        Corners corners = CornersOfNode(nodes.GetNext(position));
        CRect rcNode;
        ::GetBoundRect(corners.data(), static_cast<int>(corners.size()), &rcNode);
        rcUnion.UnionRect(&rcUnion, &rcNode);
    }
    *pRect = rcUnion;
    return 1;
}

int CToolCore::GetNodeMarkArea(CImgNode* pNode, RECT* pRect) {
    if (!pRect) {
        return 0;
    }
    CRect rcMark(0, 0, 0, 0);
    CRect rcOutline(0, 0, 0, 0);
    GetNodeMarkRect(pNode, &rcMark);
    GetNodeOutlineMarkRect(pNode, &rcOutline);
    UnionRect(pRect, &rcMark, &rcOutline);
    return 1;
}

RECT* CToolCore::GetNodeRectOf(RECT* pRect, CImgNode* pNode) {
    if (pRect && !GetNodeRect(pNode, pRect)) {
        SetRectEmpty(pRect);
    }
    return pRect;
}

RECT* CToolCore::GetNodeMarkAreaOf(RECT* pRect, CImgNode* pNode) {
    if (!pRect) {
        return nullptr;
    }
    SetRectEmpty(pRect);
    if (pNode) {
        GetNodeMarkArea(pNode, pRect);
    }
    return pRect;
}

int CToolCore::ShowNodeFrame(CImgNode* pNode, int nShow) {
    constexpr COLORREF FrameColor = 0x0080FF;
    CCanvas canvas(*this);
    CRect rc;
    if (!canvas || !pNode || !GetNodeRect(pNode, &rc)) {
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
    rc.OffsetRect(-picture.Origin().x, -picture.Origin().y);
    DrawDottedOutline(picture.DC(), CornersOf(CRect(rc.left, rc.top, rc.right - 1, rc.bottom - 1)),
                      FrameColor);
    picture.PutBack();
    return 1;
}
