#include "text/editor/double_byte.h"
#include "text/editor/inplace_editor.h"

#include <algorithm>
#include <limits>
#include <new>

namespace {

constexpr DWORD DefaultCharSet = 1;

} // namespace

TextFormat CInplaceEditor::Format() const {
    return {m_hWnd, static_cast<HFONT>(m_font.GetSafeHandle()), m_crText, m_nAlign};
}

CTextLayout CInplaceEditor::Measure() const { return CTextLayout(m_lines, Format()); }

int CInplaceEditor::m_fnRegenerateFont() {
    m_font.DeleteObject();
    m_nFittingWidth = 0;
    const int nHeight = -std::max(m_nFontSize, -std::numeric_limits<int>::max());
    if (!m_font.CreateFont(nHeight, 0, 0, 0, m_nBold ? FW_BOLD : FW_NORMAL, static_cast<BYTE>(m_nItalic),
                           static_cast<BYTE>(m_nUnderline), 0, DefaultCharSet, 0, 0, 0, 0, m_strFontName)) {
        return 0;
    }
    m_fnUpdateWindowPos();
    m_fnUpdateCurrentLineInfo();
    return 1;
}

int CInplaceEditor::m_fnGetTextBoundRect(CRect& rcBound) {
    rcBound = Measure().BoundAt(m_ptAnchor);
    return 1;
}

// The widest line need not be sought in a window that was made for it.
CRect CInplaceEditor::TextArea(const CTextLayout& layout) const {
    CRect rcClient(0, 0, 0, 0);
    if (m_nFittingWidth > 0 && m_hWnd) {
        GetClientRect(rcClient);
    }
    const bool bFits = layout.LineHeight() > 0 && m_nFittingWidth > 0 && rcClient.Width() == m_nFittingWidth;
    return bFits ? layout.AreaIn(rcClient.Width()) : layout.Area();
}

void CInplaceEditor::m_fnUpdateWindowPos() {
    CRect rcWindow;
    m_fnGetTextBoundRect(rcWindow);
    const bool bMeasured = rcWindow.Height() > 2; // Unmeasured, it has its margins alone.
    rcWindow.right += 1;
    rcWindow.bottom += 1;
    if (!m_hWnd) {
        return;
    }
    CRect rcChanged = RectInParent();
    MoveWindow(rcWindow, FALSE);
    m_nFittingWidth = bMeasured ? rcWindow.Width() : 0;
    if (IsWindowVisible()) {
        rcChanged |= rcWindow;
        m_pParentWnd->InvalidateRect(rcChanged);
        m_pParentWnd->UpdateWindow();
    }
}

void CInplaceEditor::m_fnCenterWindow(CPoint& ptCenter) {
    if (!m_hWnd) {
        return;
    }
    const CRect rcBefore = RectInParent();
    const CSize delta(ptCenter - rcBefore.CenterPoint());
    MoveWindow(rcBefore + delta, FALSE);
    m_ptAnchor += delta;
    if (IsWindowVisible()) {
        m_pParentWnd->InvalidateRect(rcBefore | (rcBefore + delta));
        m_pParentWnd->UpdateWindow();
    }
}

void CInplaceEditor::m_fnSetTextAlignType(int nAlign) {
    if (!m_hWnd) {
        m_nAlign = nAlign;
        m_ptAnchor = CPoint(0, 0);
        return;
    }
    CRect rcArea;
    CSize sizeFirst;
    m_fnGetTextBoundRect(rcArea);
    rcArea.DeflateRect(m_fnGetLineLeadSpace(), 1);
    m_fnGetLineSize(0, sizeFirst);
    const CPoint ptMiddle(rcArea.TopLeft() + CSize(0, sizeFirst.cy / 2));
    switch (nAlign) {
    case text_align::Left: m_ptAnchor = ptMiddle; break;
    case text_align::Center: m_ptAnchor = ptMiddle + CSize(rcArea.Width() / 2, 0); break;
    case text_align::Right: m_ptAnchor = ptMiddle + CSize(rcArea.Width(), 0); break;
    default: break;
    }
    m_nAlign = nAlign;
    m_fnRegenerateFont();
}

int CInplaceEditor::m_fnGetLineLeadSpace() { return Measure().LeadSpace(); }

void CInplaceEditor::m_fnGetEmptyLineSize(CSize& size) { size = CSize(0, Measure().LineHeight()); }

int CInplaceEditor::m_fnGetLineSize(int nLine, CSize& size) {
    size = CSize(0, 0);
    const CString* const pLine = m_lines.Find(nLine);
    if (!pLine) {
        return 0;
    }
    size = Measure().LineSize(*pLine);
    return 1;
}

int CInplaceEditor::m_fnGetLineBoundRect(int nLine, CRect& rcLine) {
    const CString* const pLine = m_lines.Find(nLine);
    if (!pLine) {
        return 0;
    }
    const CTextLayout layout = Measure();
    rcLine = layout.LineRect(TextArea(layout), nLine, *pLine);
    return 1;
}

int CInplaceEditor::m_fnGetLineCharOffset(int nLine, int* pnCount, int** ppOffsets) {
    *pnCount = 0;
    *ppOffsets = nullptr;
    const CString* const pLine = m_lines.Find(nLine);
    if (!pLine) {
        return 0;
    }
    if (pLine->IsEmpty()) {
        return 1;
    }
    int* const pOffsets = new (std::nothrow) int[static_cast<size_t>(pLine->GetLength()) + 1]();
    if (!pOffsets || !Measure().Offsets(*pLine, pnCount, pOffsets)) {
        delete[] pOffsets;
        *pnCount = 0;
        return 0;
    }
    *ppOffsets = pOffsets;
    return 1;
}

int CInplaceEditor::m_fnUpdateCurrentLineInfo() {
    if (m_lines.GetLine(m_nCurrentLine, m_strCurrent) == 0) {
        return 0;
    }
    FreeOffsets();
    m_fnGetLineCharOffset(m_nCurrentLine, &m_nOffsets, &m_pOffsets);
    m_fnGetLineBoundRect(m_nCurrentLine, m_rcCurrent);
    SyncCaretPixels();
    return 1;
}

int CInplaceEditor::m_fnIsCursorAtMultiByteChar(int nIndex) const {
    return nIndex >= 1 && nIndex <= m_nOffsets - 1 && IsLeadAt(m_strCurrent, nIndex - 1);
}

CRect CInplaceEditor::RectInParent() const {
    CRect rcWindow;
    GetWindowRect(rcWindow);
    m_pParentWnd->ScreenToClient(rcWindow);
    return rcWindow;
}
