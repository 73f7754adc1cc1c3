// What a double-click with the text tool opens, and what the edit command does.
#include "host/panels.h"
#include "text_help.h"

namespace {

/// Texts T and U, and the picture A.
class TextClick : public testing::Test {
  protected:
    TextClick() {
        m_stage.Square("A", 300, 100);
        m_stage.AddText("U", "World", 100, 200);
        m_stage.AddText("T", "Hello", 100, 100);
        m_stage.Forget();
    }
    CPoint Middle(const std::string& name) { return m_stage.Rect(name).CenterPoint(); }
    /// The lines of the open editor; "none" without one.
    std::string Opened() {
        return m_stage.Editor() ? "editor of '" + m_stage.EditorText() + "'" : std::string("none");
    }
    CTextStage m_stage;
};

TEST_F(TextClick, OnEmptyGroundStartsNewTextAndTellsThePanel) {
    m_stage.SecondPress({500, 300});

    EXPECT_EQ(Opened(), "editor of ''");
    EXPECT_EQ(m_stage.ToldOnBus(), (Lines{"text-page.1 0", "area.2", "area.3 1",
                                          "text-page.3 Arial 12 0 0 16777215 0 0", "text-page.4"}));
    EXPECT_EQ(::GetFocus(), m_stage.Editor()->m_hWnd);
    EXPECT_TRUE(m_stage.Editor()->IsWindowVisible());
}

// The object's attributes become the tool's before the editor opens.
TEST_F(TextClick, OnTheSelectedTextEditsItWithItsOwnAttributes) {
    m_stage.AddText("V", "Big", 400, 300, {.pixels = 40, .alignment = 2, .style = 1, .color = 0x0000FF});
    m_stage.Select({"V"});
    m_stage.Forget();

    m_stage.SecondPress(Middle("V"));

    EXPECT_EQ(Opened(), "editor of 'Big'");
    EXPECT_EQ(m_stage.Editor()->m_fnGetFontSizeInPixel(), 40);
    EXPECT_EQ(m_stage.Editor()->m_fnGetAlignType(), 2);
    EXPECT_EQ(m_stage.ToldOnBus(),
              (Lines{"text-page.1 0", "area.2", "area.3 1", "text-page.3 Arial 30 2 1 255 0 0"}));
}

TEST_F(TextClick, WholeDoubleClickOnAnUnselectedTextEditsIt) {
    m_stage.DblClick(Middle("T"));

    EXPECT_EQ(Opened(), "editor of 'Hello'");
}

TEST_F(TextClick, SeveralSelectedAreLeftToTheBase) {
    m_stage.Select({"T", "U"});

    m_stage.SecondPress(Middle("T"));

    EXPECT_EQ(Opened(), "none");
    EXPECT_EQ(m_stage.Selection(), (Lines{"T", "U"}));
    EXPECT_TRUE(m_stage.HasCapture()) << "the base pressed the selection";
}

TEST_F(TextClick, SelectedPictureCountsAsEmptyGround) {
    m_stage.Select({"A"});

    m_stage.SecondPress(Middle("A"));

    EXPECT_EQ(Opened(), "editor of ''");
    EXPECT_EQ(m_stage.Selection(), Lines{});
}

TEST_F(TextClick, ExcludedNodeIsLeftToTheBaseUnlessATextOverItIsSelected) {
    m_stage.AddPicture("X", 0, 90, 90, 200, 60);
    m_stage.Exclude(m_stage.Node("X"));
    m_stage.Select({"U"});
    m_stage.SecondPress({250, 120});
    EXPECT_EQ(Opened(), "none");
    EXPECT_EQ(m_stage.Selection(), Lines{}) << "the base deselects there";

    m_stage.Select({"A"});
    m_stage.AddPicture("Y", 0, 290, 90, 200, 60);
    m_stage.Exclude(m_stage.Node("Y"));
    m_stage.SecondPress(Middle("A"));
    EXPECT_EQ(Opened(), "none") << "a picture over it is the base's too";

    m_stage.Release(Middle("A"));
    m_stage.Exclude(m_stage.Node("X"));
    m_stage.Select({"T"});
    m_stage.SecondPress(Middle("T"));
    EXPECT_EQ(Opened(), "editor of 'Hello'");
}

TEST_F(TextClick, FrameOverTheTextIsLeftToTheBase) {
    m_stage.Frame("T", {90, 90, 110, 130});
    m_stage.Select({"T"});
    m_stage.SecondPress({105, 105});
    EXPECT_EQ(Opened(), "none");
    m_stage.Release({105, 105});

    m_stage.SecondPress({115, 105});
    EXPECT_EQ(Opened(), "editor of 'Hello'") << "the frame does not cover this";
}

TEST_F(TextClick, PressThatEndsAnEditingSelectsNothingButItsDoubleClickDoes) {
    m_stage.Edit("T");
    m_stage.Press(Middle("U"));
    EXPECT_EQ(Opened(), "none");
    EXPECT_EQ(m_stage.Selection(), Lines{"T"});
    EXPECT_FALSE(m_stage.HasCapture());
    m_stage.Release(Middle("U"));

    m_stage.SecondPress(Middle("U"));

    EXPECT_EQ(Opened(), "editor of 'World'");
    m_stage.Press({500, 300});
    m_stage.Release({500, 300});
    m_stage.SecondPress({500, 300});
    EXPECT_EQ(Opened(), "editor of ''");
    EXPECT_EQ(m_stage.Selection(), Lines{});
    EXPECT_EQ(m_stage.PageNames(), (Lines{"T", "U", "A"}));
}

// An unselected text counts as empty ground, but for the double-click whose press ended an editing.
TEST_F(TextClick, EndingPressIsForgottenAtTheNextPressAndAtItsDoubleClick) {
    m_stage.Edit("T");
    m_stage.Click({500, 300});
    m_stage.Click({500, 300});
    m_stage.SecondPress(Middle("U"));
    EXPECT_EQ(Opened(), "editor of ''");
    m_stage.EndEditor();

    m_stage.Edit("T");
    m_stage.Click({500, 300});
    m_stage.SecondPress(Middle("U"));
    EXPECT_EQ(Opened(), "editor of 'World'");
    m_stage.EndEditor();
    m_stage.Select({});
    m_stage.SecondPress(Middle("T"));
    EXPECT_EQ(Opened(), "editor of ''");
}

TEST_F(TextClick, WithoutATextPageTheBaseHandlesIt) {
    m_stage.HideInterface<ITextAttributePanel>(kind::TextPage);

    m_stage.Select({"T"});
    m_stage.SecondPress(Middle("T"));

    EXPECT_EQ(Opened(), "none");
    EXPECT_TRUE(m_stage.HasCapture());
}

TEST_F(TextClick, EditCommandOpensTheTextThroughTheCurrentTool) {
    m_stage.Desk().Panels().nFontPoints = 40;
    m_stage.Select({"T"});
    m_stage.Forget();

    m_stage.Main().m_fnEditTextAt(Middle("T"));

    EXPECT_EQ(Opened(), "editor of 'Hello'");
    EXPECT_EQ(m_stage.Editor()->m_fnGetFontSizeInPixel(), 16) << "the hook took the object's size";
    EXPECT_EQ(m_stage.ToldOnBus(), (Lines{"text-page.1 0", "text-page.6 Arial 40 0 0 16777215"}));
}

TEST_F(TextClick, EditCommandNeedsATextThePanelAndATextTool) {
    m_stage.Main().m_fnEditTextAt(Middle("A"));
    m_stage.Main().m_fnEditTextAt({600, 400});
    EXPECT_EQ(m_stage.ToldOnBus(), Lines{});

    m_stage.UseTool("CSelectTool");
    m_stage.Forget();
    m_stage.Main().m_fnEditTextAt(Middle("T"));
    EXPECT_EQ(m_stage.ToldOnBus(), Lines{"text-page.1 0"});
    EXPECT_EQ(m_stage.PageNames(), (Lines{"T", "U", "A"}));

    m_stage.UseTool("CTextTool");
    m_stage.HideKind(kind::TextPage);
    m_stage.Main().m_fnEditTextAt(Middle("T"));
    EXPECT_EQ(Opened(), "none");
}

} // namespace
