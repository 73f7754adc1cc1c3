// Moving the selection with the arrow keys, the Delete key, and bringing objects back into the view.
#include <algorithm>

#include "gesture_help.h"
#include "platform/faults.h"

namespace {

/// A picture of 50 by 40 at (100, 100), selected.
class Nudge : public CGestureTest {
  protected:
    Nudge() {
        Picture("A", 100, 100, 50, 40);
        stage.Select({"A"});
        stage.Trace();
    }
    CPoint Place(const std::string& name) { return stage.Rect(name).TopLeft(); }
    void Nudges(int nKey, int nTimes) {
        for (int n = 0; n < nTimes; ++n) {
            stage.KeyDown(nKey);
        }
    }
};

TEST_F(Nudge, EachArrowMovesOnePixelItsWay) {
    stage.Key(VK_LEFT);
    EXPECT_EQ(Place("A"), CPoint(99, 100));
    stage.Key(VK_UP);
    EXPECT_EQ(Place("A"), CPoint(99, 99));
    stage.Key(VK_RIGHT);
    EXPECT_EQ(Place("A"), CPoint(100, 99));
    stage.Key(VK_DOWN);
    EXPECT_EQ(Place("A"), CPoint(100, 100));

    EXPECT_EQ(stage.UndoClasses().size(), 4U);
    EXPECT_EQ(Screen(), FreshScreen());
}

TEST_F(Nudge, EleventhKeyDownIsTheFirstOfTenPixels) {
    Nudges(VK_RIGHT, 10);
    EXPECT_EQ(Place("A"), CPoint(110, 100));
    Nudges(VK_RIGHT, 1);
    EXPECT_EQ(Place("A"), CPoint(120, 100));
    Nudges(VK_RIGHT, 1);
    EXPECT_EQ(Place("A"), CPoint(130, 100));
}

TEST_F(Nudge, AnotherArrowStartsAgainAtOnePixel) {
    Nudges(VK_RIGHT, 11);
    Nudges(VK_DOWN, 1);
    Nudges(VK_RIGHT, 1);

    EXPECT_EQ(Place("A"), CPoint(121, 101));
}

TEST_F(Nudge, LettingGoStartsAgainAtOnePixel) {
    stage.Key(VK_RIGHT, 11);
    stage.Key(VK_RIGHT);

    EXPECT_EQ(Place("A"), CPoint(121, 100));
}

TEST_F(Nudge, SequenceIsOneEventClosedByTheLastArrow) {
    Nudges(VK_RIGHT, 3);
    Nudges(VK_DOWN, 2);
    stage.KeyUp(VK_RIGHT);
    EXPECT_EQ(stage.UndoClasses(), Names{}) << "the other arrow is still held";

    stage.KeyUp(VK_DOWN);
    EXPECT_EQ(stage.UndoClasses(), Names{"CMoveChangedUndoEvent"});
    stage.Undo();

    EXPECT_EQ(Place("A"), CPoint(100, 100));
}

TEST_F(Nudge, ThereAndBackRecordsNothing) {
    Nudges(VK_RIGHT, 1);
    Nudges(VK_LEFT, 1);
    stage.KeyUp(VK_RIGHT);
    stage.KeyUp(VK_LEFT);

    EXPECT_EQ(Place("A"), CPoint(100, 100));
    EXPECT_EQ(stage.UndoClasses(), Names{});
}

// The capture from before a sequence that changed nothing serves the next one, wherever that starts.
TEST_F(Nudge, KeptCaptureIsWhatTheNextSequenceGoesBackTo) {
    Nudges(VK_RIGHT, 1);
    Nudges(VK_LEFT, 1);
    stage.KeyUp(VK_RIGHT);
    stage.KeyUp(VK_LEFT);
    stage.Drag({120, 120}, {160, 120});
    stage.Key(VK_DOWN);
    ASSERT_EQ(Place("A"), CPoint(140, 101));

    stage.Undo();

    EXPECT_EQ(Place("A"), CPoint(100, 100));
}

// The capture kept from a sequence that changed nothing knows the old page's objects, which are gone.
TEST_F(Nudge, KeptCaptureDoesNotOutliveItsPage) {
    Nudges(VK_RIGHT, 1);
    Nudges(VK_LEFT, 1);
    stage.KeyUp(VK_RIGHT);
    stage.KeyUp(VK_LEFT);
    Page(400, 300, 1.0);
    Picture("B", 50, 50, 20, 20);
    Picture("C", 90, 50, 20, 20);
    stage.Select({"B", "C"});

    stage.Key(VK_DOWN);
    stage.Undo();

    EXPECT_EQ(Place("B"), CPoint(50, 50));
    EXPECT_EQ(Place("C"), CPoint(90, 50));
}

TEST_F(Nudge, OfQueuedKeyDownsOnlyTheLastMoves) {
    for (int n = 0; n < 5; ++n) {
        stage.QueueKeyDown(VK_RIGHT);
    }
    stage.Pump();

    EXPECT_EQ(Place("A"), CPoint(101, 100));
}

TEST_F(Nudge, SkippedKeyDownsCountTowardsTheTenPixels) {
    for (int n = 0; n < 11; ++n) {
        stage.QueueKeyDown(VK_RIGHT);
    }
    stage.Pump();

    EXPECT_EQ(Place("A"), CPoint(110, 100));
}

TEST_F(Nudge, OtherKeysDoNothingWhileAnArrowIsHeld) {
    Nudges(VK_RIGHT, 10);

    stage.KeyDown(VK_DELETE);
    EXPECT_EQ(stage.PageNames(), Names{"A"});
    Nudges(VK_RIGHT, 1);

    EXPECT_EQ(Place("A"), CPoint(120, 100)) << "they do not count either";
}

TEST_F(Nudge, OtherKeyBetweenStartsTheCountAgain) {
    Nudges(VK_RIGHT, 10);
    stage.LetGo(VK_RIGHT); // the release is still on its way
    stage.KeyDown('Q');
    stage.KeyDown(VK_RIGHT);

    EXPECT_EQ(Place("A"), CPoint(111, 100));
}

TEST_F(Nudge, DoesNothingWhileTheButtonIsHeld) {
    stage.Press({120, 120});
    stage.Key(VK_RIGHT);
    stage.Release({120, 120});

    EXPECT_EQ(Place("A"), CPoint(100, 100));
    EXPECT_EQ(stage.UndoClasses(), Names{});
}

TEST_F(Nudge, PressWhileAnArrowIsHeldSelectsNothing) {
    Picture("B", 300, 200, 40, 40);
    stage.KeyDown(VK_RIGHT);

    stage.Press({320, 220});
    EXPECT_FALSE(HasCapture());
    stage.Release({320, 220});

    EXPECT_EQ(stage.Selection(), Names{"A"});
}

TEST_F(Nudge, NeedsASelection) {
    stage.Select({});

    stage.Key(VK_RIGHT, 3);

    EXPECT_EQ(Place("A"), CPoint(100, 100));
    EXPECT_EQ(stage.UndoClasses(), Names{});
}

struct ZoomRow {
    double dZoom;
    CPoint ptScroll;
    int nKey;
    CPoint expected;
};

// At zoom 2 one pixel is half a unit; what rounds to nothing still moves one pixel, which is one unit away.
constexpr ZoomRow ZoomRows[] = {
    {2.0, {0, 0}, VK_RIGHT, {101, 100}},   {2.0, {0, 0}, VK_LEFT, {99, 100}},
    {1.5, {0, 0}, VK_RIGHT, {101, 100}},   {1.5, {0, 0}, VK_LEFT, {99, 100}},
    {0.75, {0, 0}, VK_RIGHT, {101, 100}},  {0.75, {0, 0}, VK_UP, {100, 99}},
    {1.0, {-30, 20}, VK_DOWN, {100, 101}}, {2.0, {60, 70}, VK_UP, {100, 99}},
};

TEST_F(Nudge, MovesOneUnitAtTheseZooms) {
    for (const ZoomRow& row : ZoomRows) {
        Page(400, 300, row.dZoom, row.ptScroll);
        Picture("A", 100, 100, 50, 40);
        stage.Select({"A"});

        stage.Key(row.nKey);

        EXPECT_EQ(Place("A"), row.expected) << "key " << row.nKey << " at zoom " << row.dZoom;
        EXPECT_EQ(Screen(), FreshScreen()) << "key " << row.nKey << " at zoom " << row.dZoom;
    }
}

TEST_F(Nudge, KeepsEightPixelsInTheView) {
    Picture("left", -40, 10, 50, 40);   // its right edge is at 10
    Picture("right", 390, 10, 50, 40);  // the view is 400 wide
    Picture("top", 60, -30, 50, 40);    // its bottom edge is at 10
    Picture("bottom", 60, 290, 50, 40); // the view is 300 high

    stage.Select({"left"});
    stage.Key(VK_LEFT, 5);
    stage.Select({"right"});
    stage.Key(VK_RIGHT, 12);
    stage.Select({"top"});
    stage.Key(VK_UP, 5);
    stage.Select({"bottom"});
    stage.Key(VK_DOWN, 5);

    EXPECT_EQ(Place("left"), CPoint(-42, 10));
    EXPECT_EQ(Place("right"), CPoint(392, 10));
    EXPECT_EQ(Place("top"), CPoint(60, -32));
    EXPECT_EQ(Place("bottom"), CPoint(60, 292));
}

TEST_F(Nudge, MovesSeveralWithTheirCompanionsAndKeepsTheirOrder) {
    FramedPicture("F", 200, 60, 40, 40);
    ASSERT_TRUE(Shadow("F", 7, 7));
    stage.Select({"F", "A"});

    stage.Key(VK_DOWN, 4);

    EXPECT_EQ(Place("A"), CPoint(100, 104));
    EXPECT_EQ(Place("F"), CPoint(200, 64));
    EXPECT_EQ(Place("F.frame"), CPoint(190, 54));
    EXPECT_EQ(Place("F.shadow"), CPoint(197, 61)) << "from the frame's corner";
    EXPECT_EQ(stage.Selection(), (Names{"F", "A"}));
    EXPECT_EQ(Screen(), FreshScreen());
}

TEST_F(Nudge, RefreshesOnceAndNotifies) {
    stage.KeyDown(VK_RIGHT);
    const Steps steps = TakeSteps();

    // Four strips take the marks out; the area is that of the mark before and after.
    ASSERT_GE(steps.size(), 13U);
    EXPECT_EQ(Steps(steps.begin(), steps.begin() + 6),
              (Steps{"view FlushCacheRect [96,96,154,104]", "view FlushCacheRect [146,96,154,144]",
                     "view FlushCacheRect [96,136,154,144]", "view FlushCacheRect [96,96,104,144]",
                     "view InvalidateRect [96,96,154,144] 0", "view FlushCacheRect [96,96,155,144]"}));
    EXPECT_EQ(Steps(steps.end() - 5, steps.end()),
              (Steps{"view RepaintViewRect [96,96,155,144] 1", "51", "38", "38", "45"}));
}

TEST_F(Nudge, WithoutTheFirstSnapshotMovesNothing) {
    platform::ArmFault("undo-event", true, 0);
    stage.Key(VK_RIGHT);

    EXPECT_EQ(Place("A"), CPoint(100, 100));
    EXPECT_EQ(stage.UndoClasses(), Names{});
    EXPECT_EQ(stage.Selection(), Names{"A"});
}

TEST_F(Nudge, WithoutTheSecondSnapshotStandsAndTheFirstIsDropped) {
    platform::ArmFault("undo-event", true, 1);
    stage.Key(VK_RIGHT);
    EXPECT_EQ(stage.UndoClasses(), Names{});

    stage.Key(VK_RIGHT);
    EXPECT_EQ(Place("A"), CPoint(102, 100));
    stage.Undo();

    EXPECT_EQ(Place("A"), CPoint(101, 100));
}

TEST_F(Nudge, UndoAndRedoTenTimesBringBackTheSameRectangles) {
    FramedPicture("F", 200, 60, 40, 40);
    ASSERT_TRUE(Shadow("F", 7, 7, 3));
    stage.Select({"F", "A"});
    const std::string before = Shape();
    stage.Key(VK_RIGHT, 13);
    const std::string after = Shape();
    ASSERT_NE(before, after);

    for (int n = 0; n < 10; ++n) {
        stage.Undo();
        EXPECT_EQ(Shape(), before);
        stage.Redo();
        EXPECT_EQ(Shape(), after);
    }
    EXPECT_EQ(Screen(), FreshScreen());
}

class KeepNodeInView : public CGestureTest {};

struct ViewRow {
    CRect rect;
    CPoint expected;
    int nAnswer;
};

// The view less eight pixels is [8,8,392,292]. The answer is 0 when the part common to both places is as wide
// as the node, and otherwise whether it is not as high.
constexpr ViewRow ViewRows[] = {
    {{100, 100, 150, 140}, {100, 100}, 0}, {{500, 100, 550, 140}, {392, 100}, 1},
    {{393, 100, 443, 140}, {392, 100}, 0}, {{392, 100, 442, 140}, {392, 100}, 0},
    {{-50, 100, 0, 140}, {-42, 100}, 0},   {{-42, 100, 8, 140}, {-42, 100}, 0},
    {{100, 293, 150, 333}, {100, 292}, 0}, {{100, 400, 150, 440}, {100, 292}, 1},
    {{393, 293, 443, 333}, {392, 292}, 1}, {{-90, -90, -40, -50}, {-42, -32}, 1},
    {{100, -80, 150, -40}, {100, -32}, 1},
};

TEST_F(KeepNodeInView, BringsOneThatLiesOutsideBackToTheEdge) {
    int nRow = 0;
    for (const ViewRow& row : ViewRows) {
        const std::string name = "n" + std::to_string(nRow++);
        CImgNode* pNode = Picture(name, row.rect.left, row.rect.top, row.rect.Width(), row.rect.Height());

        EXPECT_EQ(Ops().KeepNodeInView(pNode), row.nAnswer) << ::testing::PrintToString(row.rect);

        EXPECT_EQ(stage.Rect(name).TopLeft(), row.expected) << ::testing::PrintToString(row.rect);
    }
}

TEST_F(KeepNodeInView, LaterRuleWinsInAViewTooSmallForBoth) {
    stage.SetViewSize(10, 300); // shrunk by eight it runs from 8 to 2
    CImgNode* pNode = Picture("A", 5, 100, 2, 40);

    Ops().KeepNodeInView(pNode);

    EXPECT_EQ(stage.Rect("A").left, 6) << "8 - 7, not 2 - 5";
}

TEST_F(KeepNodeInView, CompanionsComeAlong) {
    FramedPicture("F", 500, 100, 40, 40); // with its frame from 490
    ASSERT_TRUE(Shadow("F", 3, 4));

    Ops().KeepNodeInView(stage.Node("F"));

    EXPECT_EQ(stage.Rect("F.frame").left, 392);
    EXPECT_EQ(stage.Rect("F").left, 402);
    EXPECT_EQ(stage.Rect("F.shadow").left, 395);
}

class DeleteKey : public CGestureTest {};

TEST_F(DeleteKey, TakesWholeGroupsOffThePageAndRecordsNothing) {
    FramedPicture("F", 100, 100, 40, 40);
    ASSERT_TRUE(Shadow("F", 3, 4));
    Picture("B", 200, 100, 40, 40);
    CImgNode* pNode = stage.Node("F");
    stage.Select({"F"});

    stage.Key(VK_DELETE);

    EXPECT_EQ(stage.PageNames(), Names{"B"});
    EXPECT_EQ(stage.Selection(), Names{});
    EXPECT_EQ(stage.UndoClasses(), Names{});
    EXPECT_TRUE(pNode->m_pFrameNode && pNode->m_pShadowNode) << "links stay";
    EXPECT_EQ(pNode->m_pShadowNode->m_pOwner, pNode);
    EXPECT_EQ(Screen(), FreshScreen());
}

TEST_F(DeleteKey, RefreshesTheFormerAreaThenTellsThePageThenEverybody) {
    Picture("A", 100, 100, 40, 40);
    Picture("B", 200, 100, 40, 40);
    stage.Select({"A", "B"});
    stage.Trace();
    stage.Calls();

    stage.KeyDown(VK_DELETE);

    const std::vector<trace::Row> calls = stage.Calls();
    ASSERT_EQ(calls.size(), 5U);
    EXPECT_EQ(calls[0].iface, "{549E67C8-F257-4EF4-967F-EEA7FF71B671}");
    EXPECT_EQ(calls[0].op, "1");
    EXPECT_EQ(calls[1].on, "51");
    EXPECT_EQ(TakeSteps(), (Steps{"view FlushCacheRect [100,100,240,140]",
                                  "view RepaintViewRect [100,100,240,140] 1", "51", "38", "38", "45"}));
}

TEST_F(DeleteKey, LeavesSelectedCompanionsWhereTheyAre) {
    FramedPicture("F", 100, 100, 40, 40);
    Picture("B", 200, 100, 40, 40);
    stage.Select({"F.frame", "B"});

    stage.Key(VK_DELETE);

    EXPECT_EQ(stage.PageNames(), (Names{"F.frame", "F"}));
    EXPECT_EQ(stage.Selection(), Names{"F.frame"});
}

TEST_F(DeleteKey, DoesNothingWithoutASelection) {
    Picture("A", 100, 100, 40, 40);
    stage.Trace();

    stage.Key(VK_DELETE);

    EXPECT_EQ(stage.PageNames(), Names{"A"});
    EXPECT_EQ(TakeSteps(), Steps{});
}

} // namespace
