#include <algorithm>
#include <vector>

#include "text/editor/double_byte.h"
#include "text/editor/inplace_editor.h"

namespace {

// The first line takes every point above its bottom, that row included; the last one takes what no other
// does.
int LineAt(const CTextLayout& layout, const CRect& rcArea, int nCount, LONG y) {
    const long long nHeight = layout.LineHeight();
    const long long nDown = 0LL + y - rcArea.top;
    if (nCount < 2 || nDown <= nHeight) {
        return 0;
    }
    return nHeight > 0 ? static_cast<int>(std::min<long long>(nDown / nHeight, nCount - 1)) : nCount - 1;
}

// A point in the left half of a character is before it.
int IndexAt(const std::vector<int>& offsets, long long nDown) {
    const int nCount = static_cast<int>(offsets.size());
    int nBefore = 0;
    for (int k = 0; k < nCount; ++k) {
        if (nDown <= nBefore + (offsets[static_cast<size_t>(k)] - nBefore) / 2) {
            return k - 1;
        }
        nBefore = offsets[static_cast<size_t>(k)];
    }
    return nCount - 1;
}

} // namespace

TextPosition CInplaceEditor::HitTest(const CPoint& point) {
    const CTextLayout layout = Measure();
    const CRect rcArea = layout.Area();
    const int nLine = LineAt(layout, rcArea, m_lines.GetCount(), point.y);
    const CString* const pLine = m_lines.Find(nLine);
    if (!pLine || pLine->IsEmpty()) {
        return {nLine, -1};
    }
    std::vector<int> offsets(static_cast<size_t>(pLine->GetLength()));
    int nFit = 0;
    if (!layout.Offsets(*pLine, &nFit, offsets.data())) {
        nFit = 0;
    }
    offsets.resize(static_cast<size_t>(nFit));
    int nIndex = IndexAt(offsets, 0LL + point.x - layout.LineRect(rcArea, nLine, *pLine).left);
    if (nIndex != -1 && nIndex != nFit - 1 && IsLeadAt(*pLine, nIndex)) {
        ++nIndex;
    }
    return {nLine, nIndex};
}
