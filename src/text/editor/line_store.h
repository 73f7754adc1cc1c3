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
    void RemoveAll() { m_lines.RemoveAll(); }

    /// Walking down or up: a place, null past the ends; Next and Prev answer its line and step on.
    POSITION Begin() const { return m_lines.GetHeadPosition(); }
    POSITION Last() const { return m_lines.GetTailPosition(); }
    POSITION PositionOf(int nLine) const;
    const CString& Next(POSITION& position) const { return Mutable().GetNext(position); }
    const CString& Prev(POSITION& position) const { return Mutable().GetPrev(position); }

  private:
    using CLines = CList<CString, const CString&>;

    // The list's own walk over a constant list copies each element.
    CLines& Mutable() const { return const_cast<CLines&>(m_lines); }
    int InsertPieces(POSITION after, const CString& strText);

    CLines m_lines{10};
};

/// The text without the blanks (byte 32) at both ends; other white space stays.
CString TrimmedBlanks(const CString& strText);
