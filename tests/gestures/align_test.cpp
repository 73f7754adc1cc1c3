// The seven alignments.
#include "gesture_help.h"

namespace {

using Operation = void (CTool::*)();

/// Three pictures: A [10,20,40,60], B [100,50,120,60], C [200,5,250,85], selected in this order.
class Align : public CGestureTest {
  protected:
    Align() {
        Picture("A", 10, 20, 30, 40);
        Picture("B", 100, 50, 20, 10);
        Picture("C", 200, 5, 50, 80);
        stage.Select({"A", "B", "C"});
        stage.Trace();
    }
    void Run(Operation pfnRun) { (Tool().*pfnRun)(); }
    CPoint Place(const std::string& name) { return stage.Rect(name).TopLeft(); }
};

TEST_F(Align, LeftGoesToTheLeastLeft) {
    Run(&CTool::m_fnAlignLeft);

    EXPECT_EQ(stage.Rect("A"), CRect(10, 20, 40, 60));
    EXPECT_EQ(stage.Rect("B"), CRect(10, 50, 30, 60));
    EXPECT_EQ(stage.Rect("C"), CRect(10, 5, 60, 85));
}

TEST_F(Align, TopGoesToTheLeastTop) {
    Run(&CTool::m_fnAlignTop);

    EXPECT_EQ(stage.Rect("A"), CRect(10, 5, 40, 45));
    EXPECT_EQ(stage.Rect("B"), CRect(100, 5, 120, 15));
    EXPECT_EQ(stage.Rect("C"), CRect(200, 5, 250, 85));
}

TEST_F(Align, RightGoesToTheGreatestRight) {
    Run(&CTool::m_fnAlignRight);

    EXPECT_EQ(stage.Rect("A"), CRect(220, 20, 250, 60));
    EXPECT_EQ(stage.Rect("B"), CRect(230, 50, 250, 60));
    EXPECT_EQ(stage.Rect("C"), CRect(200, 5, 250, 85));
}

TEST_F(Align, BottomGoesToTheGreatestBottom) {
    Run(&CTool::m_fnAlignBottom);

    EXPECT_EQ(stage.Rect("A"), CRect(10, 45, 40, 85));
    EXPECT_EQ(stage.Rect("B"), CRect(100, 75, 120, 85));
    EXPECT_EQ(stage.Rect("C"), CRect(200, 5, 250, 85));
}

// The box is [10,5,250,85]; its middle is (130, 45).
TEST_F(Align, MiddleMovesUpAndDownAlone) {
    Run(&CTool::m_fnAlignMiddle);

    EXPECT_EQ(Place("A"), CPoint(10, 25));
    EXPECT_EQ(Place("B"), CPoint(100, 40));
    EXPECT_EQ(Place("C"), CPoint(200, 5));
}

TEST_F(Align, CenterMovesSidewaysAlone) {
    Run(&CTool::m_fnAlignCenter);

    EXPECT_EQ(Place("A"), CPoint(115, 20));
    EXPECT_EQ(Place("B"), CPoint(120, 50));
    EXPECT_EQ(Place("C"), CPoint(105, 5));
}

TEST_F(Align, CentersMovesBothWays) {
    Run(&CTool::m_fnAlignCenters);

    EXPECT_EQ(Place("A"), CPoint(115, 25));
    EXPECT_EQ(Place("B"), CPoint(120, 40));
    EXPECT_EQ(Place("C"), CPoint(105, 5));
}

TEST_F(Align, SingleObjectStaysWhereItIs) {
    Picture("odd", 11, 7, 5, 3);
    for (const Operation pfnRun : {&CTool::m_fnAlignLeft, &CTool::m_fnAlignBottom, &CTool::m_fnAlignMiddle,
                                   &CTool::m_fnAlignCenters}) {
        stage.Select({"odd"});
        Run(pfnRun);
        EXPECT_EQ(stage.Rect("odd"), CRect(11, 7, 16, 10));
    }
}

// The greatest right starts at 0 and the least left at 16777215, so what lies beyond them does not count.
TEST_F(Align, CentresCountFromFixedExtremes) {
    Picture("west", -40, 100, 30, 10);
    stage.Select({"west"});
    Run(&CTool::m_fnAlignCenter);
    EXPECT_EQ(Place("west"), CPoint(-35, 100)) << "(0 - 40) / 2 - 15";

    Picture("odd", -7, -9, 4, 5);
    stage.Select({"odd"});
    Run(&CTool::m_fnAlignCenters);
    EXPECT_EQ(Place("odd"), CPoint(-5, -6)) << "halves are cut toward zero: -3 - 2 and -4 - 2";

    Picture("east", 20000000, 100, 10, 10);
    stage.Select({"east"});
    Run(&CTool::m_fnAlignCenter);
    EXPECT_EQ(Place("east"), CPoint(18388607, 100)) << "(20000010 + 16777215) / 2 - 5";
}

TEST_F(Align, MarginMovesWithTheScroll) {
    stage.SetScroll({100, 50}); // the margins are 108 and 58, the far edges 500 and 350
    Picture("far left", -300, 60, 20, 20);
    Picture("far up", 200, -300, 20, 20);
    Picture("far right", 900, 60, 20, 20);
    Picture("far down", 200, 900, 20, 20);
    Picture("N", 200, 60, 40, 40);

    stage.Select({"far left", "N"});
    Run(&CTool::m_fnAlignLeft);
    EXPECT_EQ(Place("N"), CPoint(68, 60)) << "its right edge comes back to 108";
    stage.Select({"far up", "N"});
    Run(&CTool::m_fnAlignTop);
    EXPECT_EQ(Place("N"), CPoint(68, 18)) << "its bottom edge comes back to 58";
    stage.Select({"far right", "N"});
    Run(&CTool::m_fnAlignRight);
    EXPECT_EQ(Place("N"), CPoint(392, 18)) << "500 - 108";
    stage.Select({"far down", "N"});
    Run(&CTool::m_fnAlignBottom);
    EXPECT_EQ(Place("N"), CPoint(392, 292)) << "350 - 58";
}

TEST_F(Align, MarginIsEightPixelsWhateverTheZoom) {
    Page(400, 300, 2.0);
    Picture("far left", -300, 60, 20, 20);
    Picture("N", 200, 60, 40, 40);
    stage.Select({"N", "far left"});

    Run(&CTool::m_fnAlignLeft);

    EXPECT_EQ(stage.Rect("N"), CRect(-36, 60, 4, 100));
    EXPECT_EQ(Place("far left"), CPoint(-300, 60)) << "the reference is left out of the view";
}

// At zoom 0.5 the lefts 9 and 10 are both client pixel 5, so the first in the selection is the reference.
TEST_F(Align, OnATieTheOneSelectedFirstIsTheReference) {
    Page(400, 300, 0.5);
    Picture("nine", 9, 20, 60, 20);
    Picture("ten", 10, 60, 60, 20);
    stage.Select({"ten", "nine"});
    Run(&CTool::m_fnAlignLeft);
    EXPECT_EQ(stage.Rect("nine").left, 10);

    Page(400, 300, 0.5);
    Picture("nine", 9, 20, 60, 20);
    Picture("ten", 10, 60, 60, 20);
    stage.Select({"nine", "ten"});
    Run(&CTool::m_fnAlignLeft);
    EXPECT_EQ(stage.Rect("ten").left, 9);
}

TEST_F(Align, BoundsIncludeTheFrameAndCompanionsComeAlong) {
    FramedPicture("F", 60, 120, 40, 40); // with its frame [50,110,110,170]
    ASSERT_TRUE(Shadow("F", 4, 4));
    stage.Select({"A", "F"});

    Run(&CTool::m_fnAlignLeft);

    EXPECT_EQ(Place("F.frame"), CPoint(10, 110));
    EXPECT_EQ(Place("F"), CPoint(20, 120));
    EXPECT_EQ(Place("F.shadow"), CPoint(14, 114));
    EXPECT_EQ(stage.Node("F.shadow")->m_pOwner, stage.Node("F"));
}

TEST_F(Align, FrameMakesItsObjectTheReference) {
    FramedPicture("F", 15, 120, 40, 40); // its frame reaches to 5
    stage.Select({"A", "F"});

    Run(&CTool::m_fnAlignLeft);

    EXPECT_EQ(Place("A"), CPoint(5, 20));
    EXPECT_EQ(Place("F"), CPoint(15, 120));
}

TEST_F(Align, SelectedCompanionsAreNotMovedOnTheirOwn) {
    FramedPicture("F", 60, 120, 40, 40);
    stage.Select({"A", "F.frame"});

    Run(&CTool::m_fnAlignLeft);
    Run(&CTool::m_fnAlignTop);

    EXPECT_EQ(Place("F.frame"), CPoint(50, 110));
    EXPECT_EQ(Place("F"), CPoint(60, 120));
}

TEST_F(Align, RefreshesTheUnionOfBothAreasAndRecordsNothing) {
    Run(&CTool::m_fnAlignLeft);

    const Steps steps = TakeSteps();
    ASSERT_EQ(steps.size(), 12U) << "flush, three marks read and written, repaint, four notifications";
    EXPECT_EQ(steps[0], "view FlushCacheRect [10,5,250,85]");
    EXPECT_EQ(Steps(steps.end() - 5, steps.end()),
              (Steps{"view RepaintViewRect [10,5,250,85] 1", "51", "38", "38", "45"}));
    EXPECT_EQ(stage.UndoClasses(), Names{});
    EXPECT_EQ(Screen(), FreshScreen());
}

TEST_F(Align, WithNothingSelectedOnlyTheFinishingStepsRun) {
    stage.Select({});
    for (const Operation pfnRun : {&CTool::m_fnAlignRight, &CTool::m_fnAlignCenters,
                                   &CTool::m_fnDistributeVertically, &CTool::m_fnSameSize}) {
        TakeSteps();
        Run(pfnRun);
        EXPECT_EQ(TakeSteps(), (Steps{"view FlushCacheRect [0,0,0,0]", "view RepaintViewRect [0,0,0,0] 1",
                                      "51", "38", "38", "45"}));
    }
}

} // namespace
