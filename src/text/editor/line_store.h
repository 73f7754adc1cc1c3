// The lines of a text. Line breaks exist only as the boundaries between them.
#pragma once

#include <afxtempl.h>
#include <afxwin.h>

/// A doubly linked list of lines, counted from 0. A lookup walks from the nearer end.
class CLineStore {
  public:
    int GetCount() const { return m_lines.GetCount(); }
    /// Copies the line: 1. Outside the store `strLine` becomes empty: 0.
    int GetLine(int nLine, CString& strLine) const;
    /// The same without the blanks (byte 32) at both ends.
    int GetTrimmedLine(int nLine, CString& strLine) const;
    /// The line where it stands, or null outside the store. Good until the store changes.
    const CString* Find(int nLine) const;
    /// The line's length in bytes; 0 outside the store.
    int LengthOf(int nLine) const;

    /// Inserts the pieces of the text, parted at each LF, behind the line: -1 is before all, the count or
    /// more behind all. 1, or 0 when memory runs out; part of the text may then be inserted.
    int InsertText(int nAfter, const CString& strText);
    /// Puts the pieces of the text in the line's place. 0 outside the store, else as InsertText.
    int ReplaceLine(int nLine, const CString& strText);
    void RemoveLine(int nLine);
    /// The lines from `nFirst` on, `nCount` of them.
    void RemoveLines(int nFirst, int nCount);
    void RemoveAll();

    /// The widest line's width, 0 for no lines. `measure` tells a line's width; it is asked once a line,
    /// until the code page is another or the widths are to be forgotten.
    template <class Measure>
    int Widest(Measure&& measure) const;
    /// The lines' font has changed.
    void ForgetWidths() const;

    /// Walking down or up: a place, null past the ends; Next and Prev answer its line and step on.
    POSITION Begin() const { return m_lines.GetHeadPosition(); }
    POSITION Last() const { return m_lines.GetTailPosition(); }
    POSITION PositionOf(int nLine) const;
    const CString& Next(POSITION& position) const { return Mutable().GetNext(position).strText; }
    const CString& Prev(POSITION& position) const { return Mutable().GetPrev(position).strText; }

  private:
    static constexpr int NotMeasured = -1;

    struct Line {
        CString strText;
        int nWidth = NotMeasured;
    };
    using CLines = CList<Line, const Line&>;

    // The list's own walk over a constant list copies each element.
    CLines& Mutable() const { return const_cast<CLines&>(m_lines); }
    int InsertPieces(POSITION after, const CString& strText);

    CLines m_lines{10};
    mutable int m_nWidest = NotMeasured;
    mutable UINT m_nCodePage = 0; ///< under which the widths were measured
};

template <class Measure>
int CLineStore::Widest(Measure&& measure) const {
    if (m_nCodePage != GetACP()) {
        ForgetWidths();
    }
    if (m_nWidest == NotMeasured) {
        m_nWidest = 0;
        for (POSITION position = Begin(); position;) {
            Line& line = Mutable().GetNext(position);
            if (line.nWidth == NotMeasured) {
                line.nWidth = measure(static_cast<const CString&>(line.strText));
            }
            m_nWidest = m_nWidest < line.nWidth ? line.nWidth : m_nWidest;
        }
    }
    return m_nWidest;
}

/// The text without the blanks (byte 32) at both ends; other white space stays.
CString TrimmedBlanks(const CString& strText);
