#include "text/editor/line_store.h"

#include <new>

CString TrimmedBlanks(const CString& strText) {
    constexpr char Blank = ' ';
    int nFirst = 0;
    int nEnd = strText.GetLength();
    while (nFirst < nEnd && strText[nFirst] == Blank) {
        ++nFirst;
    }
    while (nEnd > nFirst && strText[nEnd - 1] == Blank) {
        --nEnd;
    }
    return strText.Mid(nFirst, nEnd - nFirst);
}

POSITION CLineStore::PositionOf(int nLine) const {
    const int nCount = GetCount();
    if (nLine < 0 || nLine >= nCount) {
        return nullptr;
    }
    if (nLine < nCount / 2) {
        return m_lines.FindIndex(nLine);
    }
    POSITION position = Last();
    for (int i = nCount - 1; i > nLine; --i) {
        Prev(position);
    }
    return position;
}

const CString* CLineStore::Find(int nLine) const {
    POSITION position = PositionOf(nLine);
    return position ? &Next(position) : nullptr;
}

int CLineStore::LengthOf(int nLine) const {
    const CString* const pLine = Find(nLine);
    return pLine ? pLine->GetLength() : 0;
}

int CLineStore::GetLine(int nLine, CString& strLine) const {
    const CString* const pLine = Find(nLine);
    if (!pLine) {
        strLine.Empty();
        return 0;
    }
    strLine = *pLine;
    return 1;
}

int CLineStore::GetTrimmedLine(int nLine, CString& strLine) const {
    const int nFound = GetLine(nLine, strLine);
    strLine = TrimmedBlanks(strLine);
    return nFound;
}

int CLineStore::InsertText(int nAfter, const CString& strText) {
    const int nLast = GetCount() - 1;
    return InsertPieces(nAfter < 0 ? nullptr : PositionOf(nAfter > nLast ? nLast : nAfter), strText);
}

// A null place is before all lines.
int CLineStore::InsertPieces(POSITION after, const CString& strText) try {
    int nFirst = 0;
    for (int nEnd = 0; nEnd >= 0; nFirst = nEnd + 1) {
        nEnd = strText.Find('\n', nFirst);
        const CString strPiece = nEnd < 0 ? strText.Mid(nFirst) : strText.Mid(nFirst, nEnd - nFirst);
        after = after ? m_lines.InsertAfter(after, strPiece) : m_lines.AddHead(strPiece);
        if (!after) {
            return 0;
        }
    }
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

int CLineStore::ReplaceLine(int nLine, const CString& strText) {
    POSITION position = PositionOf(nLine);
    if (!position) {
        return 0;
    }
    POSITION before = position;
    Prev(before);
    m_lines.RemoveAt(position);
    return InsertPieces(before, strText);
}

void CLineStore::RemoveLine(int nLine) { RemoveLines(nLine, 1); }

void CLineStore::RemoveLines(int nFirst, int nCount) {
    POSITION position = PositionOf(nFirst);
    for (; position && nCount > 0; --nCount) {
        POSITION next = position;
        Next(next);
        m_lines.RemoveAt(position);
        position = next;
    }
}
