// The two distributions and the three size matchings.
#include "gesture_help.h"

namespace {

class Distribute : public CGestureTest {
  protected:
    /// A picture 20 wide from `nTop` to `nBottom`, selected behind the others.
    void Bar(const std::string& name, int nTop, int nBottom) {
        Picture(name, 100 + 30 * static_cast<int>(m_names.size()), nTop, 20, nBottom - nTop);
        m_names.push_back(name);
    }
    void Vertically() {
        stage.Select(m_names);
        stage.Trace();
        Tool().m_fnDistributeVertically();
    }
    CPoint Span(const std::string& name) { return CPoint(stage.Rect(name).top, stage.Rect(name).bottom); }

    Names m_names;
};

TEST_F(Distribute, RoundsTheRunningShareSoThatTheLastGapTakesTheRemainder) {
    Bar("P", 100, 110);
    Bar("M1", 111, 119);
    Bar("M2", 125, 131);
    Bar("Q", 134, 144); // 44 in all less 34 covered: 10 free in 3 gaps

    Vertically();

    EXPECT_EQ(Span("M1"), CPoint(113, 121));
    EXPECT_EQ(Span("M2"), CPoint(124, 130)) << "110 + 8 + 20 / 3";
    EXPECT_EQ(Span("P"), CPoint(100, 110));
    EXPECT_EQ(Span("Q"), CPoint(134, 144));
}

TEST_F(Distribute, OrderIsThatOfTheTopsNotOfTheSelection) {
    Bar("M2", 125, 131);
    Bar("Q", 134, 144);
    Bar("P", 100, 110);
    Bar("M1", 111, 119);

    Vertically();

    EXPECT_EQ(Span("M1"), CPoint(113, 121));
    EXPECT_EQ(Span("M2"), CPoint(124, 130));
}

TEST_F(Distribute, OnEqualTopsTheShorterComesFirst) {
    Bar("long", 100, 130);
    Bar("short", 100, 110);
    Bar("Q", 200, 210);

    Vertically();

    // The short one is the first; 110 in all less 50 covered are 60 free in 2 gaps.
    EXPECT_EQ(Span("short"), CPoint(100, 110));
    EXPECT_EQ(Span("long"), CPoint(140, 170));
}

TEST_F(Distribute, OneTallerThanTheInnerSpanIsCentredInIt) {
    Bar("P", 100, 110);
    Bar("M", 104, 134); // 30 high; between the outer two are 20
    Bar("Q", 130, 140);

    Vertically();

    EXPECT_EQ(Span("M"), CPoint(105, 135)) << "240 / 2 - 238 / 2";
}

TEST_F(Distribute, OneAsTallAsTheInnerSpanIsLeftOutOfTheSharing) {
    Bar("P", 100, 110);
    Bar("tall", 112, 142); // as high as the inner span of 30
    Bar("M", 115, 125);
    Bar("Q", 140, 150);

    Vertically();

    EXPECT_EQ(Span("tall"), CPoint(110, 140)) << "centred: 250 / 2 - 254 / 2";
    EXPECT_EQ(Span("M"), CPoint(120, 130)) << "50 less 30 covered: 20 free in 2 gaps";
}

TEST_F(Distribute, LastIsTheOneThatReachesFarthestAndOnATieTheEarlier) {
    Bar("P", 100, 110);
    Bar("Q", 120, 200);
    Bar("same", 150, 200);
    Bar("M", 150, 160);

    Vertically();

    EXPECT_EQ(Span("Q"), CPoint(120, 200));
    EXPECT_EQ(Span("M"), CPoint(110, 120)) << "as tall as the span of 10: (110 + 120) / 2 - 155";
    EXPECT_EQ(Span("same"), CPoint(100, 150)) << "centred at 115 it would stand at 90";
}

TEST_F(Distribute, NegativeFreeSpaceOverlapsEvenly) {
    Bar("P", 100, 150);
    Bar("M1", 120, 128);
    Bar("M2", 121, 129);
    Bar("M3", 122, 130);
    Bar("Q", 160, 200); // 100 in all less 114 covered: -14 in 4 gaps

    Vertically();

    EXPECT_EQ(Span("M1"), CPoint(147, 155)) << "150 - 14 / 4";
    EXPECT_EQ(Span("M2"), CPoint(151, 159)) << "158 - 28 / 4";
    EXPECT_EQ(Span("M3"), CPoint(156, 164)) << "166 - 42 / 4";
}

TEST_F(Distribute, NothingStandsBeyondTheOuterTwo) {
    Bar("P", 100, 180);
    Bar("M", 105, 195); // centred on the inner span it would be [140,230]
    Bar("Q", 190, 200);
    Vertically();
    EXPECT_EQ(Span("M"), CPoint(110, 200));

    Page(400, 300, 1.0);
    m_names.clear();
    Bar("P", 100, 110);
    Bar("M", 101, 199); // centred it would be [66,164]
    Bar("Q", 120, 200);
    Vertically();
    EXPECT_EQ(Span("M"), CPoint(100, 198));
}

TEST_F(Distribute, OneAboveTheViewComesBackToTheMargin) {
    stage.SetScroll({0, 200}); // the margin is 208, the far edge 500
    Bar("P", 100, 110);
    Bar("M", 115, 125);
    Bar("Q", 160, 170);

    Vertically();

    EXPECT_EQ(Span("M"), CPoint(198, 208)) << "from [130,140]";
    EXPECT_EQ(Span("P"), CPoint(100, 110));
}

TEST_F(Distribute, OneBelowTheViewComesBackToTheMargin) {
    Bar("P", 400, 410);
    Bar("M", 412, 422);
    Bar("Q", 460, 470);

    Vertically();

    EXPECT_EQ(Span("M"), CPoint(292, 302)) << "from [430,440]";
}

TEST_F(Distribute, LastCorrectionUsesTheTopFromBeforeTheThird) {
    stage.SetViewSize(400, 10);
    stage.SetScroll({0, 200}); // the margin is 208, the far edge 210
    Bar("P", 100, 110);
    Bar("M", 115, 125);
    Bar("Q", 160, 170);

    Vertically();

    EXPECT_EQ(Span("M"), CPoint(70, 80)) << "from [130,140] 68 down, then 210 - 130 - 208";
}

TEST_F(Distribute, NeedsTwoAndMovesNothingBetweenThem) {
    Bar("P", 100, 110);
    Vertically();
    EXPECT_EQ(Span("P"), CPoint(100, 110));
    EXPECT_EQ(TakeSteps().back(), "45") << "the finishing steps run all the same";

    Bar("Q", 104, 140);
    Vertically();
    EXPECT_EQ(Span("P"), CPoint(100, 110));
    EXPECT_EQ(Span("Q"), CPoint(104, 140));
}

TEST_F(Distribute, HorizontallyIsTheSameAcross) {
    Picture("P", 100, 10, 10, 20);
    Picture("M1", 111, 50, 8, 20);
    Picture("M2", 125, 90, 6, 20);
    Picture("Q", 134, 130, 10, 20);
    stage.Select({"Q", "M1", "P", "M2"});

    Tool().m_fnDistributeHorizontally();

    EXPECT_EQ(stage.Rect("M1"), CRect(113, 50, 121, 70));
    EXPECT_EQ(stage.Rect("M2"), CRect(124, 90, 130, 110));
    EXPECT_EQ(stage.UndoClasses(), Names{});
}

TEST_F(Distribute, CountsFramesAndMovesGroups) {
    Bar("P", 100, 110);
    FramedPicture("F", 200, 130, 10, 10); // with its frame 30 high
    ASSERT_TRUE(Shadow("F", 2, 3));
    m_names.push_back("F");
    Bar("Q", 200, 210); // 110 less 50 covered: 60 free in 2 gaps

    Vertically();

    EXPECT_EQ(Span("F.frame"), CPoint(140, 170));
    EXPECT_EQ(Span("F"), CPoint(150, 160));
    EXPECT_EQ(stage.Rect("F.shadow").top, 143);
    EXPECT_EQ(Screen(), FreshScreen());
}

class SameSize : public CGestureTest {
  protected:
    SameSize() {
        Picture("A", 10, 10, 30, 40);
        Picture("B", 100, 10, 60, 20);
        stage.Select({"A", "B"});
        stage.Trace();
    }
};

TEST_F(SameSize, WidthIsTheGreatest) {
    Tool().m_fnSameWidth();

    EXPECT_EQ(stage.Rect("A"), CRect(10, 10, 70, 50));
    EXPECT_EQ(stage.Rect("B"), CRect(100, 10, 160, 30));
}

TEST_F(SameSize, HeightIsTheGreatest) {
    Tool().m_fnSameHeight();

    EXPECT_EQ(stage.Rect("A"), CRect(10, 10, 40, 50));
    EXPECT_EQ(stage.Rect("B"), CRect(100, 10, 160, 50));
}

TEST_F(SameSize, SizeTakesBothFromWhicheverIsLarger) {
    Tool().m_fnSameSize();

    EXPECT_EQ(stage.Rect("A"), CRect(10, 10, 70, 50));
    EXPECT_EQ(stage.Rect("B"), CRect(100, 10, 160, 50));
    EXPECT_EQ(stage.UndoClasses(), Names{});
    EXPECT_EQ(Screen(), FreshScreen());
}

TEST_F(SameSize, RefreshesTheUnionOfBothAreas) {
    Tool().m_fnSameSize();

    const Steps steps = TakeSteps();
    ASSERT_EQ(steps.size(), 10U);
    EXPECT_EQ(steps[0], "view FlushCacheRect [10,10,160,50]");
    EXPECT_EQ(steps[5], "view RepaintViewRect [10,10,160,50] 1");
    EXPECT_EQ(steps.back(), "45");
}

TEST_F(SameSize, FrameAndPictureScaleTogether) {
    FramedPicture("F", 110, 100, 40, 40); // with its frame [100,90,160,150], 60 by 60
    Picture("wide", 10, 200, 120, 20);
    ASSERT_TRUE(Shadow("F", 4, 4));
    stage.Select({"F", "wide"});

    Tool().m_fnSameWidth();

    EXPECT_EQ(stage.Rect("F.frame"), CRect(100, 90, 220, 150));
    EXPECT_EQ(stage.Rect("F"), CRect(120, 100, 200, 140));
    EXPECT_EQ(stage.Rect("F.shadow"), CRect(104, 94, 224, 154));
    EXPECT_EQ(stage.Rect("wide"), CRect(10, 200, 130, 220));
}

TEST_F(SameSize, PictureThatKeepsProportionsFitsItsPlace) {
    FramedPicture("F", 110, 100, 40, 40)->m_nKeepProportions = 1;
    Picture("wide", 10, 200, 180, 20);
    stage.Select({"F", "wide"});

    Tool().m_fnSameWidth();

    // The place becomes [130,100,250,140]; 40 by 40 fits it 40 high, 80 too wide.
    EXPECT_EQ(stage.Rect("F"), CRect(170, 100, 210, 140));
    EXPECT_EQ(stage.Rect("F.frame"), CRect(100, 90, 280, 150));
}

TEST_F(SameSize, SelectedCompanionCountsButKeepsItsSize) {
    FramedPicture("F", 210, 100, 80, 20); // its frame is 100 by 40
    stage.Select({"A", "F.frame"});

    Tool().m_fnSameWidth();

    EXPECT_EQ(stage.Rect("A").Width(), 100);
    EXPECT_EQ(stage.Rect("F.frame"), CRect(200, 90, 300, 130));
    EXPECT_EQ(stage.Rect("F"), CRect(210, 100, 290, 120));
}

TEST_F(SameSize, ObjectsWithoutAnAreaTakeOne) {
    stage.Node("A")->m_fnResize(CRect(10, 10, 10, 10));

    Tool().m_fnSameSize();

    EXPECT_EQ(stage.Rect("A"), CRect(10, 10, 70, 30));
}

} // namespace
