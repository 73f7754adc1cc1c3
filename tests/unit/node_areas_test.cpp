// The rectangles that a tool answers for one node, in client pixels.
#include <gtest/gtest.h>

#include "tool_desk.h"

namespace {

// A select tool's marks reach four pixels beyond the node; a shadow lies further out.
TEST(NodeAreas, AreTheNodesOwnAndThatOfItsMarksWithItsShadow) {
    CToolDesk desk;
    CImgNode* pNode = desk.Picture(50, 60, 40, 30);
    ASSERT_EQ(desk.Shadow(pNode, 20, 0, 0), 1);
    CRect rc(1, 2, 3, 4);

    EXPECT_EQ(desk.Tool().GetNodeRectOf(&rc, pNode), &rc);
    EXPECT_EQ(rc, CRect(50, 60, 90, 90));
    EXPECT_EQ(desk.Tool().GetNodeMarkAreaOf(&rc, pNode), &rc);
    EXPECT_EQ(rc, CRect(46, 56, 110, 94));
    EXPECT_EQ(desk.Tool().GetNodeMarkArea(pNode, &rc), 1);
    EXPECT_EQ(rc, CRect(46, 56, 110, 94));
}

TEST(NodeAreas, OfNoNodeAreEmptyAndOfNoListToo) {
    CToolDesk desk;
    CNodeRefList none;
    CRect rcNode(1, 2, 3, 4), rcMark(1, 2, 3, 4), rcList(1, 2, 3, 4);

    EXPECT_EQ(desk.Tool().GetNodeRectOf(&rcNode, nullptr), &rcNode);
    EXPECT_EQ(desk.Tool().GetNodeMarkAreaOf(&rcMark, nullptr), &rcMark);
    EXPECT_EQ(desk.Tool().GetNodesRect(none, &rcList), 1);

    for (const CRect& rc : {rcNode, rcMark, rcList}) {
        EXPECT_EQ(rc, CRect(0, 0, 0, 0));
    }
}

TEST(NodeAreas, OfAListAreTheUnionOfItsNodes) {
    CToolDesk desk;
    CNodeRefList nodes;
    nodes.AddTail(desk.Picture(50, 60, 40, 30));
    nodes.AddTail(desk.Picture(10, 200, 20, 20));
    desk.Picture(300, 10, 20, 20);
    CRect rc;

    EXPECT_EQ(desk.Tool().GetNodesRect(nodes, &rc), 1);
    EXPECT_EQ(rc, CRect(10, 60, 90, 220));
}

} // namespace
