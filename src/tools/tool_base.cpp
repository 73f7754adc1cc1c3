#include "tools/tool_base.h"

#include <cstdlib>

#include "ops/current_tool.h"
#include "ops/cursors.h"
#include "ops/hit_test.h"

namespace {

constexpr int MoveThreshold = 2; ///< client pixels; a press moves beyond them before it becomes a drag
constexpr int JitterLimit = 1;   ///< client pixels; smaller changes of the pointer are ignored

} // namespace

CToolBase::~CToolBase() {
    m_pMoveAfter.reset();
    m_moveRecorder.Drop();
    m_nudgeRecorder.Drop();
    m_movedNodes.RemoveAll();
}

void CToolBase::OnSetCursor(CPoint* pPoint) {
    const CCanvas canvas(*this);
    if (!pPoint || !canvas) {
        return;
    }
    if (HasNudgeCapture() && !canvas.ClientRect().PtInRect(*pPoint)) {
        ShowCursor(*this, cursor_id::Arrow);
    } else if (IsPressed() && IsMoving()) {
        ShowCursor(*this, cursor_id::SizeAll);
    } else if (IsOnSelection(*this, *pPoint)) {
        ShowCursor(*this, canvas.Selection().GetCount() == 1 ? cursor_id::SizeAll : cursor_id::Arrow);
    } else {
        CToolCore::OnSetCursor(pPoint);
    }
}

int CToolBase::OnToolActivate(CListenerObject* pOther, int nActivate, int nRedraw) {
    if (nActivate != 1) {
        CancelMove();
    }
    return CToolCore::OnToolActivate(pOther, nActivate, nRedraw);
}

int CToolBase::OnLButtonDown(UINT nFlags, CPoint point) {
    if (IsArrowKeyHeld()) {
        return 1;
    }
    m_nPressOnSelection = 1;
    m_movedNodes.RemoveAll();
    if (!IsOnSelection(*this, point)) {
        const int nAnswer = CToolCore::OnLButtonDown(nFlags, point);
        if (!IsCurrentTool(*this)) {
            return nAnswer;
        }
        m_nPressOnSelection = 0;
        if (!IsOnSelection(*this, point)) {
            return nAnswer;
        }
    }
    StartPress(point);
    return 1;
}

int CToolBase::OnLButtonUp(UINT nFlags, CPoint point) {
    if (!IsPressed()) {
        return CToolCore::OnLButtonUp(nFlags, point);
    }
    m_nButtonHeld = 0;
    ReleaseMouse();
    if (IsMoving()) {
        return FinishMove(point);
    }
    if (m_nPressOnSelection == 1) {
        CToolCore::OnLButtonDown(nFlags, point);
    }
    return CToolCore::OnLButtonUp(nFlags, point);
}

int CToolBase::OnMouseMove(UINT nFlags, CPoint point) {
    if (!IsPressed()) {
        return CToolCore::OnMouseMove(nFlags, point);
    }
    OnSetCursor(&point);
    if (IsNewerMoveQueued()) {
        return 1;
    }
    return DragTo(point);
}

int CToolBase::DragTo(CPoint point) {
    if (std::abs(point.x - m_ptLast.x) <= JitterLimit && std::abs(point.y - m_ptLast.y) <= JitterLimit) {
        return 1;
    }
    m_ptLast = point;
    if (IsMoving()) {
        StepMove(MoveStep::Interim);
        m_ptPress = m_ptLast;
        return 1;
    }
    return IsBeyondThreshold(m_ptLast - m_ptPress) ? StartMove() : 1;
}

int CToolBase::OnRButtonDown(UINT nFlags, CPoint point) {
    if (IsPressed()) {
        OnLButtonUp(nFlags, point);
    }
    return CToolCore::OnRButtonDown(nFlags, point);
}

bool CToolBase::IsNewerMoveQueued() {
    const CCanvas canvas(*this);
    MSG message;
    return canvas && PeekMessageA(&message, canvas.View().m_hWnd, WM_MOUSEMOVE, WM_MOUSEMOVE, PM_NOREMOVE);
}

bool CToolBase::IsBeyondThreshold(CSize distance) {
    return std::abs(distance.cx) > MoveThreshold || std::abs(distance.cy) > MoveThreshold;
}

void CToolBase::CaptureMouse() {
    const CCanvas canvas(*this);
    if (canvas) {
        ::SetCapture(canvas.View().m_hWnd);
    }
}

void CToolBase::ReleaseMouse() { ::ReleaseCapture(); }
