// Moving the selection with the mouse. Document units equal client pixels unless a test sets a zoom.
#include "host/undo.h"
#include "module_help.h"
#include "undo/undo_host.h"

namespace {

const Lines MoveRecorded = {"CMoveChangedUndoEvent"};

/// A [10,10,50,50] and B [100,10,140,50], A selected.
class MoveDrag : public testing::Test {
  protected:
    MoveDrag() {
        m_stage.Square("A", 10, 10);
        m_stage.Square("B", 100, 10);
        m_stage.Select({"A"});
        m_stage.Forget();
    }
    /// A new page where A [10,10,50,50] (document units) is selected.
    void ZoomedPage(double dZoom, CPoint ptScroll = {0, 0}) {
        m_stage.NewPage(720, 480, dZoom);
        m_stage.SetScroll(ptScroll);
        m_stage.Square("A", 10, 10);
        m_stage.Select({"A"});
        m_stage.Forget();
    }
    int CanRun() { return m_stage.Ops().CanRunCommand(); }

    CModuleStage m_stage;
};

TEST_F(MoveDrag, ThreePixelsStartTwoDoNot) {
    m_stage.Press({30, 30});
    m_stage.Move({32, 28});
    EXPECT_EQ(CanRun(), 1);
    m_stage.Release({32, 28});
    EXPECT_EQ(m_stage.Rect("A"), CRect(10, 10, 50, 50));
    EXPECT_TRUE(m_stage.UndoClasses().empty());

    m_stage.Press({30, 30});
    m_stage.Move({30, 33});
    EXPECT_EQ(CanRun(), 0);
    m_stage.Release({30, 33});
    EXPECT_EQ(m_stage.Rect("A"), CRect(10, 13, 50, 53));
    EXPECT_EQ(CanRun(), 1);
}

TEST_F(MoveDrag, JitterOfOnePixelIsIgnoredEvenWhereItWouldStart) {
    m_stage.Press({30, 30});
    m_stage.Move({32, 30});
    m_stage.Move({33, 31}); // one pixel from the last point that counted
    EXPECT_EQ(CanRun(), 1);
    m_stage.Move({34, 30});
    EXPECT_EQ(CanRun(), 0);

    m_stage.Move({40, 30});
    m_stage.Move({41, 31});
    EXPECT_EQ(m_stage.Rect("A"), CRect(20, 10, 60, 50));
    m_stage.Release({41, 31});
    EXPECT_EQ(m_stage.Rect("A"), CRect(21, 11, 61, 51)) << "the release counts every pixel";
}

TEST_F(MoveDrag, StartMovesNothingAndTakesTheMarksAway) {
    m_stage.Press({30, 30});
    m_stage.Move({45, 30});

    EXPECT_EQ(m_stage.Rect("A"), CRect(10, 10, 50, 50));
    EXPECT_EQ(m_stage.Selection(), Lines{});
    EXPECT_EQ(m_stage.Told(), (Lines{"flush 6 6 54 14", "flush 46 6 54 54", "flush 6 46 54 54",
                                     "flush 6 6 14 54", "selection.RemoveAt A", "repaint 6 6 54 54 erase"}));
}

TEST_F(MoveDrag, StepRepaintsOldAndNewPlaceAtOnceWithoutErasing) {
    m_stage.Press({30, 30});
    m_stage.Move({45, 30});
    m_stage.Forget();

    m_stage.Move({40, 35});

    EXPECT_EQ(m_stage.Rect("A"), CRect(20, 15, 60, 55));
    EXPECT_EQ(m_stage.Told(), (Lines{"flush 6 6 64 59", "repaint 6 6 64 59 keep"}));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(MoveDrag, ReleaseSelectsMarksRecordsShowsAndNotifies) {
    m_stage.Press({30, 30});
    m_stage.Move({45, 30});
    m_stage.Forget();

    m_stage.Release({40, 35});

    EXPECT_EQ(m_stage.Told(), (Lines{"flush 6 6 64 59", "selection.AddTail A", "read 16 11 64 59",
                                     "write 16 11", "read 16 11 64 59", "write 16 11",
                                     "repaint 6 6 64 59 erase", "record CMoveChangedUndoEvent", "area.3 1",
                                     "display-panel.3 0 0 0 0", "shadow-panel.4 0 0", "shadow-panel.3",
                                     "tracker.3 1", "changed.1 27", "changed2.1 27 0", "redrawn.1 27"}));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
    EXPECT_EQ(m_stage.NewestUndo(), "CSelectTool done");
}

TEST_F(MoveDrag, ReleaseWhereTheLastStepWasSelectsAgainAsOneStep) {
    m_stage.Press({30, 30});
    m_stage.Move({45, 30});
    m_stage.Move({40, 35});
    m_stage.Forget();

    m_stage.Release({40, 35});

    Lines told = m_stage.Told();
    told.resize(5);
    EXPECT_EQ(told, (Lines{"selection.AddTail A", "read 16 11 64 59", "write 16 11",
                           "repaint 16 11 64 59 erase", "record CMoveChangedUndoEvent"}));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(MoveDrag, EndingWhereItBeganRecordsNothingButNotifies) {
    m_stage.Press({30, 30});
    m_stage.Move({45, 30});
    m_stage.Move({60, 60});
    m_stage.Move({30, 30});
    m_stage.Forget();
    m_stage.Release({30, 30});

    EXPECT_EQ(m_stage.Rect("A"), CRect(10, 10, 50, 50));
    EXPECT_TRUE(m_stage.UndoClasses().empty());
    EXPECT_THAT(m_stage.ToldOnBus(), testing::IsSupersetOf(Lines{"tracker.3 1", "redrawn.1 27"}));
}

TEST_F(MoveDrag, SeveralMoveTogetherAndStaySelectedInTheirOrder) {
    m_stage.Select({"B", "A"});
    m_stage.Forget();
    m_stage.Press({30, 30});
    m_stage.Move({36, 30});
    EXPECT_EQ(m_stage.Told().back(), "repaint 10 10 140 50 erase");
    m_stage.Move({37, 50});
    EXPECT_EQ(m_stage.Told(), (Lines{"flush 10 10 147 70", "repaint 10 10 147 70 keep"}));
    m_stage.Release({37, 50});

    EXPECT_EQ(m_stage.Rect("A"), CRect(17, 30, 57, 70));
    EXPECT_EQ(m_stage.Rect("B"), CRect(107, 30, 147, 70));
    EXPECT_EQ(m_stage.Selection(), (Lines{"B", "A"}));
    EXPECT_EQ(m_stage.UndoClasses(), MoveRecorded);
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(MoveDrag, OfAnUnselectedObjectSelectsItFirst) {
    m_stage.Drag({120, 30}, {130, 40});

    EXPECT_EQ(m_stage.Rect("B"), CRect(110, 20, 150, 60));
    EXPECT_EQ(m_stage.Selection(), Lines{"B"});
    EXPECT_EQ(m_stage.UndoClasses(), (Lines{"CMoveChangedUndoEvent", "CSelChangedUndoEvent"}));
}

TEST_F(MoveDrag, CompanionsMoveWithTheirObject) {
    m_stage.AddPlaceholder("P", 300, 100, 60, 40);
    m_stage.Shadow("P", 5, 7);
    m_stage.Select({"P"});
    m_stage.Forget();

    m_stage.Press({330, 120});
    m_stage.Move({340, 120});
    m_stage.Forget();
    m_stage.Move({350, 110});
    EXPECT_EQ(m_stage.Told(), (Lines{"flush 296 86 385 147", "repaint 296 86 385 147 keep"}))
        << "marks [296,96,364,144] and [316,86,384,134], shadows [305,107,365,147] and [325,97,385,137]";
    m_stage.Release({350, 110});

    EXPECT_EQ(m_stage.Rect("P"), CRect(320, 90, 380, 130));
    EXPECT_EQ(m_stage.Rect("P.frame"), CRect(320, 90, 380, 130));
    EXPECT_EQ(m_stage.Rect("P.shadow"), CRect(325, 97, 385, 137));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(MoveDrag, NewerQueuedMovesAreTheOnesThatCount) {
    m_stage.Press({30, 30});
    m_stage.QueueMove({40, 30});
    EXPECT_EQ(m_stage.Input().OnMouseMove(MK_LBUTTON, {90, 90}), 1);
    EXPECT_EQ(CanRun(), 1) << "the point was skipped";
    m_stage.Pump();
    EXPECT_EQ(CanRun(), 0);

    m_stage.QueueMove({60, 30});
    m_stage.QueueMove({70, 30});
    m_stage.Pump(1);
    EXPECT_EQ(m_stage.Rect("A"), CRect(10, 10, 50, 50));
    m_stage.Pump(1);
    EXPECT_EQ(m_stage.Rect("A"), CRect(50, 10, 90, 50));
}

TEST_F(MoveDrag, OtherQueuedMessagesDoNotHoldItUp) {
    m_stage.Press({30, 30});
    m_stage.QueueKeyDown('Q');

    m_stage.Move({40, 30});

    EXPECT_EQ(CanRun(), 0);
}

TEST_F(MoveDrag, EightPixelsStayInsideOnEachSide) {
    m_stage.Drag({30, 30}, {-100, 30});
    EXPECT_EQ(m_stage.Rect("A"), CRect(-32, 10, 8, 50));
    m_stage.Undo();
    m_stage.Drag({30, 30}, {30, -100});
    EXPECT_EQ(m_stage.Rect("A"), CRect(10, -32, 50, 8));
    m_stage.Undo();
    m_stage.Drag({30, 30}, {1000, 30});
    EXPECT_EQ(m_stage.Rect("A"), CRect(712, 10, 752, 50));
    m_stage.Undo();
    m_stage.Drag({30, 30}, {30, 700});
    EXPECT_EQ(m_stage.Rect("A"), CRect(10, 472, 50, 512));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(MoveDrag, OutermostOfSeveralKeepsEightPixelsInside) {
    m_stage.Select({"A", "B"});
    m_stage.Drag({30, 30}, {-170, 30});
    EXPECT_EQ(m_stage.Rect("A"), CRect(-32, 10, 8, 50));
    EXPECT_EQ(m_stage.Rect("B"), CRect(58, 10, 98, 50));

    m_stage.Drag({78, 30}, {1078, 30});
    EXPECT_EQ(m_stage.Rect("B"), CRect(712, 10, 752, 50));
    EXPECT_EQ(m_stage.Rect("A"), CRect(622, 10, 662, 50));
}

TEST_F(MoveDrag, PullsInWhatLayBeyondTheMarginAlready) {
    m_stage.Square("N", -40, 200);
    m_stage.Select({"A", "N"});

    m_stage.Drag({30, 30}, {30, 40});

    EXPECT_EQ(m_stage.Rect("N"), CRect(-32, 210, 8, 250));
    EXPECT_EQ(m_stage.Rect("A"), CRect(18, 20, 58, 60));
}

TEST_F(MoveDrag, FarEdgeHoldsWhereBothCannot) {
    m_stage.Square("N", -40, 200); // wants 8 to the right
    m_stage.Square("M", 715, 200); // wants 3 to the left
    m_stage.Select({"A", "N", "M"});

    m_stage.Press({30, 30});
    m_stage.Move({30, 40});
    m_stage.Move({30, 42});

    EXPECT_EQ(m_stage.Rect("M"), CRect(712, 212, 752, 252));
    EXPECT_EQ(m_stage.Rect("N"), CRect(-43, 212, -3, 252));
}

TEST_F(MoveDrag, ComesBackFromTheEdgeWithThePointer) {
    m_stage.Press({30, 30});
    m_stage.Move({20, 30});
    m_stage.Move({-300, 30});
    EXPECT_EQ(m_stage.Rect("A"), CRect(-32, 10, 8, 50));
    m_stage.Move({-290, 30});
    EXPECT_EQ(m_stage.Rect("A"), CRect(-32, 10, 8, 50)) << "still beyond: nothing to do";
    m_stage.Move({25, 30});
    EXPECT_EQ(m_stage.Rect("A"), CRect(5, 10, 45, 50)) << "the anchor keeps its offset of 20";
}

TEST_F(MoveDrag, AtZoomTwoADeltaOfNothingBecomesOnePixel) {
    ZoomedPage(2.0);
    m_stage.Press({60, 60}); // document (30, 30); A stands at [20,20,100,100] on the view
    m_stage.Move({64, 60});
    // Document (33, 31), 30.5 being rounded away from zero: 3 and 1 further.
    m_stage.Move({66, 61});
    EXPECT_EQ(m_stage.Rect("A"), CRect(13, 11, 53, 51));
    // The press point followed A to (66, 62). The pointer's document y is 31 again, so nothing is wanted, but
    // 61 is not 62: one pixel up, which is half a unit, rounded away from zero.
    m_stage.Move({68, 61});
    EXPECT_EQ(m_stage.Rect("A"), CRect(14, 10, 54, 50));
}

TEST_F(MoveDrag, AtZoomOneAndAHalfTheStepIsConvertedBackAndForth) {
    ZoomedPage(1.5);
    m_stage.Press({45, 45}); // document (30, 30); A stands at [15,15,75,75]
    m_stage.Move({49, 45});
    // Document (35, 33): 5 and 3 units, 8 and 5 pixels, 5 and 3 units.
    m_stage.Move({52, 50});
    EXPECT_EQ(m_stage.Rect("A"), CRect(15, 13, 55, 53));
    // A's corner came to (23, 20), so the press point is (53, 50): one pixel left, two thirds of a unit.
    m_stage.Release({52, 50});
    EXPECT_EQ(m_stage.Rect("A"), CRect(14, 13, 54, 53));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(MoveDrag, AtZoomThreeQuarters) {
    ZoomedPage(0.75);
    m_stage.Press({23, 23}); // document (31, 31); A stands at [8,8,38,38]
    m_stage.Move({26, 23});
    // Document (37, 32): 6 and 1 units, 5 (4.5) and 1 (0.75) pixels, 7 (6.67) and 1 (1.33) units.
    m_stage.Move({28, 24});
    EXPECT_EQ(m_stage.Rect("A"), CRect(17, 11, 57, 51));
}

TEST_F(MoveDrag, OnAScrolledViewMovesByTheSameDistance) {
    ZoomedPage(1.0, {-90, 20});
    m_stage.Drag({120, 10}, {130, 15}); // A stands at [100,-10,140,30]
    EXPECT_EQ(m_stage.Rect("A"), CRect(20, 15, 60, 55));

    // Scrolled by an odd number at zoom 1.5, A stands at [11,15,71,75].
    ZoomedPage(1.5, {3, 0});
    m_stage.Press({41, 45}); // document (30, 30)
    m_stage.Move({38, 45});
    // Document 27: 3 units, which are -9 + 5 (4.5) = -4 pixels, which are -3 (2.67) units.
    m_stage.Move({36, 45});
    EXPECT_EQ(m_stage.Rect("A"), CRect(7, 10, 47, 50));
}

TEST_F(MoveDrag, EdgeMarginIsClientPixelsAtAnyZoom) {
    ZoomedPage(2.0);

    m_stage.Drag({60, 60}, {-600, 60});

    EXPECT_EQ(m_stage.Rect("A").right, 4) << "eight pixels";
}

TEST_F(MoveDrag, CaptureIsHeldFromThePressToTheRelease) {
    EXPECT_FALSE(m_stage.HasCapture());
    m_stage.Press({30, 30});
    EXPECT_TRUE(m_stage.HasCapture());
    m_stage.Move({40, 30});
    EXPECT_TRUE(m_stage.HasCapture());
    m_stage.Release({40, 30});
    EXPECT_FALSE(m_stage.HasCapture());
    m_stage.Press({300, 300});
    EXPECT_FALSE(m_stage.HasCapture()) << "a press on empty ground starts nothing";
}

TEST_F(MoveDrag, LeavingTheToolInMidDragEndsItAtOnce) {
    m_stage.Press({30, 30});
    m_stage.Move({40, 30});
    m_stage.Move({50, 30});

    m_stage.UseTool("CObjectPageTool");

    EXPECT_FALSE(m_stage.HasCapture());
    EXPECT_EQ(m_stage.Ops("CSelectTool").CanRunCommand(), 1);
    m_stage.Move({90, 90});
    m_stage.Release({90, 90});
    EXPECT_EQ(m_stage.Rect("A"), CRect(30, 10, 70, 50));
    EXPECT_EQ(m_stage.Selection(), Lines{});
    EXPECT_TRUE(m_stage.UndoClasses().empty());
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(MoveDrag, LeavingTheToolWhilePressedEndsThePress) {
    m_stage.Press({30, 30});
    m_stage.UseTool("", Redraw::No);
    EXPECT_FALSE(m_stage.HasCapture());

    m_stage.UseTool("CSelectTool", Redraw::No);
    m_stage.Move({90, 90});
    EXPECT_EQ(m_stage.Rect("A"), CRect(10, 10, 50, 50));
}

TEST_F(MoveDrag, AfterACancelledOneRecordsFromItsOwnStart) {
    m_stage.Press({30, 30});
    m_stage.Move({40, 30});
    m_stage.Move({50, 30});
    m_stage.UseTool("CObjectPageTool");
    m_stage.UseTool("CSelectTool");
    m_stage.Select({"A"});

    m_stage.Drag({50, 30}, {60, 30});
    m_stage.Undo();

    EXPECT_EQ(m_stage.Rect("A"), CRect(30, 10, 70, 50)) << "where the second drag found it";
}

TEST_F(MoveDrag, RightPressEndsItLikeARelease) {
    m_stage.Press({30, 30});
    m_stage.Move({40, 30});

    m_stage.RightPress({45, 35});

    EXPECT_EQ(m_stage.Rect("A"), CRect(25, 15, 65, 55));
    EXPECT_FALSE(m_stage.HasCapture());
    EXPECT_EQ(m_stage.UndoClasses(), MoveRecorded);
    EXPECT_EQ(CanRun(), 1);
}

TEST_F(MoveDrag, ReleaseAtAnotherToolReachesTheCurrentOne) {
    m_stage.Desk().SwitchTool(m_stage.Tool("CObjectPageTool"), 1);
    m_stage.Press({30, 30});
    ASSERT_TRUE(m_stage.HasCapture());

    m_stage.Input("CSelectTool").OnLButtonUp(0, {30, 30});

    EXPECT_FALSE(m_stage.HasCapture());
}

TEST_F(MoveDrag, WithoutASnapshotMovesAndRecordsNothing) {
    m_stage.Press({30, 30});
    m_stage.FailUndoEvent(0);
    EXPECT_EQ(m_stage.Input().OnMouseMove(MK_LBUTTON, {40, 30}), 0);
    m_stage.Release({60, 30});

    EXPECT_TRUE(m_stage.UndoClasses().empty());
    EXPECT_FALSE(m_stage.HasCapture());
    EXPECT_EQ(m_stage.Selection(), Lines{"A"});
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(MoveDrag, WithoutASnapshotWhatTheFormerDragMovedStaysWhereItIs) {
    m_stage.Drag({30, 30}, {40, 30});
    m_stage.Select({"B"});
    m_stage.Press({120, 30});
    m_stage.FailUndoEvent(0);
    m_stage.Move({130, 30});
    m_stage.Move({150, 90});
    m_stage.Release({150, 90});

    EXPECT_EQ(m_stage.Rect("A"), CRect(20, 10, 60, 50));
    EXPECT_EQ(m_stage.Selection(), Lines{"B"});
}

TEST_F(MoveDrag, WithoutAnAfterSnapshotStaysMovedAndIsNotRecorded) {
    m_stage.Press({30, 30});
    m_stage.Move({40, 30});
    m_stage.Forget();
    m_stage.FailUndoEvent(0);

    EXPECT_EQ(m_stage.Input().OnLButtonUp(0, {50, 30}), 0);

    EXPECT_EQ(m_stage.Rect("A"), CRect(30, 10, 70, 50));
    EXPECT_TRUE(m_stage.UndoClasses().empty());
    EXPECT_EQ(m_stage.ToldOnBus(), Lines{}) << "no panels, no notifications";
}

TEST_F(MoveDrag, WithoutASecondSnapshotTheNextDragRecordsItsOwn) {
    m_stage.Press({30, 30});
    m_stage.Move({40, 30});
    m_stage.FailUndoEvent(0);
    m_stage.Release({50, 30});

    m_stage.Drag({50, 30}, {60, 30});
    m_stage.Undo();

    EXPECT_EQ(m_stage.Rect("A"), CRect(30, 10, 70, 50));
}

TEST_F(MoveDrag, ToolKeepsOneSnapshotBesideTheRecordedOne) {
    m_stage.Drag({30, 30}, {40, 40});
    m_stage.Drag({40, 40}, {50, 50});

    EXPECT_EQ(undo_host::EventCount(), 3U) << "two recorded, the last after-snapshot held";
}

} // namespace
