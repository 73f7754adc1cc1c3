#include "text/editor/inplace_editor.h"

// The editor may be gone after a press outside it.
void CInplaceEditor::OnLButtonDown(UINT nFlags, CPoint point) {
    CWnd::OnLButtonDown(nFlags, point);
    m_nMouseSelecting = 1;
    CRect rcClient;
    GetClientRect(rcClient);
    if (!rcClient.PtInRect(point)) {
        m_fnEndInput();
        return;
    }
    SetFocus();
    SetCapture();
    const TextPosition hit = HitTest(point);
    m_selectAnchor = hit;
    m_selectMoving = hit;
    m_fnSetSelectRange(hit.nLine, hit.nIndex, hit.nLine, hit.nIndex);
    if (hit == Caret()) {
        DrawCaretHere();
        return;
    }
    MarkMoved();
    MoveCaretTo(hit);
}

void CInplaceEditor::OnLButtonUp(UINT nFlags, CPoint point) {
    CWnd::OnLButtonUp(nFlags, point);
    m_nMouseSelecting = 0;
    if (::GetCapture() == m_hWnd) {
        ReleaseCapture();
    }
}

void CInplaceEditor::OnMouseMove(UINT nFlags, CPoint point) {
    CWnd::OnMouseMove(nFlags, point);
    CRect rcClient;
    GetClientRect(rcClient);
    ::SetCursor(::LoadCursorA(nullptr, rcClient.PtInRect(point) ? IDC_IBEAM : IDC_ARROW));
    if (m_nMouseSelecting != 0) {
        m_selectMoving = HitTest(point);
        m_fnSetSelectRange(m_selectAnchor.nLine, m_selectAnchor.nIndex, m_selectMoving.nLine,
                           m_selectMoving.nIndex);
    }
}

// The editor may be gone afterwards.
void CInplaceEditor::OnKillFocus(CWnd* pNewWnd) {
    CWnd::OnKillFocus(pNewWnd);
    m_nMouseSelecting = 0;
    if (pNewWnd != this) {
        m_fnEndInput();
    }
}

// A drag over the own selection has the caret disabled, which would keep the end from being told.
void CInplaceEditor::m_fnEndInput() {
    m_fnOnDragLeave();
    if (m_hWnd && ::GetCapture() == m_hWnd) {
        ReleaseCapture();
    }
    m_nMouseSelecting = 0;
    RepaintAllOnParent();
    if (m_nCaretEnabled != 0 && m_pNotify) {
        m_fnShowCursor(0);
        m_pNotify->OnInputEnded(this);
    }
}
