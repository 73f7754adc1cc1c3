#include "tools/object_tool.h"

#include "host/tool_ids.h"
#include "ops/cursors.h"
#include "ops/drawing.h"
#include "ops/hit_test.h"
#include "ops/marks.h"
#include "ops/objects/handle_resize.h"

namespace {

constexpr int MarkMargin = HandleHalfSize; ///< client pixels that the handles reach beyond the node
constexpr int MarkStripWidth = 2 * HandleHalfSize;

} // namespace

void CObjectTool::OnSetCursor(CPoint* pPoint) {
    if (IsResizing()) {
        return;
    }
    CImgNode* pOnly = CCanvas(*this).OnlySelected();
    const int nHandle = pOnly && pPoint ? HandleUnderPoint(*this, pOnly, *pPoint) : NoHandle;
    if (nHandle == NoHandle) {
        CToolBase::OnSetCursor(pPoint);
        return;
    }
    ShowCursor(*this, HandleOf(nHandle).nCursorId);
}

int CObjectTool::GetNodeMarkRect(CImgNode* pNode, RECT* pRect) {
    if (!pNode) {
        return CToolBase::GetNodeMarkRect(pNode, pRect);
    }
    if (!GetNodeRect(pNode, pRect)) {
        return 0;
    }
    InflateRect(pRect, MarkMargin, MarkMargin);
    return 1;
}

int CObjectTool::DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) {
    if (!pDC || !pOrigin || !pNode) {
        return 0;
    }
    DrawOutlineAndHandles(*pDC, Shifted(CornersOfNode(*this, pNode), *pOrigin));
    return 1;
}

// Round its own mark alone: what a derived tool marks beyond it, that tool removes.
int CObjectTool::InvalidateSelectionMark(CImgNode* pNode) {
    CRect rcMark;
    if (!pNode || !CObjectTool::GetNodeMarkRect(pNode, &rcMark)) {
        return 0;
    }
    return InvalidateStrips(*this, rcMark, MarkStripWidth);
}

int CObjectTool::HitTestSelected(CPoint* pPoint, CImgNode* pNode) {
    if (!pPoint || !pNode) {
        return 0;
    }
    return PtInNodeOutline(pPoint, pNode) || HandleUnderPoint(*this, pNode, *pPoint) != NoHandle ? 1 : 0;
}

// What is resized may be gone then; its outline goes with it.
void CObjectTool::m_fnDelete() {
    CToolBase::m_fnDelete();
    EraseOutline();
}

int CObjectTool::OnToolActivate(CListenerObject* pOther, int nActivate, int nRedraw) {
    if (nActivate != 1) {
        CancelResize();
    }
    return CToolBase::OnToolActivate(pOther, nActivate, nRedraw);
}

int CObjectTool::OnLButtonDown(UINT nFlags, CPoint point) {
    if (IsArrowKeyHeld()) {
        return 1;
    }
    CImgNode* pOnly = CCanvas(*this).OnlySelected();
    const int nHandle = pOnly ? HandleUnderPoint(*this, pOnly, point) : NoHandle;
    if (nHandle == NoHandle) {
        return CToolBase::OnLButtonDown(nFlags, point);
    }
    StartResize(point, nHandle);
    return 1;
}

int CObjectTool::OnLButtonUp(UINT nFlags, CPoint point) {
    return IsResizing() ? FinishResize(point) : CToolBase::OnLButtonUp(nFlags, point);
}

int CObjectTool::OnMouseMove(UINT nFlags, CPoint point) {
    if (!IsResizing()) {
        return CToolBase::OnMouseMove(nFlags, point);
    }
    OnSetCursor(&point);
    if (IsNewerMoveQueued()) {
        return 1;
    }
    m_ptPrevious = m_ptCurrent;
    m_ptCurrent = point;
    CImgNode* pNode = CCanvas(*this).FirstSelected();
    if (m_ptPrevious != m_ptCurrent && pNode) {
        StepResize(pNode);
    }
    return 1;
}

int CObjectTool::OnRButtonDown(UINT nFlags, CPoint point) {
    if (IsResizing()) {
        OnLButtonUp(nFlags, point);
    }
    return CToolBase::OnRButtonDown(nFlags, point);
}

CTextNode* CObjectTool::ResizeTextNode(CImgNode* pNode, RECT* pRect, int nHandle) {
    return ResizedText(*this, pNode, pRect, nHandle);
}
