#include <algorithm>
#include <utility>

#include "text/editor/inplace_editor.h"

int CInplaceEditor::m_fnGetAbsoluteCharIndex(int nLine, int nIndex) const {
    const CString* const pLine = m_lines.Find(nLine);
    if (!pLine || nIndex < -1 || nIndex >= pLine->GetLength()) {
        return -1;
    }
    int nStart = 0;
    POSITION position = m_lines.Begin();
    for (int i = 0; i < nLine; ++i) {
        nStart += m_lines.Next(position).GetLength() + 1;
    }
    return nStart + nIndex;
}

void CInplaceEditor::m_fnConvertToLineIndex(int nAbsolute, int* pnLine, int* pnIndex) const {
    if (!pnLine || !pnIndex) {
        return;
    }
    *pnLine = 0;
    *pnIndex = -1;
    int nStart = 0;
    int nLine = 0;
    for (POSITION position = m_lines.Begin(); position; ++nLine) {
        const int nLength = m_lines.Next(position).GetLength();
        if (nAbsolute >= nStart - 1 && nAbsolute < nStart + nLength) {
            *pnLine = nLine;
            *pnIndex = nAbsolute - nStart;
            return;
        }
        nStart += nLength + 1;
    }
}

TextRange CInplaceEditor::ClampedRange(TextRange range) const {
    const int nLast = m_lines.GetCount() - 1;
    range.start.nLine = std::clamp(range.start.nLine, 0, nLast);
    range.end.nLine = std::clamp(range.end.nLine, 0, nLast);
    if (range.start.nLine > range.end.nLine) {
        std::swap(range.start, range.end);
    }
    range.start.nIndex = std::clamp(range.start.nIndex, -1, m_lines.LengthOf(range.start.nLine) - 1);
    range.end.nIndex = std::clamp(range.end.nIndex, -1, m_lines.LengthOf(range.end.nLine) - 1);
    if (range.end < range.start) {
        std::swap(range.start, range.end);
    }
    return range;
}

void CInplaceEditor::m_fnSetSelectRange(int nStartLine, int nStartIndex, int nEndLine, int nEndIndex) {
    if (m_lines.GetCount() == 0) {
        return;
    }
    const TextRange before = m_selection;
    m_selection = ClampedRange({{nStartLine, nStartIndex}, {nEndLine, nEndIndex}});
    m_nSelectionExists = m_selection.IsEmpty() ? 0 : 1;
    if (!IsHidden()) {
        RepaintChange(before, m_selection);
    }
}

void CInplaceEditor::ClearSelection() {
    if (m_nSelectionExists != 0) {
        m_fnSetSelectRange(0, -1, 0, -1);
    }
}

// For a text that has changed under it: its places may be no more.
void CInplaceEditor::ForgetSelection() {
    m_selection = {};
    m_nSelectionExists = 0;
}

LineSpan CInplaceEditor::m_fnCalculateLineIntersection(int nLine, const TextRange& range) const {
    return SpanOnLine(range, nLine, m_lines.LengthOf(nLine));
}

void CInplaceEditor::RepaintChange(const TextRange& before, const TextRange& after) {
    if (before != after && !(before.IsEmpty() && after.IsEmpty())) {
        InvalidateChange(before, after);
        m_pParentWnd->UpdateWindow();
    }
}

void CInplaceEditor::InvalidateChange(const TextRange& before, const TextRange& after) {
    const TextRange& first = before.IsEmpty() ? after : before;
    const TextRange& second = after.IsEmpty() ? before : after;
    const int nFirst = std::min(first.start.nLine, second.start.nLine);
    const int nLast = std::max(first.end.nLine, second.end.nLine);
    const CTextLayout layout = Measure();
    const CRect rcArea = layout.Area();
    POSITION position = m_lines.PositionOf(nFirst);
    for (int nLine = nFirst; position && nLine <= nLast; ++nLine) {
        const CString& strLine = m_lines.Next(position);
        const LineSpan spanBefore = SpanOnLine(before, nLine, strLine.GetLength());
        const LineSpan spanAfter = SpanOnLine(after, nLine, strLine.GetLength());
        if (spanBefore != spanAfter) {
            InvalidateChange(layout, layout.LineRect(rcArea, nLine, strLine), strLine, spanBefore, spanAfter);
        }
    }
}

void CInplaceEditor::m_fnCalculateLineIntersection(int nLine, const LineSpan& before, const LineSpan& after) {
    CRect rcLine;
    const CString* const pLine = m_lines.Find(nLine);
    if (pLine && m_fnGetLineBoundRect(nLine, rcLine)) {
        InvalidateChange(Measure(), rcLine, *pLine, before, after);
    }
}

