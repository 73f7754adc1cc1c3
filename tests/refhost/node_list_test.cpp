#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "refhost_help.h"
#include "trace/trace.h"

using namespace refhost_help;

namespace {

class NodeList : public ::testing::Test {
  protected:
    CImgNode* Box() { return AddBox(doc, CRect(0, 0, 10, 10)); }
    CImgNodeList& Objects() { return *doc.GetObjList(); }
    CImgNodeList& Selection() { return *doc.GetActList(); }
    /// Whether keys ascend along the object list.
    bool KeysAscend() {
        const std::vector<CImgNode*> nodes = NodesOf(Objects());
        return std::is_sorted(nodes.begin(), nodes.end(), [](const CImgNode* a, const CImgNode* b) {
            return CNodeBookkeeping::StackKey(*a) <= CNodeBookkeeping::StackKey(*b);
        });
    }

    CVorDoc doc{100, 100};
};

std::string OpsOf(const std::vector<trace::Row>& rows) {
    std::string ops;
    for (const trace::Row& row : rows) {
        ops += row.on + ":" + row.op + " ";
    }
    return ops;
}

} // namespace

TEST_F(NodeList, ANodeSelectedTwiceIsFoundAtItsFirstPlace) {
    CImgNode* pA = Box();
    CImgNode* pB = Box();
    const POSITION first = Selection().AddTail(pA);
    Selection().AddTail(pB);
    const POSITION last = Selection().AddTail(pA);
    EXPECT_EQ(first, Selection().Find(pA));

    Selection().RemoveAt(first);
    EXPECT_EQ(last, Selection().Find(pA));
    const POSITION head = Selection().AddHead(pA);
    EXPECT_EQ(head, Selection().Find(pA));
    Selection().RemoveAt(last);
    EXPECT_EQ(head, Selection().Find(pA));
    Selection().RemoveAll();
    EXPECT_EQ(nullptr, Selection().Find(pA));
    EXPECT_EQ(pA, Objects().GetAt(Objects().Find(pA)));
}

TEST_F(NodeList, ADestroyedNodeLeavesBothListsAtEveryPlace) {
    CImgNode* pA = Box();
    CImgNode* pB = Box();
    for (CImgNode* pNode : {pA, pB, pA}) {
        Selection().AddTail(pNode);
    }

    delete pA;

    EXPECT_EQ((std::vector<CImgNode*>{pB}), NodesOf(Selection()));
    EXPECT_EQ((std::vector<CImgNode*>{pB}), NodesOf(Objects()));
}

TEST_F(NodeList, EndsOfAnEmptyListAnswerNullAndAListOfOnesOwnFreesNothing) {
    CImgNode* pA = Box();
    CImgNodeList list(&doc);
    list.AddTail(pA);
    list.AddTail(pA);

    EXPECT_EQ(list.GetHeadPosition(), list.Find(pA));
    EXPECT_EQ(pA, list.RemoveHead());
    EXPECT_EQ(pA, list.RemoveTail());
    EXPECT_EQ(nullptr, list.RemoveHead());
    EXPECT_EQ(nullptr, list.RemoveTail());
    EXPECT_NE(nullptr, Objects().Find(pA));
}

TEST_F(NodeList, NullAndForeignNodesAreRefused) {
    CVorDoc other(10, 10);
    CImgNode* pForeign = AddBox(other, CRect(0, 0, 1, 1));

    EXPECT_EQ(nullptr, Objects().AddHead(nullptr));
    EXPECT_EQ(nullptr, Objects().AddTail(pForeign));
    EXPECT_EQ(nullptr, Objects().Find(pForeign));
    EXPECT_NE(nullptr, other.GetObjList()->Find(pForeign));
}

TEST_F(NodeList, ANodeMadeWithoutADocumentIsTakenOver) {
    const std::size_t nBefore = CNodeBookkeeping::LiveNodes();
    {
        CVorDoc taker(10, 10);
        taker.GetObjList()->AddHead(new CImgNode(nullptr));
        EXPECT_EQ(nBefore + 1, CNodeBookkeeping::LiveNodes());
    }
    EXPECT_EQ(nBefore, CNodeBookkeeping::LiveNodes());
}

TEST_F(NodeList, KeysAscendAfterThousandsOfInsertionsAtOnePlace) {
    Box();
    CImgNode* pFixed = Box();
    for (int i = 0; i < 5000; ++i) {
        Objects().InsertAfter(Objects().Find(pFixed), new CImgNode(&doc));
    }

    EXPECT_EQ(5002, Objects().GetCount());
    EXPECT_TRUE(KeysAscend());
}

TEST_F(NodeList, KeysAscendAfterRandomShuffling) {
    const unsigned nSeed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(nSeed));
    std::mt19937 random(nSeed);
    std::vector<CImgNode*> nodes;
    for (int i = 0; i < 40; ++i) {
        nodes.push_back(Box());
    }

    for (int i = 0; i < 3000; ++i) {
        CImgNode* pNode = nodes[random() % nodes.size()];
        CImgNode* pOther = nodes[random() % nodes.size()];
        if (random() % 4 == 0) {
            Objects().AddHead(pNode);
        } else {
            Objects().InsertBefore(Objects().Find(pOther), pNode);
        }
        // Every node is now in the list once or twice; the later place goes, or the earlier.
        const POSITION first = Objects().Find(pNode);
        const POSITION second = Objects().CPtrList::Find(pNode, first);
        if (second) {
            Objects().RemoveAt(random() % 2 == 0 ? first : second);
        }
        ASSERT_TRUE(KeysAscend()) << "step " << i;
    }
    EXPECT_EQ(40, Objects().GetCount());
}

TEST_F(NodeList, RaisingByAddingBeforeRemovingKeepsTheHitOrder) {
    CImgNode* pBack = Box();
    CImgNode* pMiddle = Box();
    CImgNode* pFront = Box();
    const POSITION former = Objects().Find(pBack);

    Objects().AddHead(pBack);
    Objects().RemoveAt(former);

    std::vector<CImgNode*> hits;
    CNodeBookkeeping::NodesAtPoint(doc, CPoint(5, 5), hits);
    EXPECT_EQ((std::vector<CImgNode*>{pBack, pFront, pMiddle}), hits);
}

TEST_F(NodeList, RecordsCallsAndThatANodeOnThePageGoes) {
    trace::TurnOn(true);
    CImgNode* pA = new CImgNode(&doc);
    CImgNode* pB = new CImgNode(&doc);
    const POSITION head = Objects().AddHead(pA);
    Objects().InsertAfter(head, pB);
    Selection().AddTail(pB);
    Selection().RemoveAt(Selection().Find(pB));
    delete pB;
    trace::TurnOn(false);

    const std::vector<trace::Row> rows = trace::Take();
    EXPECT_EQ("doc:objects.AddHead doc:objects.InsertAfter doc:selection.AddTail doc:selection.RemoveAt "
              "doc:objects.RemoveAt ",
              OpsOf(rows));
    ASSERT_EQ(2u, rows[1].args.size());
    EXPECT_EQ(pA->m_nId, std::get<trace::Node>(rows[1].args[1]).id);
}
