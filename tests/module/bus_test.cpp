// The two change notifications, and what a tool does when something on the bus is missing.
#include "host/document_service.h"
#include "host/notifications.h"
#include "host/panels.h"
#include "module_help.h"

namespace {

bool IsModified(CModuleStage& stage) { return stage.Desk().Document()->IsModified() != FALSE; }

TEST(ObjectsChanged, TellsTheTrackerThenEveryReceiverTwice) {
    CModuleStage stage;
    stage.BusAdd(kind::ChangeReceiver, false);

    EXPECT_EQ(stage.Ops().NotifyObjectsChanged(), 1);

    EXPECT_EQ(stage.Told(),
              (Lines{"tracker.3 1", "changed.1 27", "changed.1 27", "changed2.1 27 0", "changed2.1 27 0"}));
    EXPECT_TRUE(IsModified(stage));
}

TEST(ObjectsRedrawn, TellsEveryReceiverOnceAndModifiesNothing) {
    CModuleStage stage;
    stage.BusAdd(kind::RedrawReceiver, false);

    EXPECT_EQ(stage.Ops().NotifyObjectsRedrawn(), 1);

    EXPECT_EQ(stage.Told(), (Lines{"redrawn.1 27", "redrawn.1 27"}));
    EXPECT_FALSE(IsModified(stage));
}

TEST(ObjectsChanged, ReceiverThatSearchesTheManagerStopsNobody) {
    CModuleStage stage;
    stage.BusAdd(kind::ChangeReceiver, true);
    stage.BusAdd(kind::ChangeReceiver, false);
    stage.BusAdd(kind::RedrawReceiver, true);
    stage.BusAdd(kind::RedrawReceiver, false);

    stage.Ops().NotifyObjectsChanged();
    EXPECT_EQ(stage.Told(), (Lines{"tracker.3 1", "changed.1 27", "changed.1 27", "changed.1 27",
                                   "changed2.1 27 0", "changed2.1 27 0", "changed2.1 27 0"}));

    stage.Ops().NotifyObjectsRedrawn();
    EXPECT_EQ(stage.Told(), (Lines{"redrawn.1 27", "redrawn.1 27", "redrawn.1 27"}));
}

TEST(ObjectsChanged, WithoutTheDocumentServiceNothingHappens) {
    CModuleStage stage;
    stage.HideKind(kind::Document);

    EXPECT_EQ(stage.Ops().NotifyObjectsChanged(), 0);

    EXPECT_EQ(stage.Told(), Lines{});
    EXPECT_FALSE(IsModified(stage));
}

TEST(ObjectsChanged, WithoutThePageObjectsTheDocumentIsModifiedAlready) {
    CModuleStage stage;
    stage.HideKind(kind::PageObjects);

    stage.Ops().NotifyObjectsChanged();
    stage.Ops().NotifyObjectsRedrawn();

    EXPECT_EQ(stage.Told(), Lines{});
    EXPECT_TRUE(IsModified(stage));
}

TEST(ObjectsChanged, StopsBeforeTheReceiversWithoutATracker) {
    CModuleStage stage;
    stage.HideKind(kind::ChangeTracker);

    stage.Ops().NotifyObjectsChanged();

    EXPECT_EQ(stage.Told(), Lines{});
    EXPECT_TRUE(IsModified(stage));
}

TEST(ObjectsChanged, StopsBeforeTheReceiversWhenTheTrackerLacksItsInterface) {
    CModuleStage stage;
    stage.HideInterface<IChangeTracker>(kind::ChangeTracker);

    stage.Ops().NotifyObjectsChanged();

    EXPECT_EQ(stage.Told(), Lines{});
    EXPECT_TRUE(IsModified(stage));
}

TEST(ObjectsChanged, ReceiversLackingOneInterfaceAreToldThroughTheOther) {
    CModuleStage stage;
    stage.HideInterface<IChangeReceiver>(kind::ChangeReceiver);
    stage.Ops().NotifyObjectsChanged();
    EXPECT_EQ(stage.Told(), (Lines{"tracker.3 1", "changed2.1 27 0"}));

    stage.HideInterface<IChangeReceiver2>(kind::ChangeReceiver);
    stage.Ops().NotifyObjectsChanged();
    EXPECT_EQ(stage.Told(), Lines{"tracker.3 1"});
}

TEST(ObjectsChanged, WithoutReceiversTheTrackerAloneIsTold) {
    CModuleStage stage;
    stage.HideKind(kind::ChangeReceiver);
    stage.HideKind(kind::RedrawReceiver);

    stage.Ops().NotifyObjectsChanged();
    stage.Ops().NotifyObjectsRedrawn();

    EXPECT_EQ(stage.Told(), Lines{"tracker.3 1"});
}

TEST(BusSearch, IsMadeAgainAtEachUse) {
    CModuleStage stage;
    stage.Square("A", 10, 10);
    stage.HideKind(kind::Document);
    stage.Click({30, 30});
    EXPECT_EQ(stage.Selection(), Lines{});

    stage.ShowKind(kind::Document);
    stage.Click({30, 30});

    EXPECT_EQ(stage.Selection(), Lines{"A"});
}

TEST(WithoutDocument, EveryOperationAnswersZeroAndTellsNobody) {
    CModuleStage stage;
    CImgNode* pNode = stage.Square("A", 10, 10);
    CNodeRefList nodes;
    nodes.AddTail(pNode);
    stage.HideKind(kind::Document);
    IToolObjectOps& ops = stage.Ops();

    EXPECT_EQ(ops.ClearSelection(), 0);
    EXPECT_EQ(ops.DeselectAll(1), 0);
    EXPECT_EQ(ops.AddToSelection(nodes), 0);
    EXPECT_EQ(ops.SetSelection(nodes, 0), 0);
    EXPECT_EQ(ops.SetSelection(nodes, 1), 0);
    EXPECT_EQ(ops.ShowSelectionMarks(1), 0);
    EXPECT_EQ(ops.FlushViewRect(CRect(0, 0, 9, 9)), 0);
    EXPECT_EQ(ops.RedrawRect(CRect(0, 0, 9, 9)), 0);
    EXPECT_EQ(ops.ClassifySelection(), 0);
    EXPECT_EQ(stage.SelectionRect(), CRect(-1, -1, -1, -1));
    EXPECT_EQ(stage.OutlineRect(), CRect(-1, -1, -1, -1));
    EXPECT_EQ(stage.PressAnswer({30, 30}), 0);
    EXPECT_EQ(stage.Input().OnLButtonUp(0, {30, 30}), 0);

    EXPECT_EQ(stage.Told(), Lines{});
    EXPECT_FALSE(stage.HasCapture());
}

TEST(WithoutView, ClickAndMarksDoNothing) {
    CModuleStage stage;
    CImgNode* pNode = stage.Square("A", 10, 10);
    CNodeRefList nodes;
    nodes.AddTail(pNode);
    CVorDoc* pDoc = stage.Desk().Document();
    pDoc->RemoveView(stage.Desk().View());

    EXPECT_EQ(stage.PressAnswer({30, 30}), 0);
    EXPECT_EQ(stage.Ops().ShowSelectionMarks(1), 0);
    EXPECT_EQ(stage.Ops().RedrawRect(CRect(0, 0, 9, 9)), 0);
    EXPECT_EQ(stage.Ops().AddToSelection(nodes), 1) << "the list needs no view";

    EXPECT_EQ(stage.Told(), Lines{"selection.AddTail A"});
    pDoc->AddView(stage.Desk().View());
}

} // namespace
