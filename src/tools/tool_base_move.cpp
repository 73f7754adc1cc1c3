// The move drag: press, start, steps, finish, cancel.
#include <algorithm>
#include <limits>

#include "ops/groups.h"
#include "ops/nodes.h"
#include "ops/objects/offset.h"
#include "ops/saturate.h"
#include "ops/view_margin.h"
#include "tools/tool_base.h"

namespace {

// One axis of the step: a delta that rounds to nothing still moves one pixel in the pointer's direction, and
// an axis on which the pointer stands where it was pressed does not move at all.
int PointerDelta(int nDelta, int nPress, int nLast) {
    if (nLast == nPress) {
        return 0;
    }
    if (nDelta != 0) {
        return nDelta;
    }
    return nLast > nPress ? 1 : -1;
}

/// The extreme edges of the moved nodes, client pixels.
struct Extremes {
    int nLeastRight = std::numeric_limits<int>::max();
    int nGreatestLeft = std::numeric_limits<int>::min();
    int nLeastBottom = std::numeric_limits<int>::max();
    int nGreatestTop = std::numeric_limits<int>::min();

    void Add(const CRect& rc) {
        nLeastRight = std::min<int>(nLeastRight, rc.right);
        nGreatestLeft = std::max<int>(nGreatestLeft, rc.left);
        nLeastBottom = std::min<int>(nLeastBottom, rc.bottom);
        nGreatestTop = std::max<int>(nGreatestTop, rc.top);
    }
};

// One axis: the near edge is applied first, so that the far one holds where both cannot.
int Limited(int nDelta, int nLeastFar, int nGreatestNear, int nViewNear, int nViewFar) {
    const auto least = static_cast<long long>(nViewNear) + ViewMargin - nLeastFar;
    const auto most = static_cast<long long>(nViewFar) - ViewMargin - nGreatestNear;
    return Saturated(std::min(std::max<long long>(nDelta, least), most));
}

} // namespace

void CToolBase::StartPress(CPoint point) {
    const CCanvas canvas(*this);
    if (!canvas || !canvas.HasSelection()) {
        return;
    }
    m_nButtonHeld = 1;
    CaptureMouse();
    m_ptPress = point;
    m_ptLast = point;
    m_nCopied = 0;
    m_nSnapshotTaken = 0;
    SetAnchor(canvas.FirstSelected());
}

// The anchor keeps its distance to the pointer, in document units, throughout the drag.
void CToolBase::SetAnchor(CImgNode* pAnchor) {
    const CCanvas canvas(*this);
    m_pAnchor = pAnchor;
    if (canvas && pAnchor) {
        m_anchorOffset = canvas.ToDocument(m_ptPress) - CPoint(pAnchor->m_tx.nX, pAnchor->m_tx.nY);
    }
}

// The mouse move that starts a drag moves nothing.
int CToolBase::StartMove() {
    m_nMoved = 1;
    if (IsCtrlDown() && m_nCopied == 0) {
        m_nCopied = 1;
        DragCopies();
    }
    if (m_nSnapshotTaken == 0 && !CaptureMoveBefore()) {
        return 0;
    }
    m_fnCopySelection(m_movedNodes);
    DeselectAll(1);
    return 1;
}

bool CToolBase::CaptureMoveBefore() {
    m_nSnapshotTaken = 1;
    return m_moveRecorder.CaptureBefore(*this);
}

// The copies take the selection's place and are what moves; the copied nodes stay where they are.
void CToolBase::DragCopies() {
    const CCanvas canvas(*this);
    if (!canvas) {
        return;
    }
    CTouchedArea area(*this);
    CNodeRefList copies;
    CopySelectedNodes(canvas, copies);
    m_fnKeepExcludedNodeInFront();
    ClearSelection();
    AddToSelection(copies);
    area.After().FlushRepaint(canvas);
    SyncAttributePanels();
    SetAnchor(canvas.FirstSelected());
    NotifyChangedThenRedrawn(*this);
}

