// The in-place editor without a window: what a text, its caret and its selection are after each event.
#pragma once

#include <compare>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>

struct ModelPlace {
    int line = 0;
    int index = -1; ///< behind this byte; -1 before the first

    friend auto operator<=>(const ModelPlace&, const ModelPlace&) = default;
};

/// All that the model and an editor have to agree on.
struct EditorState {
    std::vector<std::string> lines;
    ModelPlace caret;
    bool selected = false;
    ModelPlace from; ///< of the selection, when there is one
    ModelPlace to;
    bool selecting = false; ///< a press holds the mouse
    RECT window{};          ///< client pixels of the view

    bool operator==(const EditorState& other) const;
};

std::ostream& operator<<(std::ostream& out, const EditorState& state);

/// A text with its bytes readable in a message.
std::string Shown(const std::string& text);

/// What measures a line: one extent a byte, up to and with it.
struct ModelFont {
    int height = 0; ///< of a line
    int blank = 0;  ///< width of one
    std::function<std::vector<int>(const std::string&)> extents;
};

class CEditorModel {
  public:
    /// Whether the code page is 932, else it has single bytes alone.
    CEditorModel(bool bDoubleByte, POINT ptAnchor, const std::string& text, ModelFont font);

    EditorState State() const;
    /// Every line without blanks at its ends, without empty lines at the end.
    std::string Text() const;
    std::string SelectedText() const;
    bool IsEnded() const { return m_bEnded; }
    bool IsSelected() const { return m_from < m_to; }
    bool IsLeadPending() const { return m_lead.has_value(); }
    /// Whether a lead byte and the byte behind it are no character of the font's.
    bool HasOddPairs() const;
    /// Client pixels of the editor.
    bool IsOnSelection(POINT point) const;

    void SetText(const std::string& text);
    void SetFont(ModelFont font);
    void SetAlignment(int nAlign);
    void Select(int nLine1, int nIndex1, int nLine2, int nIndex2);
    void Replace(const std::string& text, bool bRedraw);
    void MoveCaretTo(POINT point) { m_caret = HitTest(point); }
    void Key(int nKey);
    void Copy();
    void Paste();
    void Type(unsigned char ch);
    /// A press that no drag source holds back, and what follows it.
    void Press(POINT point);
    void MouseMove(POINT point);
    void Release() { m_bSelecting = false; }
    void End();

    /// A text from elsewhere hovers; answers the drop effect.
    int Hover(POINT point, bool bCopies, bool bText);
    void Leave();
    /// It is let go: whether it is taken.
    bool Drop(POINT point, const std::string& text, bool bText);

    std::optional<std::string> clipboard;

  private:
    const std::string& Line(int nLine) const { return m_lines[static_cast<std::size_t>(nLine)]; }
    std::string& Line(int nLine) { return m_lines[static_cast<std::size_t>(nLine)]; }
    const std::string& Current() const { return Line(m_caret.line); }
    int Count() const { return static_cast<int>(m_lines.size()); }
    int Last(int nLine) const { return static_cast<int>(Line(nLine).size()) - 1; }
    int Last() const { return Last(m_caret.line); }
    bool IsLeadByte(unsigned char ch) const;
    bool IsLead(const std::string& line, int nIndex) const;
    bool AtStart() const { return m_caret == ModelPlace{}; }
    bool AtEnd() const { return m_caret.line == Count() - 1 && m_caret.index == Last(); }

    int WidthOf(const std::string& line) const;
    int TextWidth() const;
    RECT Area() const;
    RECT LineRect(int nLine) const;
    int Extent(const ModelPlace& place) const;
    ModelPlace HitTest(POINT point) const;
    void Refresh();

    int Absolute(const ModelPlace& place) const;
    ModelPlace FromAbsolute(int nPlace) const;
    void ClearSelection();
    void Insert(const ModelPlace& from, const ModelPlace& to, const std::string& text);
    void MoveInLine(int nIndex);
    void Backspace();
    void Enter();
    void Delete();
    void Left();
    void Right();
    void GoByLines(int nDirection);
    bool RemoveSelection();

    bool m_bDoubleByte;
    POINT m_ptAnchor; ///< client pixels of the view
    ModelFont m_font;
    int m_nAlign = 1;
    std::vector<std::string> m_lines;
    std::string m_starting;
    ModelPlace m_caret;
    ModelPlace m_from;
    ModelPlace m_to;
    std::optional<char> m_lead;
    bool m_bSelecting = false;
    ModelPlace m_anchor;
    RECT m_window{};
    bool m_bHovering = false;
    bool m_bDropMoves = false;
    ModelPlace m_saved;
    bool m_bEnded = false;
};