void CInplaceEditor::InvalidateChange(const CTextLayout& layout, const CRect& rcLine, const CString& strLine,
                                      const LineSpan& before, const LineSpan& after) {
    const bool bApart =
        before.IsEmpty() || after.IsEmpty() || before.nTo <= after.nFrom || after.nTo <= before.nFrom;
    if (bApart) {
        InvalidateSpan(layout, rcLine, strLine, before);
        InvalidateSpan(layout, rcLine, strLine, after);
        return;
    }
    InvalidateSpan(layout, rcLine, strLine,
                   {std::min(before.nFrom, after.nFrom), std::max(before.nFrom, after.nFrom)});
    InvalidateSpan(layout, rcLine, strLine,
                   {std::min(before.nTo, after.nTo), std::max(before.nTo, after.nTo)});
}

void CInplaceEditor::InvalidateSpan(const CTextLayout& layout, const CRect& rcLine, const CString& strLine,
                                    const LineSpan& span) {
    if (!span.IsEmpty()) {
        m_pParentWnd->InvalidateRect(layout.SpanRect(rcLine, strLine, span) + RectInParent().TopLeft());
    }
}

void CInplaceEditor::m_fnInvalidateLineRange(int nLine, int nFrom, int nTo) {
    CRect rcLine;
    const CString* const pLine = m_lines.Find(nLine);
    if (pLine && m_hWnd && m_fnGetLineBoundRect(nLine, rcLine)) {
        InvalidateSpan(Measure(), rcLine, *pLine, {nFrom, nTo});
    }
}

void CInplaceEditor::m_fnReplaceSelectRange(CString& strText, int nRedraw) {
    if (m_lines.GetCount() == 0) {
        m_lines.InsertText(-1, strText);
        RedrawAfterChange(nRedraw);
        m_fnUpdateCurrentLineInfo();
    } else if (m_nSelectionExists != 0) {
        ReplaceSelected(strText, nRedraw);
    } else {
        InsertAtCaret(strText, nRedraw);
    }
}

void CInplaceEditor::RedrawAfterChange(int nRedraw) {
    m_nFittingWidth = 0;
    if (nRedraw == 1) {
        m_fnUpdateWindowPos();
        RepaintAllOnParent();
    }
}

// A caret inside the replaced text goes to the end of the new one, a later one keeps its distance. Where the
// selection was inverted is known only before the change, and has to be painted even when nothing else is.
void CInplaceEditor::ReplaceSelected(const CString& strText, int nRedraw) {
    const int nShown = m_nCaretEnabled;
    if (nShown != 0) {
        m_fnShowCursor(0);
    }
    const int nStart = m_fnGetAbsoluteCharIndex(m_selection.start.nLine, m_selection.start.nIndex);
    const int nEnd = m_fnGetAbsoluteCharIndex(m_selection.end.nLine, m_selection.end.nIndex);
    int nCaret = m_fnGetAbsoluteCharIndex(m_nCurrentLine, m_nCaret);
    const bool bPaintsSelection = nRedraw != 1 && !IsHidden();
    if (bPaintsSelection) {
        InvalidateChange(m_selection, {});
    }
    SpliceRange(m_selection, strText);
    if (nCaret >= nStart) {
        nCaret = (nCaret < nEnd ? 0 : nCaret - nEnd) + nStart + strText.GetLength();
    }
    TextPosition caret;
    m_fnConvertToLineIndex(nCaret, &caret.nLine, &caret.nIndex);
    ForgetSelection();
    RedrawAfterChange(nRedraw);
    if (bPaintsSelection) {
        m_pParentWnd->UpdateWindow();
    }
    GoTo(caret);
    if (nShown != 0) {
        m_fnShowCursor(1);
    }
}

void CInplaceEditor::SpliceRange(const TextRange& range, const CString& strText) {
    CString strFirst;
    CString strLast;
    m_lines.GetLine(range.start.nLine, strFirst);
    m_lines.GetLine(range.end.nLine, strLast);
    m_lines.RemoveLines(range.start.nLine + 1, range.end.nLine - range.start.nLine);
    m_lines.ReplaceLine(range.start.nLine,
                        strFirst.Left(range.start.nIndex + 1) + strText + strLast.Mid(range.end.nIndex + 1));
}

void CInplaceEditor::InsertAtCaret(const CString& strText, int nRedraw) {
    CString strLine;
    if (m_lines.GetLine(m_nCurrentLine, strLine) != 0) {
        m_lines.ReplaceLine(m_nCurrentLine, strLine.Left(m_nCaret + 1) + strText + strLine.Mid(m_nCaret + 1));
    }
    RedrawAfterChange(nRedraw);
    m_fnUpdateCurrentLineInfo();
}