// From the back of the page to its front, so that the copies keep their order. A node that cannot be copied
// is skipped.
void CToolBase::CopySelectedNodes(const CCanvas& canvas, CNodeRefList& copies) {
    CNodeRefList selected;
    for (CImgNode* pNode : Backwards(canvas.Objects())) {
        if (canvas.IsSelected(pNode)) {
            selected.AddTail(pNode);
        }
    }
    for (CImgNode* pNode : Each(selected)) {
        if (CImgNode* pCopy = CopyGroup(*pNode, &CImgNode::m_fnDuplicateImageNode)) {
            AddGroupAtHead(canvas.Objects(), *pCopy);
            copies.AddTail(pCopy);
        }
    }
}

void CToolBase::StepMove(MoveStep step) {
    const CCanvas canvas(*this);
    if (!canvas) {
        return;
    }
    const bool bFinal = step == MoveStep::Final;
    const CSize delta = KeptInView(canvas, WantedDelta(canvas));
    if (delta == CSize(0, 0)) {
        if (bFinal) {
            SetSelection(m_movedNodes, 1);
        }
        return;
    }
    CRefresh refresh;
    MoveNodes(canvas, delta, refresh);
    CRect rcArea = refresh.Area();
    canvas.View().m_fnFlushCacheRect(rcArea);
    if (bFinal) {
        SetSelection(m_movedNodes, 0);
        ShowSelectionMarks(1);
    }
    canvas.View().RepaintViewRect(rcArea, bFinal ? 1 : 0);
}

// How far the anchor is from where the pointer wants it, in client pixels.
CSize CToolBase::WantedDelta(const CCanvas& canvas) const {
    if (!m_pAnchor) {
        return CSize(0, 0);
    }
    const CPoint ptAnchor(m_pAnchor->m_tx.nX, m_pAnchor->m_tx.nY);
    const CSize wanted = canvas.ToDocument(m_ptLast) - ptAnchor - m_anchorOffset;
    const CSize delta = canvas.DeltaToClient(wanted);
    return CSize(PointerDelta(delta.cx, m_ptPress.x, m_ptLast.x),
                 PointerDelta(delta.cy, m_ptPress.y, m_ptLast.y));
}

CSize CToolBase::KeptInView(const CCanvas& canvas, CSize delta) {
    if (m_movedNodes.IsEmpty()) {
        return delta;
    }
    Extremes extremes;
    for (CImgNode* pNode : Each(m_movedNodes)) {
        extremes.Add(NodeRect(*this, pNode));
    }
    const CRect rcView = canvas.ClientRect();
    return CSize(Limited(delta.cx, extremes.nLeastRight, extremes.nGreatestLeft, rcView.left, rcView.right),
                 Limited(delta.cy, extremes.nLeastBottom, extremes.nGreatestTop, rcView.top, rcView.bottom));
}

// The last point follows the first node as it really moved, so that rounding does not add up.
void CToolBase::MoveNodes(const CCanvas& canvas, CSize delta, CRefresh& refresh) {
    const CSize docDelta = canvas.DeltaToDocument(delta);
    bool bFirst = true;
    for (CImgNode* pNode : Each(m_movedNodes)) {
        const CPoint ptOld = NodeRect(*this, pNode).TopLeft();
        AddMovedArea(pNode, refresh);
        OffsetObject(pNode, docDelta);
        AddMovedArea(pNode, refresh);
        if (bFirst) {
            m_ptLast = NodeRect(*this, pNode).TopLeft() - (ptOld - m_ptPress);
            bFirst = false;
        }
    }
}

void CToolBase::AddMovedArea(CImgNode* pNode, CRefresh& refresh) {
    const Shown shown = ShownAs(m_movedNodes);
    refresh.Add(MarkRect(*this, pNode, shown));
    refresh.Add(OutlineRect(*this, pNode, shown));
}

int CToolBase::FinishMove(CPoint point) {
    m_ptLast = point;
    m_nMoved = 0;
    if (m_nSnapshotTaken == 0 && !CaptureMoveBefore()) {
        return 0;
    }
    StepMove(MoveStep::Final);
    if (m_moveRecorder.RecordChange(*this, m_pMoveAfter) == Recorded::NoCapture) {
        return 0;
    }
    m_nSnapshotTaken = 0;
    SyncAttributePanels();
    NotifyChangedThenRedrawn(*this);
    return 1;
}

void CToolBase::CancelMove() {
    if (IsPressed() || IsMoving()) {
        ReleaseMouse();
    }
    m_nButtonHeld = 0;
    m_nMoved = 0;
}
