#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <string>

#include "refhost_help.h"

using namespace refhost_help;

namespace {

using Nodes = std::vector<CImgNode*>;

/// What the index must answer, by looking at every node front to back.
Nodes BruteForce(CVorDoc& doc, const CRect& area) {
    Nodes found;
    for (CImgNode* pNode : NodesOf(*doc.GetObjList())) {
        CRect rect;
        pNode->GetBoundRect(&rect);
        CRect common;
        if (common.IntersectRect(&rect, &area)) {
            found.push_back(pNode);
        }
    }
    return found;
}

Nodes Indexed(CVorDoc& doc, const CRect& area) {
    Nodes found;
    CNodeBookkeeping::NodesInRect(doc, area, found);
    return found;
}

class RandomPage {
  public:
    explicit RandomPage(unsigned nSeed) : m_random(nSeed) {}
    int Upto(int nLimit) { return static_cast<int>(m_random() % static_cast<unsigned>(nLimit)); }
    /// Sides from 0 to 3000, small ones more often, anywhere around the origin.
    CRect Rect() {
        const int x = Upto(4000) - 2000;
        const int y = Upto(4000) - 2000;
        const int nLimit = 1 + (Upto(3) == 0 ? 3000 : 60);
        return CRect(x, y, x + Upto(nLimit), y + Upto(nLimit));
    }

  private:
    std::mt19937 m_random;
};

} // namespace

TEST(SpatialIndex, AnswersAsALookAtEveryNodeThroughMovesStackingAndRemovals) {
    const unsigned nSeed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(nSeed));
    RandomPage page(nSeed);
    CVorDoc doc(100, 100);
    for (int i = 0; i < 300; ++i) {
        AddBox(doc, page.Rect());
    }

    for (int i = 0; i < 2000; ++i) {
        const Nodes nodes = NodesOf(*doc.GetObjList());
        CImgNode* pNode = nodes[static_cast<std::size_t>(page.Upto(static_cast<int>(nodes.size())))];
        switch (page.Upto(5)) {
        case 0: pNode->m_fnResize(page.Rect()); break;
        case 1: delete pNode; break;
        case 2: AddBox(doc, page.Rect()); break;
        case 3: pNode->Move(page.Upto(300) - 150, page.Upto(300) - 150); break;
        default:
            doc.GetObjList()->RemoveAt(doc.GetObjList()->Find(pNode));
            doc.GetObjList()->AddTail(pNode);
            break;
        }
        const CRect area = page.Rect();
        ASSERT_EQ(BruteForce(doc, area), Indexed(doc, area)) << "step " << i;
    }
}

TEST(SpatialIndex, APointFindsWhatHoldsItWithRightAndBottomOutside) {
    CVorDoc doc(100, 100);
    CImgNode* pNode = AddBox(doc, CRect(10, 10, 20, 20));
    Nodes found;

    CNodeBookkeeping::NodesAtPoint(doc, CPoint(19, 10), found);
    EXPECT_EQ(Nodes{pNode}, found);
    CNodeBookkeeping::NodesAtPoint(doc, CPoint(20, 10), found);
    EXPECT_TRUE(found.empty());
}

TEST(SpatialIndex, WorksAtTheLimitsOf32Bits) {
    CVorDoc doc(100, 100);
    CImgNode* pEverywhere = AddBox(doc, CRect(0, 0, 1, 1));
    pEverywhere->m_tx.nOffsetFlag = 1;
    pEverywhere->m_tx.nOffsetX = pEverywhere->m_tx.nOffsetY = -INT_MAX - 1;
    CTxParam tx = pEverywhere->GetLastTrans();
    tx.nWidth = tx.nHeight = INT_MAX;
    pEverywhere->SetLastTrans(tx);
    CImgNode* pCorner = AddBox(doc, CRect(INT_MAX - 3, INT_MAX - 3, INT_MAX, INT_MAX));
    Nodes found;

    CNodeBookkeeping::NodesAtPoint(doc, CPoint(INT_MIN, INT_MIN), found);
    EXPECT_EQ(Nodes{pEverywhere}, found);
    CNodeBookkeeping::NodesAtPoint(doc, CPoint(INT_MAX - 1, INT_MAX - 1), found);
    EXPECT_EQ(Nodes{pCorner}, found);
    EXPECT_EQ((Nodes{pCorner, pEverywhere}), Indexed(doc, CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX)));
}

TEST(SpatialIndex, ANodeOffThePageOrWithoutExtentIsNotFound) {
    CVorDoc doc(100, 100);
    CImgNode* pNode = AddBox(doc, CRect(5, 5, 9, 9));
    doc.GetObjList()->RemoveAt(doc.GetObjList()->Find(pNode));
    EXPECT_TRUE(Indexed(doc, CRect(0, 0, 50, 50)).empty());
    pNode->m_fnResize(CRect(5, 5, 5, 9));
    doc.GetObjList()->AddHead(pNode);
    EXPECT_TRUE(Indexed(doc, CRect(0, 0, 50, 50)).empty());

    pNode->m_fnResize(CRect(5, 5, 6, 9));

    EXPECT_EQ(Nodes{pNode}, Indexed(doc, CRect(0, 0, 50, 50)));
}
