#include "tools/shadow_tool.h"

#include "ops/commands/shadow_settings.h"
#include "ops/commands/text_page.h"
#include "ops/cursors.h"
#include "ops/hit_test.h"
#include "ops/host_page.h"
#include "ops/nodes.h"
#include "shadows/shadow_mark.h"
#include "text/object/text_attributes.h"
#include "tools/identity.h"

int CShadowTool::QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) {
    if (AnswerInterface<IShadowSettings>(this, iid, ppInterface, pExtra)) {
        return 1;
    }
    return CObjectTool::QueryInterface(iid, ppInterface, pExtra);
}

// The shadow itself shows that it is part of the object, the handle that it can be dragged.
void CShadowTool::OnSetCursor(CPoint* pPoint) {
    if (IsDraggingShadow()) {
        ShowCursor(*this, cursor_id::SizeAll);
        return;
    }
    const CCanvas canvas(*this);
    if (!pPoint || !canvas) {
        return;
    }
    CImgNode* const pOnly = canvas.OnlySelected();
    CImgNode* const pUnder = ClickedNode(*this, *pPoint);
    if (!pOnly || !pOnly->m_pShadowNode || (pUnder && !canvas.IsSelected(pUnder))) {
        CObjectTool::OnSetCursor(pPoint);
        return;
    }
    CRect rcShadow;
    pOnly->m_pShadowNode->GetBoundRect(&rcShadow);
    if (canvas.ToClient(rcShadow).PtInRect(*pPoint) && !CObjectTool::HitTestSelected(pPoint, pOnly)) {
        ShowCursor(*this, cursor_id::SizeAll);
    } else if (IsOnShadowHandle(*this, *pOnly, *pPoint)) {
        ShowCursor(*this, cursor_id::Arrow);
    } else {
        CObjectTool::OnSetCursor(pPoint);
    }
}

int CShadowTool::GetNodeMarkRect(CImgNode* pNode, RECT* pRect) {
    if (!CObjectTool::GetNodeMarkRect(pNode, pRect)) {
        return 0;
    }
    CRect rcShadow;
    if (pNode && pNode->m_pShadowNode && GetNodeOutlineMarkRect(pNode, &rcShadow)) {
        UnionRect(pRect, pRect, &rcShadow);
    }
    return 1;
}

int CShadowTool::GetNodeOutlineMarkRect(CImgNode* pNode, RECT* pRect) {
    if (!pNode || !pNode->m_pShadowNode) {
        return CObjectTool::GetNodeOutlineMarkRect(pNode, pRect);
    }
    if (!pRect || !CCanvas(*this)) {
        return 0;
    }
    *pRect = ShadowMarkRect(ShadowCorners(*this, *pNode));
    return 1;
}

int CShadowTool::DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) {
    return CObjectTool::DrawSelectionMark(pDC, pOrigin, pNode) ? DrawShadowMark(pDC, pOrigin, pNode) : 0;
}

int CShadowTool::DrawShadowMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) {
    if (!pDC || !pOrigin || !pNode) {
        return 0;
    }
    if (pNode->m_pShadowNode) {
        ::DrawShadowMark(*pDC, *pOrigin, ShadowCorners(*this, *pNode));
    }
    return 1;
}

int CShadowTool::InvalidateSelectionMark(CImgNode* pNode) {
    const int nAnswer = CObjectTool::InvalidateSelectionMark(pNode);
    InvalidateShadowMark(pNode);
    return nAnswer;
}

int CShadowTool::HitTestSelected(CPoint* pPoint, CImgNode* pNode) {
    if (const int nAnswer = CObjectTool::HitTestSelected(pPoint, pNode)) {
        return nAnswer;
    }
    return pPoint && pNode && IsOnShadowMark(*this, *pNode, *pPoint) ? 1 : 0;
}

int CShadowTool::OnToolActivate(CListenerObject* pOther, int nActivate, int nRedraw) {
    if (nActivate != 1) {
        CancelShadowDrag();
    }
    return CObjectTool::OnToolActivate(pOther, nActivate, nRedraw);
}

int CShadowTool::OnLButtonDown(UINT nFlags, CPoint point) {
    if (IsArrowKeyHeld()) {
        return 1;
    }
    const CImgNode* const pOnly = CCanvas(*this).OnlySelected();
    if (!pOnly || !IsOnShadowHandle(*this, *pOnly, point)) {
        return CObjectTool::OnLButtonDown(nFlags, point);
    }
    return StartShadowDrag(point);
}

int CShadowTool::OnLButtonUp(UINT nFlags, CPoint point) {
    return IsDraggingShadow() ? FinishShadowDrag(point) : CObjectTool::OnLButtonUp(nFlags, point);
}

