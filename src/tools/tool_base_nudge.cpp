// Moving the selection with the arrow keys: steps while they repeat, one undo event for the whole sequence.
#include <algorithm>
#include <array>

#include "ops/objects/offset.h"
#include "tools/tool_base.h"

namespace {

constexpr int NudgeStep = 1;      ///< client pixels
constexpr int FastNudgeStep = 10; ///< client pixels, once the same key has repeated often enough
constexpr int FastNudgeCount = 10;

/// An arrow key and the direction in which it moves.
struct NudgeKey {
    UINT nKey;
    int nX;
    int nY;
};

constexpr std::array<NudgeKey, 4> NudgeKeys = {{
    {VK_LEFT, -1, 0},
    {VK_UP, 0, -1},
    {VK_RIGHT, 1, 0},
    {VK_DOWN, 0, 1},
}};

const NudgeKey* FindNudgeKey(UINT nChar) {
    const auto found = std::find_if(NudgeKeys.begin(), NudgeKeys.end(),
                                    [nChar](const NudgeKey& row) { return row.nKey == nChar; });
    return found == NudgeKeys.end() ? nullptr : &*found;
}

} // namespace

int CToolBase::OnKeyDown(UINT nChar, UINT nRepeat, UINT nFlags) {
    if (IsPressed()) {
        return 1;
    }
    const CCanvas canvas(*this);
    if (!canvas || !canvas.HasSelection()) {
        return CToolCore::OnKeyDown(nChar, nRepeat, nFlags);
    }
    if (!IsArrowKey(nChar) && IsArrowKeyHeld()) {
        return 1;
    }
    CountNudgeKey(nChar);
    if (!IsArrowKey(nChar)) {
        return CToolCore::OnKeyDown(nChar, nRepeat, nFlags);
    }
    return IsArrowKeyQueued() ? 1 : StepNudge(canvas, nChar);
}

int CToolBase::OnKeyUp(UINT nChar, UINT nRepeat, UINT nFlags) {
    if (!IsArrowKeyHeld()) {
        FinishNudge();
    }
    return CToolCore::OnKeyUp(nChar, nRepeat, nFlags);
}

bool CToolBase::IsArrowKey(UINT nChar) { return FindNudgeKey(nChar) != nullptr; }

bool CToolBase::IsArrowKeyHeld() {
    return std::any_of(NudgeKeys.begin(), NudgeKeys.end(), [](const NudgeKey& row) {
        return (GetAsyncKeyState(static_cast<int>(row.nKey)) & 0x8000) != 0;
    });
}

bool CToolBase::IsArrowKeyQueued() {
    const CCanvas canvas(*this);
    MSG message;
    return canvas && PeekMessageA(&message, canvas.View().m_hWnd, WM_KEYDOWN, WM_KEYDOWN, PM_NOREMOVE) &&
           IsArrowKey(static_cast<UINT>(message.wParam));
}

// Every key counts, also one whose step is skipped or that moves nothing.
void CToolBase::CountNudgeKey(UINT nChar) {
    const int nKey = static_cast<int>(nChar);
    m_nNudgeRepeat = nKey == m_nNudgeKey ? std::min(m_nNudgeRepeat + 1, FastNudgeCount) : 0;
    m_nNudgeKey = nKey;
}

int CToolBase::StepNudge(const CCanvas& canvas, UINT nChar) {
    if (!HasNudgeCapture()) {
        m_nNudgePage = canvas.PageId();
        if (!m_nudgeRecorder.CaptureBefore(*this)) {
            return 0;
        }
    }
    const CRect rcBefore = SelectionOutlineRect(*this);
    m_fnCopySelection(m_movedNodes);
    ShowSelectionMarks(0);
    ClearSelection();
    canvas.View().InvalidateRect(&rcBefore, FALSE);

    AimNudge(canvas, nChar);
    StepMove(MoveStep::Final);
    CPoint ptPointer;
    ::GetCursorPos(&ptPointer);
    canvas.View().ScreenToClient(&ptPointer);
    OnSetCursor(&ptPointer);
    SyncAttributePanels();
    NotifyChangedThenRedrawn(*this);
    return 1;
}

// As if the first node's corner were dragged by one step.
void CToolBase::AimNudge(const CCanvas& canvas, UINT nChar) {
    m_pAnchor = m_movedNodes.GetHead();
    m_anchorOffset = CSize(0, 0);
    m_ptPress = canvas.ToClient(CPoint(m_pAnchor->m_tx.nX, m_pAnchor->m_tx.nY));
    const int nStep = m_nNudgeRepeat == FastNudgeCount ? FastNudgeStep : NudgeStep;
    const NudgeKey* pKey = FindNudgeKey(nChar);
    m_ptLast = m_ptPress + CSize(pKey->nX * nStep, pKey->nY * nStep);
}

// The capture from before the sequence stays for the next one when nothing has changed.
void CToolBase::FinishNudge() {
    m_nNudgeKey = 0;
    m_nNudgeRepeat = 0;
    if (HasNudgeCapture() && m_nudgeRecorder.RecordChange(*this) == Recorded::NoCapture) {
        m_nudgeRecorder.Drop();
    }
}

// It outlives leaving the tool, so that a sequence in whose middle the tool is left can be undone all the
// same, but not its page, whose nodes it names.
bool CToolBase::HasNudgeCapture() {
    if (m_nudgeRecorder.HasCapture() && m_nNudgePage != CCanvas(*this).PageId()) {
        m_nudgeRecorder.Drop();
    }
    return m_nudgeRecorder.HasCapture();
}

int CToolBase::KeepNodeInView(CImgNode* pNode) { return KeepInView(*this, pNode); }
