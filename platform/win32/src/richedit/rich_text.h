#pragma once

// What a rich-edit control holds. Its line ends are always CR LF: lone ones become so, and a change never
// leaves half of one.

#include "richedit/format_runs.h"

#include <string>
#include <string_view>
#include <vector>

namespace win32 {

class CRichText {
  public:
    const std::string& Text() const { return m_text; }
    LONG Length() const { return static_cast<LONG>(m_text.size()); }

    CHARRANGE Selection() const { return m_selection; }
    std::string_view SelectedText() const;
    /// Brings the range into the text; an end of -1 is the text's.
    void Select(LONG from, LONG to);

    /// New text in the default format and nothing selected. It and ReplaceSelection answer false, having
    /// changed nothing, when the text grows over 2 GB, and throw std::bad_alloc likewise.
    bool SetText(std::string_view text);
    /// The text takes the format set for it, that of the first byte that it replaces, or that of the byte
    /// before.
    bool ReplaceSelection(std::string_view text);

    const CHARFORMATA& DefaultFormat() const { return m_default; }
    /// That of the first selected byte, its mask without what differs; with nothing selected that of text put
    /// there.
    CHARFORMATA SelectionFormat() const;
    void ChangeDefaultFormat(const CHARFORMATA& change) { ApplyFormat(m_default, change); }
    void ChangeSelectionFormat(const CHARFORMATA& change);
    void ChangeWholeFormat(const CHARFORMATA& change);

    LONG LineCount() const { return static_cast<LONG>(m_lineStarts.size()); }
    /// -1 when there is no such line.
    LONG LineStart(LONG line) const;
    /// The line that holds a position of the text.
    LONG LineAt(LONG position) const;
    /// Without its end; `line` is one of the lines.
    std::string_view Line(LONG line) const;

  private:
    bool IsSelectionEmpty() const { return m_selection.cpMin == m_selection.cpMax; }
    bool IsInsideLineEnd(LONG position) const;
    CHARRANGE WithWholeLineEnds(CHARRANGE range) const;
    CHARFORMATA InsertionFormat() const;
    bool Replace(CHARRANGE range, std::string_view text, const CHARFORMATA& format);
    void ReplaceLineStarts(CHARRANGE range, const std::string& text);
    void ChangeFormat(LONG from, LONG to, const CHARFORMATA& change);

    std::string m_text;
    CFormatRuns m_runs;
    std::vector<LONG> m_lineStarts = std::vector<LONG>(1);
    CHARRANGE m_selection{0, 0};
    CHARFORMATA m_default = FirstFormat();
    CHARFORMATA m_insertion = FirstFormat(); // Holds only while set.
    bool m_insertionSet = false;
};

} // namespace win32
