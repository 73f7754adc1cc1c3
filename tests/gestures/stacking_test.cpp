// The four stacking moves.
#include "gesture_help.h"

namespace {

/// Four pictures: D in front, then C, B, A.
class Stacking : public CGestureTest {
  protected:
    Stacking() {
        int nX = 20;
        for (const char* pszName : {"A", "B", "C", "D"}) {
            Picture(pszName, nX, 100, 40, 40);
            nX += 60;
        }
    }
    Names Forward(const Names& names) { return After(names, &CTool::m_fnBringForward); }
    Names Backward(const Names& names) { return After(names, &CTool::m_fnSendBackward); }
    Names ToFront(const Names& names) { return After(names, &CTool::m_fnBringToFront); }
    Names ToBack(const Names& names) { return After(names, &CTool::m_fnSendToBack); }

  private:
    Names After(const Names& names, void (CTool::*pfnMove)()) {
        stage.Select(names);
        stage.Trace();
        (Tool().*pfnMove)();
        return stage.PageNames();
    }
};

/// The same with a frame and a shadow round C.
class GroupStacking : public Stacking {
  protected:
    GroupStacking() {
        GiveFrame(*stage.Desk().Document(), *stage.Node("C"), CRect(130, 90, 190, 150), CRect(0, 0, 60, 60),
                  CRect(10, 10, 50, 50));
        Shadow("C", 5, 5);
    }
};

TEST_F(Stacking, ForwardPassesOneNeighbour) {
    EXPECT_EQ(Forward({"B"}), (Names{"D", "B", "C", "A"}));
    EXPECT_EQ(Forward({"B"}), (Names{"B", "D", "C", "A"}));
    EXPECT_EQ(Forward({"B"}), (Names{"B", "D", "C", "A"})) << "at the front it stays";
}

TEST_F(Stacking, BackwardPassesOneNeighbour) {
    EXPECT_EQ(Backward({"C"}), (Names{"D", "B", "C", "A"}));
    EXPECT_EQ(Backward({"C"}), (Names{"D", "B", "A", "C"}));
    EXPECT_EQ(Backward({"C"}), (Names{"D", "B", "A", "C"})) << "at the back it stays";
}

TEST_F(Stacking, NeighboursAtTheEndKeepTheirOrder) {
    EXPECT_EQ(Forward({"C", "D"}), (Names{"D", "C", "B", "A"}));
    EXPECT_EQ(Backward({"A", "B"}), (Names{"D", "C", "B", "A"}));
    EXPECT_EQ(Forward({"A", "B", "C", "D"}), (Names{"D", "C", "B", "A"}));
    EXPECT_EQ(Backward({"D", "C", "B", "A"}), (Names{"D", "C", "B", "A"}));
}

TEST_F(Stacking, OneAtTheEndStaysThereWhileTheOtherMoves) {
    EXPECT_EQ(Forward({"B", "D"}), (Names{"D", "B", "C", "A"}));
    EXPECT_EQ(Backward({"C", "A"}), (Names{"D", "B", "C", "A"}));
}

TEST_F(Stacking, TwoInTheMiddleMoveTogether) {
    EXPECT_EQ(Forward({"A", "B"}), (Names{"D", "B", "A", "C"}));
    EXPECT_EQ(Backward({"A", "B"}), (Names{"D", "C", "B", "A"}));
    EXPECT_EQ(Backward({"D", "C"}), (Names{"B", "D", "C", "A"}));
}

TEST_F(Stacking, ToFrontAndToBackKeepTheOrderWhateverTheSelections) {
    EXPECT_EQ(ToFront({"A", "C"}), (Names{"C", "A", "D", "B"}));
    EXPECT_EQ(ToBack({"A", "C"}), (Names{"D", "B", "C", "A"}));
    EXPECT_EQ(ToFront({"C", "A"}), (Names{"C", "A", "D", "B"}));
    EXPECT_EQ(ToBack({"D", "C", "B", "A"}), (Names{"C", "A", "D", "B"}));
}

TEST_F(GroupStacking, ObjectPassesAWholeGroup) {
    ASSERT_EQ(stage.PageNames(), (Names{"D", "C.frame", "C", "C.shadow", "B", "A"}));

    EXPECT_EQ(Forward({"B"}), (Names{"D", "B", "C.frame", "C", "C.shadow", "A"}));
    EXPECT_EQ(Backward({"B"}), (Names{"D", "C.frame", "C", "C.shadow", "B", "A"}));
    EXPECT_EQ(Backward({"D"}), (Names{"C.frame", "C", "C.shadow", "D", "B", "A"}));
}

TEST_F(GroupStacking, GroupMovesAsAWhole) {
    EXPECT_EQ(Forward({"C"}), (Names{"C.frame", "C", "C.shadow", "D", "B", "A"}));
    EXPECT_EQ(Forward({"C"}), (Names{"C.frame", "C", "C.shadow", "D", "B", "A"}));
    EXPECT_EQ(Backward({"C"}), (Names{"D", "C.frame", "C", "C.shadow", "B", "A"}));
    EXPECT_EQ(ToBack({"C"}), (Names{"D", "B", "A", "C.frame", "C", "C.shadow"}));
    EXPECT_EQ(Backward({"C"}), (Names{"D", "B", "A", "C.frame", "C", "C.shadow"}));
    EXPECT_EQ(ToFront({"C"}), (Names{"C.frame", "C", "C.shadow", "D", "B", "A"}));
}

TEST_F(GroupStacking, ScatteredGroupIsWrittenBackInOrder) {
    CImgNodeList& objects = *stage.Desk().Document()->GetObjList();
    CImgNode* pShadow = stage.Node("C.shadow");
    objects.RemoveAt(objects.Find(pShadow));
    objects.AddHead(pShadow);

    EXPECT_EQ(ToFront({"C"}), (Names{"C.frame", "C", "C.shadow", "D", "B", "A"}));
}

TEST_F(GroupStacking, SelectedCompanionsStayWhereTheyAre) {
    const Names order = stage.PageNames();

    EXPECT_EQ(ToFront({"C.frame"}), order);
    EXPECT_EQ(ToBack({"C.shadow"}), order);
    EXPECT_EQ(Forward({"C.shadow"}), order);
    EXPECT_EQ(Backward({"C.frame"}), order);
    EXPECT_EQ(Forward({"B", "C.shadow"}), (Names{"D", "B", "C.frame", "C", "C.shadow", "A"}));
}

TEST_F(Stacking, ForwardMovesPutTheExcludedNodeInFront) {
    stage.Exclude(stage.Node("A"));
    EXPECT_EQ(Backward({"D"}), (Names{"C", "D", "B", "A"})) << "the backward moves leave it alone";
    EXPECT_EQ(ToBack({"C"}), (Names{"D", "B", "A", "C"}));

    EXPECT_EQ(Forward({"C"}), (Names{"A", "D", "B", "C"})) << "C has passed A before that went to the head";
    EXPECT_EQ(ToFront({"B"}), (Names{"A", "B", "D", "C"}));
}

TEST_F(Stacking, ExcludedNodeOffThePageStaysOff) {
    CImgNodeList& objects = *stage.Desk().Document()->GetObjList();
    stage.Exclude(stage.Node("A"));
    objects.RemoveAt(objects.Find(stage.Node("A")));

    EXPECT_EQ(ToFront({"B"}), (Names{"B", "D", "C"}));
}

TEST_F(Stacking, MoveRefreshesOnceNotifiesAndRecordsNothing) {
    ToFront({"A"});

    EXPECT_EQ(TakeSteps(), (Steps{"view FlushCacheRect [16,96,64,144]", "view GetDisplayCache [16,96,64,144]",
                                  "view UpdateDisplayCache", "view RepaintViewRect [16,96,64,144] 1", "51",
                                  "38", "38", "45"}));
    EXPECT_EQ(stage.UndoClasses(), Names{});
}

TEST_F(Stacking, WithNothingSelectedOnlyTheFinishingStepsRun) {
    for (int n = 0; n < 4; ++n) {
        const Names names = n == 0 ? Forward({}) : n == 1 ? Backward({}) : n == 2 ? ToFront({}) : ToBack({});
        EXPECT_EQ(names, (Names{"D", "C", "B", "A"}));
        EXPECT_EQ(TakeSteps(), (Steps{"view FlushCacheRect [0,0,0,0]", "view RepaintViewRect [0,0,0,0] 1",
                                      "51", "38", "38", "45"}));
    }
}

TEST_F(GroupStacking, ScreenShowsTheNewOrder) {
    Picture("E", 130, 90, 60, 60);
    stage.Node("E")->m_fnUpdateBCAndT(-100, 0, 0);
    ToBack({"E"});

    EXPECT_EQ(stage.Pixel(160, 120), PictureColor) << "C lies over E now";
    EXPECT_EQ(Screen(), FreshScreen());
}

} // namespace