int CShadowTool::OnMouseMove(UINT nFlags, CPoint point) {
    if (!IsDraggingShadow()) {
        return CObjectTool::OnMouseMove(nFlags, point);
    }
    OnSetCursor(&point);
    return IsNewerMoveQueued() ? 1 : StepShadowDrag(point);
}

int CShadowTool::OnRButtonDown(UINT nFlags, CPoint point) {
    if (IsDraggingShadow()) {
        OnLButtonUp(nFlags, point);
    }
    return CObjectTool::OnRButtonDown(nFlags, point);
}

int CShadowTool::InvalidateShadowMark(CImgNode* pNode) {
    CRect rc;
    if (!pNode || !pNode->m_pShadowNode || !GetNodeOutlineMarkRect(pNode, &rc)) {
        return 0;
    }
    return FlushViewRect(&rc);
}

int CShadowTool::GetPanelKind() { return IdentityOf(*this).nPanelKind; }

int CShadowTool::GetCount() { return shadow_settings::GetCount(*this); }
int CShadowTool::ApplyShadow(int nOffsetX, int nOffsetY, const COLORREF* pcrColor, int nSoftness,
                             int nTransparency) {
    return shadow_settings::ApplyShadow(*this, nOffsetX, nOffsetY, pcrColor, nSoftness, nTransparency);
}
int CShadowTool::SetOffset(int nMask, int nX, int nY) {
    return shadow_settings::SetOffset(*this, nMask, nX, nY);
}
int CShadowTool::SetColor(const COLORREF* pcrColor) { return shadow_settings::SetColor(*this, pcrColor); }
int CShadowTool::SetSoftness(int nSoftness) { return shadow_settings::SetSoftness(*this, nSoftness); }
int CShadowTool::SetTransparency(int nTransparency) {
    return shadow_settings::SetTransparency(*this, nTransparency);
}
int CShadowTool::RemoveShadows() { return shadow_settings::RemoveShadows(*this); }

bool CImageShadowTool::ShowsShadowMark(CImgNode* pNode) {
    return !AsText(pNode) && host_page::IsShadowPageShowing(*this);
}

// Where the mark may stand does not depend on the page, so that one drawn earlier is found and removed.
int CImageShadowTool::GetNodeMarkRect(CImgNode* pNode, RECT* pRect) {
    return AsText(pNode) ? CObjectTool::GetNodeMarkRect(pNode, pRect)
                         : CShadowTool::GetNodeMarkRect(pNode, pRect);
}

int CImageShadowTool::DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) {
    return ShowsShadowMark(pNode) ? CShadowTool::DrawSelectionMark(pDC, pOrigin, pNode)
                                  : CObjectTool::DrawSelectionMark(pDC, pOrigin, pNode);
}

int CImageShadowTool::InvalidateSelectionMark(CImgNode* pNode) {
    return AsText(pNode) ? CObjectTool::InvalidateSelectionMark(pNode)
                         : CShadowTool::InvalidateSelectionMark(pNode);
}

int CImageShadowTool::HitTestSelected(CPoint* pPoint, CImgNode* pNode) {
    return ShowsShadowMark(pNode) ? CShadowTool::HitTestSelected(pPoint, pNode)
                                  : CObjectTool::HitTestSelected(pPoint, pNode);
}

int CTextShadowTool::DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) {
    return host_page::IsShadowPageShowing(*this) ? CShadowTool::DrawSelectionMark(pDC, pOrigin, pNode)
                                                 : CObjectTool::DrawSelectionMark(pDC, pOrigin, pNode);
}

int CTextShadowTool::HitTestSelected(CPoint* pPoint, CImgNode* pNode) {
    return host_page::IsShadowPageShowing(*this) ? CShadowTool::HitTestSelected(pPoint, pNode)
                                                 : CObjectTool::HitTestSelected(pPoint, pNode);
}

int CTextShadowTool::OnLButtonDblClk(UINT nFlags, CPoint point) {
    const std::optional<int> answer = text_page::HandOverDblClick(*this, nFlags, point);
    return answer ? *answer : CShadowTool::OnLButtonDblClk(nFlags, point);
}

int CTextShadowTool::OnLButtonDown(UINT nFlags, CPoint point) {
    return IsShadowPress(point) ? CShadowTool::OnLButtonDown(nFlags, point)
                                : CObjectTool::OnLButtonDown(nFlags, point);
}

bool CTextShadowTool::IsShadowPress(CPoint point) {
    CImgNode* const pUnder = ClickedNode(*this, point);
    if (!pUnder || AsText(pUnder)) {
        return true;
    }
    const CCanvas canvas(*this);
    if (!canvas.HasDocument()) {
        return false;
    }
    for (const CImgNode* pNode : Each(canvas.Selection())) {
        if (IsOnShadowHandle(*this, *pNode, point)) {
            return true;
        }
    }
    return false;
}
