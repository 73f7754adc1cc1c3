// The selection's operations and rectangles, as the host calls them.
#include "module_help.h"

namespace {

/// A, B and C stand side by side: [10,10,50,50], [100,10,140,50], [200,10,240,50].
class Selection : public testing::Test {
  protected:
    Selection() {
        m_stage.Square("A", 10, 10);
        m_stage.Square("B", 100, 10);
        m_stage.Square("C", 200, 10);
        m_stage.Forget();
    }
    CNodeRefList& List(const Lines& names) {
        m_list.RemoveAll();
        for (const std::string& name : names) {
            m_list.AddTail(m_stage.Node(name));
        }
        return m_list;
    }

    CModuleStage m_stage;
    CNodeRefList m_list;
};

TEST_F(Selection, RectOfNothingLeavesTheRectangleUntouched) {
    EXPECT_EQ(m_stage.SelectionRect(), CRect(-1, -1, -1, -1));
    EXPECT_EQ(m_stage.OutlineRect(), CRect(-1, -1, -1, -1));
    EXPECT_EQ(m_stage.Ops().GetSelectionRect(nullptr), 0);
    EXPECT_EQ(m_stage.Ops().GetSelectionOutlineRect(nullptr), 0);
}

TEST_F(Selection, RectOfOneIsWidenedByFourAndOfSeveralIsThePlainUnion) {
    m_stage.Select({"A"});
    EXPECT_EQ(m_stage.SelectionRect(), CRect(6, 6, 54, 54));
    EXPECT_EQ(m_stage.OutlineRect(), CRect(6, 6, 54, 54));

    m_stage.Select({"C", "A"});
    EXPECT_EQ(m_stage.SelectionRect(), CRect(10, 10, 240, 50));
    EXPECT_EQ(m_stage.OutlineRect(), CRect(10, 10, 240, 50));
}

TEST_F(Selection, OutlineRectReachesToTheShadows) {
    m_stage.Shadow("A", 30, -5);
    m_stage.Select({"A"});
    EXPECT_EQ(m_stage.SelectionRect(), CRect(6, 6, 54, 54));
    EXPECT_EQ(m_stage.OutlineRect(), CRect(6, 5, 80, 54)) << "the shadow stands at [40,5,80,45]";

    m_stage.Select({"A", "B"});
    EXPECT_EQ(m_stage.SelectionRect(), CRect(10, 10, 140, 50));
    EXPECT_EQ(m_stage.OutlineRect(), CRect(10, 5, 140, 50));
}

TEST_F(Selection, RectsJoinTheFrameOfAnObjectAndTheObjectOfAFrame) {
    m_stage.AddPlaceholder("P", 300, 100, 60, 40);
    m_stage.Node("P.frame")->m_fnResize(CRect(290, 95, 365, 150));
    CRect rc;

    m_stage.Main().GetNodeRect(m_stage.Node("P"), &rc);
    EXPECT_EQ(rc, CRect(290, 95, 365, 150));
    m_stage.Node("P.frame")->m_fnResize(CRect(310, 95, 365, 120));
    m_stage.Main().GetNodeRect(m_stage.Node("P.frame"), &rc);
    EXPECT_EQ(rc, CRect(300, 95, 365, 140));
    m_stage.Main().GetNodeMarkRect(m_stage.Node("P.frame"), &rc);
    EXPECT_EQ(rc, CRect(296, 91, 369, 144));
}

TEST_F(Selection, MarkRectsOfNoNodeAreTheClientRectangle) {
    CRect rc;

    EXPECT_EQ(m_stage.Main().GetNodeMarkRect(nullptr, &rc), 1);
    EXPECT_EQ(rc, CRect(0, 0, 720, 480));
    rc.SetRectEmpty();
    EXPECT_EQ(m_stage.Main().GetNodeOutlineMarkRect(nullptr, &rc), 1);
    EXPECT_EQ(rc, CRect(0, 0, 720, 480));
}

TEST_F(Selection, RectsAreClientPixels) {
    m_stage.NewPage(400, 300, 1.5);
    m_stage.SetScroll({3, 0});
    m_stage.Square("A", 10, 10);
    m_stage.Select({"A"});

    EXPECT_EQ(m_stage.SelectionRect(), CRect(7, 11, 75, 79)) << "10.5 and 70.5 round away from zero";
}

TEST_F(Selection, ClearingEmptiesTheListAlone) {
    m_stage.Select({"A", "B"});

    EXPECT_EQ(m_stage.Ops().ClearSelection(), 1);

    EXPECT_EQ(m_stage.Told(), (Lines{"selection.RemoveHead A", "selection.RemoveHead B"}));
}

TEST_F(Selection, AddingSkipsWhatIsSelectedAndDrawsNothing) {
    m_stage.Select({"B"});

    EXPECT_EQ(m_stage.Ops().AddToSelection(List({"A", "B", "A", "C"})), 1);

    EXPECT_EQ(m_stage.Selection(), (Lines{"B", "A", "C"}));
    EXPECT_EQ(m_stage.Told(), (Lines{"selection.AddTail A", "selection.AddTail C"}));
}

TEST_F(Selection, SettingHidesAppendsEvenTwiceAndShows) {
    m_stage.Select({"A"});

    EXPECT_EQ(m_stage.Ops().SetSelection(List({"B", "B"}), 0), 1);

    EXPECT_EQ(m_stage.Selection(), (Lines{"A", "B", "B"}));
    EXPECT_EQ(m_stage.Told(),
              (Lines{"flush 6 6 54 14", "flush 46 6 54 54", "flush 6 46 54 54", "flush 6 6 14 54",
                     "selection.AddTail B", "selection.AddTail B", "read 10 10 50 50", "write 10 10",
                     "read 100 10 140 50", "write 100 10", "read 100 10 140 50", "write 100 10"}));
}

TEST_F(Selection, SettingWithTheToggleFlagAddsTheUnselectedAsOneStep) {
    m_stage.Select({"A"});

    EXPECT_EQ(m_stage.Ops().SetSelection(List({"A", "C"}), 1), 1);

    EXPECT_EQ(m_stage.Selection(), (Lines{"A", "C"}));
    EXPECT_EQ(m_stage.Told(),
              (Lines{"flush 6 6 54 14", "flush 46 6 54 54", "flush 6 46 54 54", "flush 6 6 14 54",
                     "selection.AddTail C", "read 10 10 50 50", "write 10 10", "read 200 10 240 50",
                     "write 200 10", "repaint 6 6 240 54 erase"}));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(Selection, DeselectingOneRepaintsItsMarkRect) {
    m_stage.Select({"A"});

    EXPECT_EQ(m_stage.Ops().DeselectAll(1), 1);

    EXPECT_EQ(m_stage.Told(), (Lines{"flush 6 6 54 14", "flush 46 6 54 54", "flush 6 46 54 54",
                                     "flush 6 6 14 54", "selection.RemoveAt A", "repaint 6 6 54 54 erase"}));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(Selection, DeselectingSeveralRepaintsTheUnionOfTheNodes) {
    m_stage.Select({"A", "B"});

    EXPECT_EQ(m_stage.Ops().DeselectAll(1), 1);

    EXPECT_EQ(m_stage.Told(), (Lines{"flush 10 10 50 11", "flush 49 10 50 50", "flush 10 49 50 50",
                                     "flush 10 10 11 50", "flush 100 10 140 11", "flush 139 10 140 50",
                                     "flush 100 49 140 50", "flush 100 10 101 50", "selection.RemoveAt A",
                                     "selection.RemoveAt B", "repaint 10 10 140 50 erase"}));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(Selection, DeselectingWithoutRedrawHidesTheMarksAndRepaintsNothing) {
    m_stage.Select({"A"});

    EXPECT_EQ(m_stage.Ops().DeselectAll(0), 1);

    EXPECT_EQ(m_stage.Selection(), Lines{});
    EXPECT_THAT(m_stage.Told(), testing::Not(testing::Contains(testing::StartsWith("repaint"))));
}

TEST_F(Selection, DeselectingNothingTellsNothing) {
    m_stage.Ops().DeselectAll(1);
    m_stage.Ops().DeselectAll(0);

    EXPECT_EQ(m_stage.Told(), Lines{});
}

TEST_F(Selection, MarksOfOneAreDrawnIntoItsMarkRectAndOfSeveralIntoTheirPlainOnes) {
    m_stage.Select({"A"});
    m_stage.Ops().ShowSelectionMarks(1);
    EXPECT_EQ(m_stage.Told(), (Lines{"read 6 6 54 54", "write 6 6"}));

    m_stage.Select({"A", "B"});
    m_stage.Ops().ShowSelectionMarks(1);
    EXPECT_EQ(m_stage.Told(),
              (Lines{"read 10 10 50 50", "write 10 10", "read 100 10 140 50", "write 100 10"}));
}

TEST_F(Selection, MarksAreClippedToTheViewAndLeftOutBeyondIt) {
    m_stage.Square("D", -20, 460);
    m_stage.Select({"D"});
    m_stage.Ops().ShowSelectionMarks(1);
    EXPECT_EQ(m_stage.Told(), (Lines{"read 0 456 24 480", "write 0 456"}));

    m_stage.Square("E", 720, 10);
    m_stage.Select({"A", "E"});
    m_stage.Ops().ShowSelectionMarks(1);
    EXPECT_EQ(m_stage.Told(), (Lines{"read 10 10 50 50", "write 10 10"}));
}

TEST_F(Selection, ClassTellsTextsFromOthersAndOneFromSeveral) {
    EXPECT_EQ(m_stage.Ops().ClassifySelection(), 0);
    m_stage.TextBox("T", 10, 100);
    m_stage.TextBox("U", 60, 100);
    EXPECT_EQ(m_stage.Ops().ClassifyNodes(List({"T"})), 1);
    EXPECT_EQ(m_stage.Ops().ClassifyNodes(List({"T", "U"})), 2);
    EXPECT_EQ(m_stage.Ops().ClassifyNodes(List({"A"})), 3);
    EXPECT_EQ(m_stage.Ops().ClassifyNodes(List({"A", "B"})), 4);
    EXPECT_EQ(m_stage.Ops().ClassifyNodes(List({"A", "T"})), 5);
    EXPECT_EQ(m_stage.Ops().ClassifyNodes(List({"T", "A", "U"})), 5);
}

TEST_F(Selection, FlushAndRepaintOfARectangleReachTheView) {
    EXPECT_EQ(m_stage.Ops().FlushViewRect(CRect(1, 2, 3, 4)), 1);
    EXPECT_EQ(m_stage.Ops().RedrawRect(CRect(5, 6, 7, 8)), 1);

    EXPECT_EQ(m_stage.Told(), (Lines{"flush 1 2 3 4", "repaint 5 6 7 8 erase"}));
}

TEST_F(Selection, RecordedAsItIsGoesOnTheStackThoughNothingChanged) {
    m_stage.Select({"A"});

    EXPECT_EQ(m_stage.Ops().RecordSelectionUndo(), 1);
    EXPECT_EQ(m_stage.UndoClasses(), Lines{"CSelChangedUndoEvent"});

    m_stage.FailUndoEvent(0);
    EXPECT_EQ(m_stage.Ops().RecordSelectionUndo(), 0);
    EXPECT_EQ(m_stage.UndoClasses().size(), 1U);
}

TEST_F(Selection, AllIsSelectedWhenCtrlAIsReleasedBehindWhatIsSelectedAlready) {
    m_stage.AddPlaceholder("P", 300, 100, 60, 40);
    m_stage.Shadow("A", 5, 5);
    m_stage.Select({"B"});

    m_stage.Key('A', 1, Ctrl::Down);

    EXPECT_EQ(m_stage.Selection(), (Lines{"B", "P", "C", "A"})) << "front to back, no companions";
    EXPECT_EQ(m_stage.UndoClasses(), Lines{"CSelChangedUndoEvent"});
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(Selection, AllSelectedAlreadyRecordsAndTellsNothing) {
    m_stage.Select({"C", "A", "B"});

    EXPECT_EQ(m_stage.Input().OnKeyUp('A', 1, 0), 0) << "without Ctrl";
    m_stage.Hold(VK_CONTROL);
    EXPECT_EQ(m_stage.Input().OnKeyUp('A', 1, 0), 1);
    EXPECT_EQ(m_stage.Input().OnKeyUp('a', 1, 0), 1);
    EXPECT_EQ(m_stage.Input().OnKeyUp('Z', 1, 0), 0);

    EXPECT_EQ(m_stage.Told(), Lines{});
    EXPECT_TRUE(m_stage.UndoClasses().empty());
}

TEST_F(Selection, AllLeavesTheExcludedNodeOutAndAtItsPlace) {
    m_stage.Exclude(m_stage.Node("B"));

    m_stage.Key('A', 1, Ctrl::Down);

    EXPECT_EQ(m_stage.Selection(), (Lines{"C", "A"}));
    EXPECT_EQ(m_stage.PageNames(), (Lines{"C", "B", "A"}));
    const Lines told = m_stage.Told();
    EXPECT_THAT(told, testing::Contains("objects.RemoveAt B"));
    EXPECT_THAT(told, testing::Contains("objects.InsertAfter B C"));
}

TEST_F(Selection, AllWithoutASecondSnapshotSelectsButRecordsNothing) {
    m_stage.Hold(VK_CONTROL);
    m_stage.FailUndoEvent(1);
    EXPECT_EQ(m_stage.Input().OnKeyUp('A', 1, 0), 0);
    EXPECT_EQ(m_stage.Selection(), (Lines{"C", "B", "A"}));
    EXPECT_TRUE(m_stage.UndoClasses().empty());

    m_stage.Ops().DeselectAll(1);
    m_stage.FailUndoEvent(0);
    EXPECT_EQ(m_stage.Input().OnKeyUp('A', 1, 0), 0);
    EXPECT_EQ(m_stage.Selection(), Lines{});
}

} // namespace
