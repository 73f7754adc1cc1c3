#include <algorithm>

#include "text/editor/inplace_editor.h"

void CInplaceEditor::m_fnConvertToClipboardNewLine(const CString& strIn, CString& strOut) {
    const int nLength = strIn.GetLength();
    const LPCSTR pszIn = strIn;
    const auto nBreaks = static_cast<int>(std::count(pszIn, pszIn + nLength, '\n'));
    CString strResult;
    LPSTR pszOut = strResult.GetBuffer(nLength + nBreaks);
    for (int i = 0; i < nLength; ++i) {
        if (pszIn[i] == '\n') {
            *pszOut++ = '\r';
        }
        *pszOut++ = pszIn[i];
    }
    strResult.ReleaseBuffer(nLength + nBreaks);
    strOut = strResult;
}

void CInplaceEditor::m_fnConvertClipboardNewLine(const CString& strIn, CString& strOut) {
    const LPCSTR pszIn = strIn;
    CString strResult;
    const LPSTR pszOut = strResult.GetBuffer(strIn.GetLength());
    const LPSTR pszEnd = std::remove_copy(pszIn, pszIn + strIn.GetLength(), pszOut, '\r');
    strResult.ReleaseBuffer(static_cast<int>(pszEnd - pszOut));
    strOut = strResult;
}

int CInplaceEditor::m_fnGetSelectedText(CString& strText) const {
    strText.Empty();
    if (m_nSelectionExists == 0) {
        return 1;
    }
    POSITION position = m_lines.PositionOf(m_selection.start.nLine);
    for (int nLine = m_selection.start.nLine; position && nLine <= m_selection.end.nLine; ++nLine) {
        const CString& strLine = m_lines.Next(position);
        const LineSpan span = SpanOnLine(m_selection, nLine, strLine.GetLength());
        const int nFirst = std::max(span.nFrom + 1, 0);
        if (nLine != m_selection.start.nLine) {
            strText += '\n';
        }
        strText += strLine.Mid(nFirst, span.nTo + 1 - nFirst);
    }
    return 1;
}

// Lines stand on each other without gaps, so one of them alone can hold the point.
int CInplaceEditor::m_fnIsInsideSelectionRange(const CPoint& point) {
    if (m_nSelectionExists == 0) {
        return 0;
    }
    const CTextLayout layout = Measure();
    const CRect rcArea = layout.Area();
    if (layout.LineHeight() <= 0 || point.y < rcArea.top) {
        return 0;
    }
    const int nLine = (point.y - rcArea.top) / layout.LineHeight();
    const CString* const pLine = m_lines.Find(nLine);
    if (!pLine) {
        return 0;
    }
    const LineSpan span = SpanOnLine(m_selection, nLine, pLine->GetLength());
    const CRect rcLine = layout.LineRect(rcArea, nLine, *pLine);
    return layout.SpanRect(rcLine, *pLine, span).PtInRect(point) ? 1 : 0;
}

// Asked at the selection's start, which is always on the selection.
void CInplaceEditor::CopySelection() {
    const CString* const pLine = m_lines.Find(m_selection.start.nLine);
    CRect rcLine;
    if (m_nSelectionExists == 0 || !pLine || !m_fnGetLineBoundRect(m_selection.start.nLine, rcLine)) {
        return;
    }
    CPoint point(rcLine.TopLeft());
    point.x += Measure().ExtentOf(*pLine, m_selection.start.nIndex + 1);
    if (m_fnIsCopyToClipboardEnabled(point)) {
        m_fnCopyDataToClipboard(point);
    }
}

// The delivered text redraws the window, so taking the selection away does it only when none came.
void CInplaceEditor::PasteAtCaret() {
    const bool bShown = HideShownCaret();
    const bool bReplaces = m_nSelectionExists != 0;
    if (bReplaces) {
        CString strNothing;
        m_fnReplaceSelectRange(strNothing, 0);
    }
    CPoint point(m_rcCurrent.left + ExtentAt(m_nCaret), m_rcCurrent.top + m_rcCurrent.Height() / 2);
    const bool bPasted = m_fnIsPasteFromClipboardEnabled(point) && m_fnPasteClipboardData(point);
    if (bReplaces && !bPasted) {
        RedrawAfterChange(1);
        m_fnUpdateCurrentLineInfo();
    }
    if (bShown) {
        m_fnShowCursor(1);
    }
}

