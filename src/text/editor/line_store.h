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

    /// Inserts the pieces of the text, parted at each LF, behind the line: -1 is before all, the count or more
    /// behind all. 1, or 0 when memory runs out; part of the text may then be inserted.
    int InsertText(int nAfter, const CString& strText);
    /// Puts the pieces of the text in the line's place. 0 for a line past the end, else as InsertText.
    int ReplaceLine(int nLine, const CString& strText);
    void RemoveLine(int nLine);
    void RemoveAll() { m_lines.RemoveAll(); }

    /// Walking down: the position of a line, null past the end; Next answers its line and steps on.
    POSITION Begin() const { return m_lines.GetHeadPosition(); }
    const CString& Next(POSITION& position) const { return const_cast<CList&>(m_lines).GetNext(position); }

  private:
    using CList = ::CList<CString, const CString&>;

    POSITION PositionOf(int nLine) const;

    CList m_lines;
};

/// The text without the blanks (byte 32) at both ends; other white space stays.
CString TrimmedBlanks(const CString& strText);
