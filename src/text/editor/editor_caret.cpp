#include <algorithm>

#include "text/editor/double_byte.h"
#include "text/editor/inplace_editor.h"

namespace {

constexpr int CaretWidth = 2;

// Toggles the caret's pixels in the rectangle, and in no others.
void XorCaret(CDC& dc, const CRect& rcCaret) {
    CPen pen(PS_SOLID, CaretWidth, RGB(255, 255, 255));
    if (!pen.GetSafeHandle()) {
        return;
    }
    const int nSaved = dc.SaveDC();
    dc.IntersectClipRect(rcCaret);
    dc.SelectObject(&pen);
    dc.SetROP2(R2_XORPEN);
    dc.MoveTo(rcCaret.left + 1, rcCaret.top);
    dc.LineTo(rcCaret.left + 1, rcCaret.bottom - 1);
    dc.RestoreDC(nSaved);
}

} // namespace

int CInplaceEditor::ExtentAt(int nIndex) const {
    return nIndex >= 0 && nIndex < m_nOffsets ? m_pOffsets[nIndex] : 0;
}

void CInplaceEditor::m_fnGetCursorBoundRect(CRect& rcCaret) const {
    rcCaret = m_rcCurrent;
    rcCaret.left += ExtentAt(m_nCaret);
    rcCaret.right = rcCaret.left + CaretWidth;
}

bool CInplaceEditor::ToggleCaretPixels(const CRect& rcCaret) {
    CClientDC dc(this);
    if (!dc.m_hDC) {
        return false;
    }
    XorCaret(dc, rcCaret);
    return true;
}

void CInplaceEditor::m_fnDrawCursor() {
    if (IsHidden()) {
        return;
    }
    CRect rcCaret;
    m_fnGetCursorBoundRect(rcCaret);
    if (!m_bCaretDrawn) {
        m_rcDrawn = rcCaret;
    }
    if (ToggleCaretPixels(m_rcDrawn)) {
        m_bCaretDrawn = !m_bCaretDrawn;
    }
}

void CInplaceEditor::DrawCaretHere() {
    SyncCaretPixels();
    if (m_nCaretEnabled != 0 && !m_bCaretDrawn) {
        m_fnDrawCursor();
    }
}

void CInplaceEditor::SyncCaretPixels() {
    CRect rcCaret;
    m_fnGetCursorBoundRect(rcCaret);
    if (m_bCaretDrawn && m_rcDrawn != rcCaret) {
        m_fnDrawCursor();
        m_fnDrawCursor();
    }
}

// The painting has covered the part of the caret that lay in the context's clip, and that part alone.
void CInplaceEditor::RestoreCaretPixels(CDC& dc) {
    if (m_bCaretDrawn) {
        XorCaret(dc, m_rcDrawn);
    } else if (m_nCaretRedraw != 0) {
        DrawCaretHere();
    }
    m_nCaretRedraw = 0;
}

void CInplaceEditor::m_fnShowCursor(int nShow) {
    if (nShow == 1) {
        m_nCaretEnabled = 1;
        DrawCaretHere();
        return;
    }
    CRect rcCaret;
    m_fnGetCursorBoundRect(rcCaret);
    m_bCaretDrawn = false;
    RepaintOnParent(rcCaret);
    m_nCaretEnabled = 0;
}

void CInplaceEditor::RepaintOnParent(const CRect& rcClient) {
    if (!m_hWnd) {
        return;
    }
    CRect rcParent = rcClient;
    ClientToScreen(rcParent);
    m_pParentWnd->ScreenToClient(rcParent);
    m_pParentWnd->InvalidateRect(rcParent);
    m_pParentWnd->UpdateWindow();
}

void CInplaceEditor::RepaintAllOnParent() {
    if (m_hWnd) {
        m_pParentWnd->InvalidateRect(RectInParent());
        m_pParentWnd->UpdateWindow();
    }
}

void CInplaceEditor::OnTimer(UINT) {
    if (IsHidden() || m_nCaretEnabled == 0) {
        return;
    }
    if (m_nKeyboardMove != 0) {
        m_nKeyboardMove = 0;
    } else if (m_nHovering == 0) {
        m_fnDrawCursor();
    }
}

void CInplaceEditor::OnShowWindow(BOOL bShow, UINT nStatus) {
    CWnd::OnShowWindow(bShow, nStatus);
    m_bCaretDrawn = false;
    if (bShow && m_nCaretEnabled != 0) {
        m_nKeyboardMove = 1;
        m_nCaretRedraw = 1;
    }
}

void CInplaceEditor::m_fnMoveCursor(int nIndex) {
    if (nIndex == m_nCaret) {
        return;
    }
    CRect rcBefore;
    m_fnGetCursorBoundRect(rcBefore);
    const bool bRight = nIndex > m_nCaret;
    const int nLast = m_nOffsets - 1;
    nIndex = std::clamp(nIndex, -1, nLast);
    if (bRight && nIndex != nLast && IsLeadAt(m_strCurrent, nIndex)) {
        ++nIndex;
    } else if (!bRight && nIndex >= 0 && IsLeadAt(m_strCurrent, nIndex)) {
        --nIndex;
    }
    m_nCaret = nIndex;
    if (m_nCaretEnabled != 0) {
        DrawCaretHere();
        RepaintOnParent(rcBefore);
    }
}

void CInplaceEditor::GoTo(const TextPosition& position) {
    m_nCurrentLine = position.nLine;
    m_nCaret = position.nIndex;
    m_fnUpdateCurrentLineInfo();
}

void CInplaceEditor::MoveCaretTo(const TextPosition& position) {
    CRect rcBefore;
    m_fnGetCursorBoundRect(rcBefore);
    GoTo(position);
    DrawCaretHere();
    RepaintOnParent(rcBefore);
}

void CInplaceEditor::m_fnMoveCursorTo(CPoint& ptParent) {
    if (!m_hWnd) {
        return;
    }
    CPoint point = ptParent;
    m_pParentWnd->ClientToScreen(&point);
    ScreenToClient(&point);
    CRect rcBefore;
    m_fnGetCursorBoundRect(rcBefore);
    GoTo(HitTest(point));
    m_fnShowCursor(m_nCaretEnabled);
    if (IsWindowVisible()) {
        RepaintOnParent(rcBefore);
    }
}

void CInplaceEditor::m_fnGetCursorPos(CPoint& point) const {
    const int nBefore = m_nCaret > 1 ? ExtentAt(m_nCaret - 1) : 0;
    int nBehind = 0;
    if (m_nCaret >= 0) {
        nBehind = ExtentAt(std::min(m_nCaret + 1, m_nOffsets - 1));
    }
    point.x = m_rcCurrent.left + nBefore + (nBehind - nBefore) / 2;
    point.y = m_rcCurrent.top + m_rcCurrent.Height() / 2;
}

void CInplaceEditor::m_fnHitTest(const CPoint& point, int* pnLine, int* pnIndex) {
    const TextPosition hit = HitTest(point);
    *pnLine = hit.nLine;
    *pnIndex = hit.nIndex;
}
