// Text to and from the editor: clipboard, drops, and drags of the selected text.
#include "editor_binding.h"
#include "host/drag_drop.h"
#include "module_help.h"

namespace {

constexpr int KeyC = 'C';
constexpr int KeyV = 'V';
constexpr DropOffer Foreign = {.source = drop_source::Foreign};

/// An editor of several lines on the view, all standing left.
class Exchange : public testing::Test {
  protected:
    void Open(const std::string& text) {
        ASSERT_EQ(m_stage.NewEditor({100, 100}, text), 1);
        (Editor().*m_stage.EditorOperations()->m_fnSetTextAlignType)(0);
    }
    CInplaceEditor& Editor() { return *m_stage.Editor(); }
    void GoTo(int nLine, int nIndex) {
        m_stage.Click(nIndex == -1 ? StartOf(nLine) : EndOf(nLine));
        EXPECT_EQ(Editor().Caret(), (TextPosition{nLine, nIndex}));
    }

    /// View pixels just inside the editor, at a line's middle.
    CPoint StartOf(int nLine) { return {BoundRect().left + 1, MiddleOf(nLine)}; }
    CPoint EndOf(int nLine) { return {BoundRect().right - 2, MiddleOf(nLine)}; }
    /// The middle of a one-line text.
    CPoint Middle() { return {BoundRect().CenterPoint().x, MiddleOf(0)}; }

    /// In the view.
    CRect BoundRect() {
        CRect rc;
        (Editor().*m_stage.EditorOperations()->m_fnGetTextBoundRect)(rc);
        return rc;
    }

    CModuleStage m_stage;

