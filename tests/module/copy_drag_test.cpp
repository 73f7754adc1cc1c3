// Dragging with Ctrl held: copies move, the objects stay.
#include "image/node_host.h"
#include "module_help.h"
#include "platform/faults.h"

namespace {

const Lines MoveRecorded = {"CMoveChangedUndoEvent"};

/// A at the back, then the placeholder P with its frame; list front to back: P.frame, P, B, A.
class CopyDrag : public testing::Test {
  protected:
    CopyDrag() {
        m_stage.Square("A", 10, 10);
        m_stage.Square("B", 100, 10);
        m_stage.AddPlaceholder("P", 300, 100, 60, 40);
        m_stage.Select({"A"});
        m_stage.Forget();
    }
    static std::size_t LiveNodes() { return CNodeBookkeeping::LiveNodes(); }

    CModuleStage m_stage;
};

TEST_F(CopyDrag, MovesACopyInFrontAndLeavesTheObject) {
    m_stage.Drag({30, 30}, {50, 30}, Ctrl::Down);

    EXPECT_EQ(m_stage.Rect("A"), CRect(10, 10, 50, 50));
    EXPECT_EQ(m_stage.Rect("A#2"), CRect(30, 10, 70, 50));
    EXPECT_EQ(m_stage.PageNames(), (Lines{"A#2", "P.frame", "P", "B", "A"}));
    EXPECT_EQ(m_stage.Selection(), Lines{"A#2"});
    EXPECT_EQ(m_stage.UndoClasses(), MoveRecorded);
    EXPECT_TRUE(m_stage.ShowsTruePicture());

    m_stage.Undo();
    EXPECT_EQ(m_stage.Rect("A#2"), CRect(10, 10, 50, 50)) << "the move is undone, the copy stays";
}

TEST_F(CopyDrag, CopiesFromTheBackWithCompanionsAndKeepsTheirOrder) {
    m_stage.Shadow("A", 3, 3);
    m_stage.Select({"P", "A"});
    m_stage.Forget();

    m_stage.Drag({30, 30}, {50, 30}, Ctrl::Down);

    EXPECT_EQ(m_stage.PageNames(),
              (Lines{"P#2.frame", "P#2", "A#2", "A#2.shadow", "P.frame", "P", "B", "A", "A.shadow"}));
    EXPECT_EQ(m_stage.Selection(), (Lines{"A#2", "P#2"})) << "the back-most is the anchor";
    EXPECT_EQ(m_stage.Node("P#2.frame")->m_pOwner, m_stage.Node("P#2"));
    EXPECT_EQ(m_stage.Node("A#2")->m_pShadowNode->m_pOwner, m_stage.Node("A#2"));
    EXPECT_EQ(m_stage.Rect("P#2.frame"), CRect(320, 100, 380, 140));
    EXPECT_EQ(m_stage.Rect("A#2.shadow"), CRect(33, 13, 73, 53));
    EXPECT_EQ(m_stage.Rect("A.shadow"), CRect(13, 13, 53, 53));
}

TEST_F(CopyDrag, StartTellsTheCopyingInOrder) {
    m_stage.Press({30, 30}, Ctrl::Down);
    m_stage.Forget();
    m_stage.Move({40, 30}, Ctrl::Down);

    EXPECT_EQ(m_stage.Told(),
              (Lines{"objects.AddHead A#2", "selection.RemoveHead A", "selection.AddTail A#2",
                     "flush 6 6 54 54", "repaint 6 6 54 54 erase", "area.3 1", "display-panel.3 0 0 0 0",
                     "shadow-panel.4 0 0", "shadow-panel.3", "tracker.3 1", "changed.1 27", "changed2.1 27 0",
                     "redrawn.1 27", "flush 6 6 54 14", "flush 46 6 54 54", "flush 6 46 54 54",
                     "flush 6 6 14 54", "selection.RemoveAt A#2", "repaint 6 6 54 54 erase"}));
}

TEST_F(CopyDrag, CopiesOnceAGestureAndOnlyWhenCtrlIsDownAtTheStart) {
    m_stage.Press({30, 30});
    m_stage.Move({40, 30}, Ctrl::Down);
    m_stage.Move({50, 30}, Ctrl::Down);
    m_stage.Release({50, 30}, Ctrl::Down);
    EXPECT_EQ(m_stage.PageNames().size(), 5U);

    m_stage.Press({50, 30}, Ctrl::Down);
    m_stage.Move({60, 30});
    m_stage.Move({70, 30}, Ctrl::Down);
    m_stage.Release({70, 30});
    EXPECT_EQ(m_stage.PageNames().size(), 5U);
}

TEST_F(CopyDrag, CopiesAgainInTheNextGesture) {
    m_stage.Drag({30, 30}, {50, 30}, Ctrl::Down);
    m_stage.Drag({50, 30}, {50, 90}, Ctrl::Down);

    EXPECT_EQ(m_stage.Rect("A#2"), CRect(30, 10, 70, 50));
    EXPECT_EQ(m_stage.Rect("A#3"), CRect(30, 70, 70, 110));
}

TEST_F(CopyDrag, OfAnUnselectedObjectMovesACopy) {
    m_stage.Select({});

    m_stage.Drag({120, 30}, {130, 30}, Ctrl::Down);

    EXPECT_EQ(m_stage.Rect("B"), CRect(100, 10, 140, 50));
    EXPECT_EQ(m_stage.Rect("B#2"), CRect(110, 10, 150, 50));
    EXPECT_EQ(m_stage.UndoClasses(), (Lines{"CMoveChangedUndoEvent", "CSelChangedUndoEvent"}));
}

TEST_F(CopyDrag, ExcludedNodeGoesBackToTheFront) {
    m_stage.Exclude(m_stage.Node("B"));

    m_stage.Drag({30, 30}, {50, 30}, Ctrl::Down);

    EXPECT_EQ(m_stage.PageNames(), (Lines{"B", "A#2", "P.frame", "P", "A"}));
}

TEST_F(CopyDrag, GroupThatCannotBeCopiedWholeIsSkippedWithoutALeak) {
    m_stage.Select({"P", "A"});
    const std::size_t nBefore = LiveNodes();
    platform::ArmFault("copy", true, 2); // A, then P, then P's frame

    m_stage.Drag({30, 30}, {50, 30}, Ctrl::Down);

    EXPECT_EQ(m_stage.Selection(), Lines{"A#2"});
    EXPECT_EQ(LiveNodes(), nBefore + 1);
    EXPECT_EQ(m_stage.Rect("P"), CRect(300, 100, 360, 140));
}

TEST_F(CopyDrag, WithoutAnyCopyMovesAndRecordsNothing) {
    const std::size_t nBefore = LiveNodes();
    platform::ArmFault("copy", false, 0);

    m_stage.Drag({30, 30}, {50, 30}, Ctrl::Down);

    EXPECT_EQ(m_stage.Selection(), Lines{});
    EXPECT_EQ(m_stage.Rect("A"), CRect(10, 10, 50, 50));
    EXPECT_EQ(LiveNodes(), nBefore);
    EXPECT_TRUE(m_stage.UndoClasses().empty());
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(CopyDrag, OfATextCopiesText) {
    m_stage.TextBox("T", 200, 10);
    m_stage.Select({"T"});

    m_stage.Drag({220, 30}, {240, 30}, Ctrl::Down);

    ASSERT_NE(m_stage.Node("T#2"), nullptr);
    EXPECT_EQ(m_stage.Node("T#2")->m_nType, node_type::Text);
    EXPECT_EQ(m_stage.Rect("T#2"), CRect(220, 10, 260, 50));
}

// Every gesture leaves the view as the page composed afresh with its marks.
TEST_F(CopyDrag, PixelLawHoldsAfterEachGestureOfAStory) {
    const auto law = [this](const char* pszWhat) { EXPECT_TRUE(m_stage.ShowsTruePicture()) << pszWhat; };
    PictureOptions ellipse;
    ellipse.ellipseMask = true;
    m_stage.AddPicture("E", RGB(0, 0, 200), 20, 20, 200, 100, ellipse);
    m_stage.Shadow("E", 12, 9);
    m_stage.Click({120, 70});
    law("click");
    m_stage.Drag({120, 70}, {260, 140});
    law("drag over another");
    m_stage.Drag({260, 140}, {100, 60}, Ctrl::Down, 7);
    law("copy drag");
    m_stage.Click({330, 120}, Ctrl::Down);
    law("second one");
    m_stage.Drag({330, 120}, {710, 470}, Ctrl::Up, 9);
    law("into the corner");
    m_stage.Undo();
    law("undo");
    m_stage.Undo();
    law("undo of the selection");
    m_stage.Redo();
    m_stage.Redo();
    law("redo");
    m_stage.Key('A', 1, Ctrl::Down);
    law("all");
    m_stage.SetScroll({13, 27});
    m_stage.Drag({40, 20}, {45, 200});
    law("scrolled");
    m_stage.UseTool("CDisplayPageTool");
    law("another tool");
    m_stage.Press({60, 200});
    m_stage.Move({70, 220});
    m_stage.Move({90, 240});
    m_stage.UseTool("CSelectTool");
    law("left in mid-drag");
}

} // namespace
