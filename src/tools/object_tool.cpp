#include "tools/object_tool.h"

#include "host/tool_ids.h"
#include "ops/drawing.h"
#include "tools/identity_tables.h"

namespace {

constexpr std::array<KindRow, 1> Kinds = {{{CategoryId, kind::Any}}};

constexpr int MarkMargin = HandleHalfSize; ///< client pixels that the handles reach beyond the node
constexpr int MarkStripWidth = 2 * HandleHalfSize;
} // namespace

int CObjectTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    if (MatchKind(Kinds, category, nKind, pResult, pExtra)) {
        return 1;
    }
    return CToolBase::IsKindOf(category, nKind, pResult, pExtra);
}

int CObjectTool::QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) {
    return CToolBase::QueryInterface(iid, ppInterface, pExtra);
}

void CObjectTool::OnSetCursor(CPoint* pPoint) {
    if (IsResizing()) {
        return;
    }
    CCanvas canvas(*this);
    CImgNode* pOnly = OnlySelectedNode(canvas);
    const int nHandle = pOnly && pPoint ? HandleUnderPoint(pOnly, *pPoint) : NoHandle;
    if (nHandle == NoHandle) {
        CToolBase::OnSetCursor(pPoint);
        return;
    }
    ShowCursor(Handles[static_cast<std::size_t>(nHandle)].nCursorId);
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
    const Corners corners = Shifted(CornersOfNode(pNode), *pOrigin);
    DrawOutlineAndHandles(*pDC, corners);
    return 1;
}

int CObjectTool::InvalidateSelectionMark(CImgNode* pNode) {
    CRect rcMark;
    if (!pNode || !GetNodeMarkRect(pNode, &rcMark)) {
        return 0;
    }
    return InvalidateStrips(rcMark, MarkStripWidth);
}

int CObjectTool::HitTestSelected(CPoint* pPoint, CImgNode* pNode) {
    if (!pPoint || !pNode) {
        return 0;
    }
    return PtInNodeOutline(pPoint, pNode) || HandleUnderPoint(pNode, *pPoint) != NoHandle ? 1 : 0;
}

const GUID& CObjectTool::GetToolClassId() { return tool_class::Object; }

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
    CCanvas canvas(*this);
    CImgNode* pOnly = OnlySelectedNode(canvas);
    const int nHandle = pOnly ? HandleUnderPoint(pOnly, point) : NoHandle;
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
    CCanvas canvas(*this);
    if (m_ptPrevious != m_ptCurrent && canvas && !canvas.Selection().IsEmpty()) {
        StepResize(canvas.Selection().GetHead());
    }
    return 1;
}

int CObjectTool::OnRButtonDown(UINT nFlags, CPoint point) {
    if (IsResizing()) {
        OnLButtonUp(nFlags, point);
    }
    return CToolBase::OnRButtonDown(nFlags, point);
}

int CObjectTool::CanRunCommand() { return IsResizing() ? 0 : CToolBase::CanRunCommand(); }

int CObjectTool::HandleUnderPoint(CImgNode* pNode, CPoint point) {
    CCanvas canvas(*this);
    if (!canvas || OnlySelectedNode(canvas) != pNode) {
        return NoHandle;
    }
    return HandleAt(CornersOfNode(pNode), point);
}

CObjectTool* CToolCore::AsObjectTool() { return static_cast<CObjectTool*>(this); }
