#include "text/editor/text_layout.h"

#include <algorithm>
#include <memory>
#include <new>

#include "ops/saturate.h"
#include "text/editor/text_style.h"

namespace {

// The modes in which lines are measured, by alignment.
UINT MeasuringAlign(int nAlign) {
    switch (nAlign) {
    case text_align::Center: return TA_BASELINE | TA_CENTER;
    case text_align::Right: return TA_BASELINE | TA_RIGHT;
    default: return TA_BASELINE | TA_LEFT;
    }
}

} // namespace

void SelectTextFormat(HDC hDC, const TextFormat& format, UINT nTextAlign) {
    SelectObject(hDC, format.hFont);
    SetBkMode(hDC, TRANSPARENT);
    SetTextColor(hDC, format.crText);
    SetTextAlign(hDC, nTextAlign);
}

namespace {

CSize ExtentIn(HDC hDC, LPCSTR pszText, int nBytes) {
    SIZE size{};
    if (!GetTextExtentExPointA(hDC, pszText, nBytes, 0, nullptr, nullptr, &size)) {
        return CSize(0, 0);
    }
    return CSize(size);
}

} // namespace

CTextLayout::CTextLayout(const CLineStore& lines, const TextFormat& format)
    : m_lines(lines), m_hWnd(format.hWnd), m_hDC(GetDC(format.hWnd)), m_nAlign(format.nAlign),
      m_sizeBlank(0, 0) {
    if (m_hDC) {
        m_nSaved = SaveDC(m_hDC);
        SelectTextFormat(m_hDC, format, MeasuringAlign(m_nAlign));
        m_sizeBlank = ExtentIn(m_hDC, " ", 1);
    }
}

CTextLayout::~CTextLayout() {
    if (m_hDC) {
        RestoreDC(m_hDC, m_nSaved);
        ReleaseDC(m_hWnd, m_hDC);
    }
}

int CTextLayout::HeightOf(int nLines) const { return Saturated(1LL * nLines * LineHeight()); }

CSize CTextLayout::LineSize(const CString& strLine) const {
    return strLine.IsEmpty() ? CSize(0, LineHeight()) : ExtentIn(m_hDC, strLine, strLine.GetLength());
}

CSize CTextLayout::TextSize() const {
    LONG nWidest = 0;
    if (m_hDC) {
        for (POSITION position = m_lines.Begin(); position;) {
            nWidest = std::max(nWidest, LineSize(m_lines.Next(position)).cx);
        }
    }
    return CSize(nWidest, HeightOf(m_lines.GetCount()));
}

CRect CTextLayout::BoundAt(const CPoint& ptAnchor) const {
    const CPoint ptCorner(ptAnchor - CSize(0, LineHeight() / 2));
    if (m_lines.GetCount() == 0) {
        return CRect(ptCorner, CSize(0, LineHeight()));
    }
    const CSize size = TextSize();
    LONG nLead = 0;
    if (m_nAlign == text_align::Center) {
        nLead = size.cx / 2;
    } else if (m_nAlign == text_align::Right) {
        nLead = size.cx;
    }
    CRect rcBound(ptCorner - CSize(nLead, 0), size);
    rcBound.InflateRect(LeadSpace(), 1);
    return rcBound;
}

CRect CTextLayout::Area() const {
    const bool bWidthPlays = m_nAlign == text_align::Center || m_nAlign == text_align::Right;
    const CSize size = bWidthPlays ? TextSize() : CSize(0, HeightOf(m_lines.GetCount()));
    return CRect(CPoint(LeadSpace(), 1), size);
}

// The window is a pixel wider than the text with its margins. Wider than a window can be, it has to be
// measured.
CRect CTextLayout::AreaIn(int nWindowWidth) const {
    constexpr int LargestWindow = 32767;
    if (nWindowWidth >= LargestWindow) {
        return Area();
    }
    return CRect(CPoint(LeadSpace(), 1),
                 CSize(nWindowWidth - 1 - 2 * LeadSpace(), HeightOf(m_lines.GetCount())));
}

CRect CTextLayout::LineRect(const CRect& rcArea, int nLine, const CString& strLine) const {
    const CSize size = LineSize(strLine);
    int nLeft = rcArea.left;
    if (m_nAlign == text_align::Center) {
        nLeft += (rcArea.Width() - size.cx) / 2;
    } else if (m_nAlign == text_align::Right) {
        nLeft = rcArea.right - size.cx;
    }
    return CRect(CPoint(nLeft, Saturated(0LL + rcArea.top + HeightOf(nLine))), size);
}

CRect CTextLayout::SpanRect(const CRect& rcLine, const CString& strLine, const LineSpan& span) const {
    CRect rcSpan = rcLine;
    rcSpan.left = rcLine.left + ExtentOf(strLine, span.nFrom + 1);
    rcSpan.right = rcLine.left + ExtentOf(strLine, span.nTo + 1);
    if (span.nFrom == LineSpan::FromLineAbove) {
        rcSpan.left -= HalfLeadSpace();
    }
    if (span.nTo >= strLine.GetLength()) {
        rcSpan.right += HalfLeadSpace();
    }
    return rcSpan;
}

bool CTextLayout::Offsets(const CString& strLine, int* pnCount, int* pOffsets) const {
    const int nLength = strLine.GetLength();
    if (!m_hDC || nLength == 0) {
        return false;
    }
    SIZE size = ExtentIn(m_hDC, strLine, nLength);
    return GetTextExtentExPointA(m_hDC, strLine, nLength, size.cx, pnCount, pOffsets, &size) != FALSE;
}

int CTextLayout::ExtentOf(const CString& strLine, int nBytes) const {
    const int nLength = strLine.GetLength();
    const int nEnd = std::min(nBytes, nLength);
    if (nEnd <= 0) {
        return 0;
    }
    if (nEnd == nLength || !IsDBCSLeadByte(static_cast<BYTE>(strLine[nEnd - 1]))) {
        return ExtentIn(m_hDC, strLine, nEnd).cx;
    }
    // The end may lie inside a character, so what follows plays a part.
    const std::unique_ptr<int[]> pOffsets(new (std::nothrow) int[static_cast<size_t>(nLength)]());
    int nCount = 0;
    return pOffsets && Offsets(strLine, &nCount, pOffsets.get()) ? pOffsets[nEnd - 1] : 0;
}
