// The choice of an alignment's reference, and the events that a host may record around arranging.
#include <gtest/gtest.h>

#include "tool_desk.h"
#include "undo/align_event.h"
#include "undo/arrange_event.h"

namespace {

class PickReference : public ::testing::Test, protected CToolDesk {
  protected:
    CImgNode* Pick(const std::vector<CImgNode*>& nodes, int nRule) {
        CNodeRefList list;
        for (CImgNode* pNode : nodes) {
            list.AddTail(pNode);
        }
        return Tool().m_fnPickReference(list, nRule);
    }
};

TEST_F(PickReference, HasARuleForEachEdge) {
    CImgNode* pWide = Picture(10, 50, 200, 20);  // least left, greatest right
    CImgNode* pTall = Picture(50, 10, 20, 200);  // least top, greatest bottom
    CImgNode* pSmall = Picture(20, 40, 10, 10);  // least right and bottom
    CImgNode* pInner = Picture(100, 90, 30, 30); // greatest left and top
    const std::vector<CImgNode*> nodes = {pSmall, pInner, pTall, pWide};

    EXPECT_EQ(Pick(nodes, 0), pWide);
    EXPECT_EQ(Pick(nodes, 1), pSmall);
    EXPECT_EQ(Pick(nodes, 2), pTall);
    EXPECT_EQ(Pick(nodes, 3), pSmall);
    EXPECT_EQ(Pick(nodes, 4), pWide);
    EXPECT_EQ(Pick(nodes, 6), pTall);
    EXPECT_EQ(Pick(nodes, 7), pInner);
    for (const int nOther : {5, 8, 99, -1}) {
        EXPECT_EQ(Pick(nodes, nOther), pInner) << "the greatest left by rule " << nOther;
    }
}

TEST_F(PickReference, TakesTheFirstOfEquals) {
    CImgNode* pFirst = Picture(10, 10, 20, 20);
    CImgNode* pSecond = Picture(10, 10, 20, 20);

    for (int nRule = 0; nRule < 9; ++nRule) {
        EXPECT_EQ(Pick({pFirst, pSecond}, nRule), pFirst);
        EXPECT_EQ(Pick({pSecond, pFirst}, nRule), pSecond);
    }
    EXPECT_EQ(Pick({}, 0), nullptr);
}

TEST_F(PickReference, CountsTheFrameAndComparesFarApartPlaces) {
    CImgNode* pFramed = Picture(30, 10, 20, 20);
    CImgNode* pPlain = Picture(20, 10, 20, 20);
    Frame(*pFramed, CRect(10, 5, 60, 40));
    EXPECT_EQ(Pick({pPlain, pFramed}, 0), pFramed);

    CImgNode* pWest = Picture(0, 0, 10, 10);
    CImgNode* pEast = Picture(0, 0, 10, 10);
    pWest->m_fnResize(CRect(-2000000000, 0, -1999999990, 10));
    pEast->m_fnResize(CRect(2000000000, 0, 2000000010, 10));
    EXPECT_EQ(Pick({pEast, pWest}, 0), pWest);
    EXPECT_EQ(Pick({pWest, pEast}, 4), pEast);
}

class ArrangeEvents : public ::testing::Test, protected CToolDesk {};

TEST_F(ArrangeEvents, StackingOrderGoesBackAndForth) {
    CImgNode* pA = Picture(10, 10, 20, 20);
    CImgNode* pB = Picture(40, 10, 20, 20);
    CImgNode* pC = Picture(70, 10, 20, 20);
    Selection().AddTail(pA);
    CuArrangeUndoEvent event;
    event.m_fnSaveState(&Tool());
    Tool().m_fnBringToFront();
    const std::vector<CImgNode*> before = {pC, pB, pA};
    const std::vector<CImgNode*> after = {pA, pC, pB};
    ASSERT_EQ(Order(), after);

    for (int n = 0; n < 10; ++n) {
        EXPECT_EQ(event.Undo(), TRUE);
        EXPECT_EQ(Order(), before);
        EXPECT_EQ(event.Redo(), TRUE);
        EXPECT_EQ(Order(), after);
    }
    EXPECT_EQ(event.Accumulate(nullptr), FALSE);
}

TEST_F(ArrangeEvents, PlacesAndSizesGoBackAndForth) {
    CImgNode* pA = Picture(10, 10, 20, 20);
    CImgNode* pB = Picture(40, 50, 60, 30);
    Selection().AddTail(pA);
    Selection().AddTail(pB);
    CuAlignUndoEvent event;
    event.m_fnSaveState(&Tool());
    Tool().m_fnSameSize();
    Tool().m_fnAlignLeft();

    for (int n = 0; n < 10; ++n) {
        EXPECT_EQ(event.Undo(), TRUE);
        EXPECT_EQ(BoundsOf(pA), CRect(10, 10, 30, 30));
        EXPECT_EQ(BoundsOf(pB), CRect(40, 50, 100, 80));
        EXPECT_EQ(event.Redo(), TRUE);
        EXPECT_EQ(BoundsOf(pA), CRect(10, 10, 70, 40));
        EXPECT_EQ(BoundsOf(pB), CRect(10, 50, 70, 80));
    }
}

TEST_F(ArrangeEvents, WithoutAnOwnerRestoreNothing) {
    CuArrangeUndoEvent arrange;
    CuAlignUndoEvent align;

    EXPECT_EQ(arrange.Undo(), FALSE);
    EXPECT_EQ(align.Undo(), FALSE);
}

} // namespace