  private:
    int MiddleOf(int nLine) {
        const CRect rc = BoundRect();
        const int nHeight = (rc.Height() - 2) / Editor().Lines().GetCount();
        return rc.top + 1 + nHeight * nLine + nHeight / 2;
    }
};

TEST_F(Exchange, CopiedLinesArePartedByCrLf) {
    struct Row {
        const char* text;
        TextRange range;
        const char* copied;
    };
    const Row rows[] = {
        {"abcd", {{0, 0}, {0, 2}}, "bc"},
        {"ab\ncd", {{0, 0}, {1, 0}}, "b\r\nc"},
        {"ab\n\ncd", {{0, 1}, {2, -1}}, "\r\n\r\n"},
        {"\nab", {{0, -1}, {1, 1}}, "\r\nab"},
    };
    for (const Row& row : rows) {
        Open(row.text);
        m_stage.SelectText(row.range.start.nLine, row.range.start.nIndex, row.range.end.nLine,
                           row.range.end.nIndex);

        m_stage.Key(KeyC, 1, Ctrl::Down);

        EXPECT_EQ(m_stage.Clipboard(), row.copied) << row.text;
        EXPECT_TRUE(Editor().HasSelection());
    }
}

TEST_F(Exchange, CopyingNothingKeepsTheClipboard) {
    Open("ab");
    m_stage.SetClipboard("kept");

    m_stage.Key(KeyC, 1, Ctrl::Down);

    EXPECT_EQ(m_stage.Clipboard(), "kept");
}

TEST_F(Exchange, PastedTextStandsBehindTheCaretInLines) {
    struct Row {
        const char* clipboard;
        Lines lines;
    };
    const Row rows[] = {{"x\r\ny", {"abx", "y"}}, {"x\ry", {"abxy"}}, {"\nx", {"ab", "x"}}};
    for (const Row& row : rows) {
        Open("ab");
        GoTo(0, 1);
        m_stage.SetClipboard(row.clipboard);

        m_stage.Key(KeyV, 1, Ctrl::Down);

        EXPECT_EQ(m_stage.EditorLines(), row.lines);
        EXPECT_EQ(Editor().Caret(), (TextPosition{0, 1}));
        EXPECT_TRUE(Editor().IsCaretEnabled());
    }
}

TEST_F(Exchange, PasteTakesTheSelectionAwayAndStandsAtTheCaret) {
    struct Row {
        int caret;
        Lines lines;
    };
    const Row rows[] = {{3, {"ax", "yf"}}, {-1, {"x", "yaf"}}};
    for (const Row& row : rows) {
        Open("abcd\nef");
        GoTo(0, row.caret);
        m_stage.SelectText(0, 0, 1, 0);
        m_stage.SetClipboard("x\r\ny");

        m_stage.Key(KeyV, 1, Ctrl::Down);

        EXPECT_EQ(m_stage.EditorLines(), row.lines);
        EXPECT_FALSE(Editor().HasSelection());
    }
}

TEST_F(Exchange, OwnTextMovesUnlessCtrlIsHeldAndForeignTextIsCopied) {
    struct Row {
        DropOffer offer;
        DWORD effect;
        Lines lines;
    };
    const Row rows[] = {
        {{}, drop_effect::Move, {"cdab", "ef"}},
        {{.ctrl = Ctrl::Down}, drop_effect::Copy, {"abcdab", "ef"}},
        {Foreign, drop_effect::Copy, {"abcdab", "ef"}},
    };
    for (const Row& row : rows) {
        Open("abcd\nef");
        m_stage.SelectText(0, -1, 0, 1);

        const DropAnswer answer = m_stage.Drop("ab", EndOf(0), row.offer);

        EXPECT_EQ(answer.result, 1);
        EXPECT_EQ(answer.effect, row.effect);
        EXPECT_EQ(m_stage.EditorLines(), row.lines);
        EXPECT_FALSE(Editor().HasSelection());
        EXPECT_TRUE(Editor().IsCaretEnabled());
    }
}

TEST_F(Exchange, AMoveCorrectsTheCaretForTheLinesThatLeave) {
    Open("ab\ncd\nef");
    m_stage.SelectText(0, 0, 1, 0);

    m_stage.Drop("b\r\nc", EndOf(2));

    EXPECT_EQ(m_stage.EditorLines(), (Lines{"ad", "efb", "c"}));
    EXPECT_EQ(Editor().Caret(), (TextPosition{1, 1}));
}

TEST_F(Exchange, TheSelectionItselfAndOtherFormatsTakeNoDrop) {
    constexpr UINT OtherFormat = 13;
    Open("abcd");
    m_stage.SelectText(0, -1, 0, 3);

    const DropAnswer own = m_stage.Drop("x", Middle(), Foreign);
    EXPECT_TRUE(Editor().IsCaretEnabled());
    m_stage.SelectText(0, -1, 0, -1);
    const DropAnswer other = m_stage.Drop("x", Middle(), {.format = OtherFormat});

    EXPECT_EQ(own.result + other.result, 0);
    EXPECT_EQ(own.effect + other.effect, drop_effect::None);
    EXPECT_EQ(m_stage.EditorLines(), Lines{"abcd"});
}

TEST_F(Exchange, TheEffectNeedNotBeAskedFor) {
    Open("ab");
    CString strData("x");
    Editor().m_fnOnDataArrive(0, drop_phase::Drop, DropFormatText, strData, 0, CPoint(1, 1), 0, nullptr);
    Editor().m_fnOnDataArrive_CF_TEXT(0, strData, 0, nullptr);
    EXPECT_EQ(m_stage.EditorLines(), Lines{"xab"});
}

TEST_F(Exchange, HoveringShowsTheDropPlaceWithoutBlinkingAndLeavingRestoresTheCaret) {
    Open("abcd\nef");
    GoTo(1, 1);

    const DropAnswer hover = m_stage.Hover("x", EndOf(0), Foreign);
    EXPECT_EQ(hover.result, 0);
    EXPECT_EQ(hover.effect, drop_effect::Copy);
    for (int i = 0; i < 3; ++i) {
        m_stage.Wait(500);
        EXPECT_TRUE(Editor().IsCaretDrawn());
    }
    EXPECT_EQ(Editor().Caret(), (TextPosition{0, 3}));

    m_stage.LeaveDrop();
    EXPECT_EQ(Editor().Caret(), (TextPosition{1, 1}));
    EXPECT_TRUE(Editor().IsCaretDrawn());
}

TEST_F(Exchange, HoveringOverTheSelectionShowsNoDropPlace) {
    Open("abcd");
    GoTo(0, 3);
    m_stage.SelectText(0, -1, 0, 3);

    m_stage.Hover("x", Middle(), Foreign);
    EXPECT_FALSE(Editor().IsCaretEnabled());

    m_stage.LeaveDrop();
    EXPECT_TRUE(Editor().IsCaretEnabled());
}

TEST_F(Exchange, LeavingFindsAPlaceInATextThatBecameShorter) {
    Open("abcd\nef");
    GoTo(1, 1);
    m_stage.Hover("x", StartOf(0), Foreign);
    CString strShort("a");
    (Editor().*m_stage.EditorOperations()->m_fnSetText)(strShort);

    m_stage.LeaveDrop();

    EXPECT_EQ(Editor().Caret(), (TextPosition{0, 0}));
}

TEST_F(Exchange, SelectedTextIsDraggedWithTheMouse) {
    Open("abcd\nef");
    m_stage.SelectText(0, -1, 0, 1);

    const DropAnswer answer = m_stage.DragText(StartOf(0) + CSize(6, 0), EndOf(1));

    EXPECT_EQ(answer.result, 1);
    EXPECT_EQ(answer.effect, drop_effect::Move);
    EXPECT_EQ(m_stage.EditorLines(), (Lines{"cd", "efab"}));
}

TEST_F(Exchange, ADragBeginsOnTheSelectionAlone) {
    Open("ab\n\ncd");
    m_stage.SelectText(0, 0, 2, 0);
    // A blank of 16 pixels is 4 wide, and the lines begin a blank from the editor's left. Half a blank at the
    // line breaks belongs to the selection.
    struct Row {
        CPoint point;
        int dx;
        int inside;
    };
    const Row rows[] = {
        {StartOf(0), 4, 0}, {EndOf(0), -4, 1},  {EndOf(0), 0, 0},  {StartOf(1), 0, 0},
        {StartOf(1), 2, 1}, {StartOf(2), 2, 1}, {EndOf(2), -4, 0},
    };
    for (const Row& row : rows) {
        CPoint point(row.point - BoundRect().TopLeft() + CSize(row.dx, 0));
        EXPECT_EQ(Editor().m_fnOnPrepareDrag(point), row.inside) << point.x << ' ' << point.y;
    }
}

} // namespace
