#include <algorithm>
#include <array>

#include "text/editor/double_byte.h"
#include "text/editor/inplace_editor.h"

// The parent has painted what lies under the text.
BOOL CInplaceEditor::OnEraseBkgnd(CDC*) { return TRUE; }

void CInplaceEditor::OnPaint() {
    CPaintDC dc(this);
    if (!dc.m_hDC) {
        m_bCaretDrawn = false;
        return;
    }
    PaintLines(dc);
    PaintBorder(dc);
    RestoreCaretPixels(dc);
}

void CInplaceEditor::PaintLines(CDC& dc) {
    CRect rcClient;
    CRect rcClip;
    GetClientRect(rcClient);
    dc.GetClipBox(rcClip);
    const CTextLayout layout = Measure();
    const CRect rcArea = TextArea(layout);
    const int nSaved = dc.SaveDC();
    SelectTextFormat(dc, Format(), TA_LEFT | TA_TOP);
    // The lowest row of a line's glyphs may lie over the line below.
    const int nAbove = layout.LineHeight() > 0 ? (rcClip.top - 1 - rcArea.top) / layout.LineHeight() : 0;
    int nLine = std::max(nAbove, 0);
    for (POSITION position = m_lines.PositionOf(nLine); position; ++nLine) {
        const CString& strLine = m_lines.Next(position);
        const CRect rcLine = layout.LineRect(rcArea, nLine, strLine);
        // Nothing that stands lower can show, either.
        if (rcLine.top >= rcClient.bottom || rcLine.top >= rcClip.bottom) {
            break;
        }
        PaintLine(dc, layout, rcLine, nLine, strLine);
    }
    dc.RestoreDC(nSaved);
}

void CInplaceEditor::PaintLine(CDC& dc, const CTextLayout& layout, const CRect& rcLine, int nLine,
                               const CString& strLine) {
    const bool bSelected =
        m_nSelectionExists != 0 && nLine >= m_selection.start.nLine && nLine <= m_selection.end.nLine;
    if (bSelected && (nLine == m_selection.start.nLine || nLine == m_selection.end.nLine)) {
        PaintSelectedLine(dc, layout, rcLine, strLine, SpanOnLine(m_selection, nLine, strLine.GetLength()));
        return;
    }
    dc.TextOut(rcLine.left, rcLine.top, strLine);
    if (bSelected) {
        CRect rcWhole = rcLine;
        rcWhole.InflateRect(layout.HalfLeadSpace(), 0);
        m_fnInvertFillRect(dc, rcWhole);
    }
}

// In three pieces: before the selection, the selection, and behind it.
void CInplaceEditor::PaintSelectedLine(CDC& dc, const CTextLayout& layout, const CRect& rcLine,
                                       const CString& strLine, const LineSpan& span) {
    const int nLength = strLine.GetLength();
    const int nFirst = WholeCharacters(strLine, std::max(span.nFrom + 1, 0));
    const int nEnd = WholeCharacters(strLine, std::min(span.nTo + 1, nLength));
    const std::array<int, 4> ends = {0, nFirst, nEnd, nLength};
    for (size_t i = 0; i + 1 < ends.size(); ++i) {
        dc.TextOut(rcLine.left + layout.ExtentOf(strLine, ends[i]), rcLine.top,
                   static_cast<LPCSTR>(strLine) + ends[i], ends[i + 1] - ends[i]);
    }
    m_fnInvertFillRect(dc, layout.SpanRect(rcLine, strLine, span));
}

// White combined by exclusive or; only what the context shows, because a line may be longer than a bitmap.
void CInplaceEditor::m_fnInvertFillRect(CDC& dc, const CRect& rcArea) {
    CRect rcShown;
    dc.GetClipBox(rcShown);
    rcShown &= rcArea;
    CDC dcWhite;
    CBitmap white;
    if (rcShown.IsRectEmpty() || !dcWhite.CreateCompatibleDC(&dc) ||
        !white.CreateCompatibleBitmap(&dc, rcShown.Width(), rcShown.Height())) {
        return;
    }
    CBitmap* const pBefore = dcWhite.SelectObject(&white);
    dcWhite.PatBlt(0, 0, rcShown.Width(), rcShown.Height(), WHITENESS);
    dc.BitBlt(rcShown.left, rcShown.top, rcShown.Width(), rcShown.Height(), &dcWhite, 0, 0, SRCINVERT);
    dcWhite.SelectObject(pBefore);
}

void CInplaceEditor::PaintBorder(CDC& dc) {
    CPen pen(PS_DOT, 1, RGB(0, 0, 0));
    if (!pen.GetSafeHandle()) {
        return;
    }
    CRect rcClient;
    GetClientRect(rcClient);
    const int nSaved = dc.SaveDC();
    dc.SetBkMode(TRANSPARENT);
    dc.SelectObject(&pen);
    dc.MoveTo(rcClient.left, rcClient.top);
    dc.LineTo(rcClient.right - 1, rcClient.top);
    dc.LineTo(rcClient.right - 1, rcClient.bottom - 1);
    dc.LineTo(rcClient.left, rcClient.bottom - 1);
    dc.LineTo(rcClient.left, rcClient.top);
    dc.RestoreDC(nSaved);
}