bool CInplaceEditor::HideShownCaret() {
    if (m_nCaretEnabled == 0) {
        return false;
    }
    m_fnShowCursor(0);
    return true;
}

int CInplaceEditor::m_fnOnPrepareDrag(CPoint& point) {
    m_fnSetAllowedDragOperation(drop_effect::Copy | drop_effect::Move);
    m_fnSetPreferClipboardFormat(DropFormatText);
    return m_fnIsInsideSelectionRange(point);
}

int CInplaceEditor::m_fnOnPrepareDragData_CF_TEXT(CPoint&, CString& strData) {
    CString strText;
    m_fnGetSelectedText(strText);
    m_fnConvertToClipboardNewLine(strText, strData);
    return 1;
}

int CInplaceEditor::m_fnOnDataArrive(int, int nPhase, UINT nFormat, CString&, DWORD dwKeyState, CPoint point,
                                     DWORD dwSource, DWORD* pdwEffect) {
    DWORD dwUnasked = drop_effect::None;
    DWORD& dwEffect = pdwEffect ? *pdwEffect : dwUnasked;
    dwEffect = drop_effect::None;
    if (m_nHovering == 0) {
        EnterHover();
    }
    if (nPhase == drop_phase::Drop) {
        LeaveHover();
    }
    if (nFormat != DropFormatText) {
        return 0;
    }
    // A refused drop leaves the restored caret alone.
    if (m_fnIsInsideSelectionRange(point)) {
        if (m_nHovering != 0) {
            HideShownCaret();
        }
        return 0;
    }
    if (nPhase == drop_phase::Drop) {
        m_ptDrop = point;
        dwEffect = DropEffect();
        return 1;
    }
    ShowDropPlace(point);
    m_nDropMoves = (dwKeyState & MK_CONTROL) != 0 || dwSource == drop_source::Foreign ? 0 : 1;
    dwEffect = DropEffect();
    return 0;
}

void CInplaceEditor::EnterHover() {
    m_nHovering = 1;
    m_savedCaret = Caret();
    m_nSavedEnabled = m_nCaretEnabled;
    HideShownCaret();
}

// The text may have become shorter under the hovering drag.
void CInplaceEditor::LeaveHover() {
    m_nHovering = 0;
    HideShownCaret();
    if (m_lines.GetCount() > 0) {
        GoTo(ClampedRange({m_savedCaret, m_savedCaret}).start);
    }
    if (m_nSavedEnabled != 0) {
        m_fnShowCursor(1);
    }
}

void CInplaceEditor::ShowDropPlace(const CPoint& point) {
    const TextPosition hit = HitTest(point);
    if (hit != Caret()) {
        HideShownCaret();
        GoTo(hit);
    }
    m_fnShowCursor(1);
}

void CInplaceEditor::m_fnOnDataArrive_CF_TEXT(int, CString& strData, DWORD, DWORD* pdwEffect) {
    if (pdwEffect) {
        *pdwEffect = DropEffect();
    }
    const bool bShown = HideShownCaret();
    CString strText;
    m_fnConvertClipboardNewLine(strData, strText);
    GoTo(HitTest(m_ptDrop));
    if (m_nDropMoves != 0) {
        CString strNothing;
        m_fnReplaceSelectRange(strNothing, 0);
    } else {
        ClearSelection();
    }
    m_fnReplaceSelectRange(strText, 1);
    if (bShown) {
        m_fnShowCursor(1);
    }
}

void CInplaceEditor::m_fnOnDragLeave() {
    if (m_nHovering != 0) {
        LeaveHover();
    }
}
