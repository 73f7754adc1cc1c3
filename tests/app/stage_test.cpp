#include "stage.h"

#include <gtest/gtest.h>

#include "buffer/buffer_host.h"
#include "image/node_host.h"
#include "platform/counts.h"
#include "platform/faults.h"
#include "platform/input.h"
#include "undo/undo_host.h"

namespace {

using Names = std::vector<std::string>;

TEST(StageModule, GivesElevenToolsAndItsResources) {
    CStage stage;

    const ModuleState state = stage.LoadModule();

    EXPECT_TRUE(state.loaded);
    EXPECT_TRUE(state.resource);
    EXPECT_EQ(state.tools, 11);
    EXPECT_EQ(stage.CurrentTool(), nullptr);
}

TEST(StageModule, RefusedToolsAreReceivedAllTheSame) {
    CStage stage;
    platform::ArmFault("addtool", false, 0);

    EXPECT_EQ(stage.LoadModule().tools, 11);
}

TEST(StageModule, StopsAtTheToolThatCannotBeMade) {
    CStage stage;
    platform::ArmFault("tool", false, 3);

    const ModuleState state = stage.LoadModule();

    EXPECT_TRUE(state.loaded);
    EXPECT_EQ(state.tools, 3);
}

TEST(StageModule, ThatCannotAttachIsNotLoaded) {
    CStage stage;
    platform::ArmFault("attach", false, 0);

    const ModuleState state = stage.LoadModule();

    EXPECT_FALSE(state.loaded);
    EXPECT_EQ(state.tools, 0);
    EXPECT_EQ(stage.DetachModule(), 0);
}

TEST(StageModule, DetachesOnce) {
    CStage stage;
    stage.LoadModule();
    stage.UseTool("CSelectTool");

    EXPECT_EQ(stage.DetachModule(), 1);
    EXPECT_EQ(stage.CurrentTool(), nullptr);
    EXPECT_EQ(stage.Tool("CSelectTool"), nullptr);
    EXPECT_EQ(stage.DetachModule(), 0);
}

TEST(StageNames, CompanionsAreCalledAfterTheirObject) {
    CStage stage;
    stage.AddPlaceholder("P", 0, 0, 20, 20);

    EXPECT_EQ(stage.PageNames(), (Names{"P.frame", "P"}));
    EXPECT_EQ(stage.Node("P.frame")->m_pOwner, stage.Node("P"));
    EXPECT_EQ(stage.Node("P.shadow"), nullptr);
}

TEST(StageNames, CopiesCountOnFromTheFirstOfTheFamily) {
    CStage stage;
    CImgNode* pFirst = stage.AddPicture("A", RGB(1, 2, 3), 0, 0, 20, 20);
    CImgNodeList* pList = stage.Desk().Document()->GetObjList();

    CImgNode* pSecond = pFirst->Duplicate();
    pList->AddHead(pSecond);
    CImgNode* pThird = pSecond->Duplicate();
    pList->AddHead(pThird);

    EXPECT_EQ(stage.PageNames(), (Names{"A#3", "A#2", "A"}));
    EXPECT_EQ(stage.Node("A#3"), pThird);
}

TEST(StageNames, CopyTakesNobodysName) {
    CStage stage;
    CImgNode* pFirst = stage.AddPicture("A", RGB(1, 2, 3), 0, 0, 20, 20);
    stage.AddPicture("A#2", RGB(1, 2, 3), 0, 0, 20, 20);

    stage.Desk().Document()->GetObjList()->AddHead(pFirst->Duplicate());

    EXPECT_EQ(stage.PageNames(), (Names{"A#3", "A#2", "A"}));
}

TEST(StageNames, OfNodesThatAreGoneAreRemembered) {
    CStage stage;
    CImgNode* pNode = stage.AddPicture("A", RGB(1, 2, 3), 0, 0, 20, 20);
    const std::uint32_t nId = pNode->m_nId;
    delete pNode;

    EXPECT_EQ(stage.Names().OfId(nId), "A");
    EXPECT_EQ(stage.Node("A"), nullptr);
}

TEST(StagePage, NewPageClearsNodesNamesAndUndo) {
    CStage stage;
    stage.LoadModule();
    stage.AddPicture("A", RGB(255, 0, 0), 10, 10, 40, 40);
    stage.UseTool("CSelectTool");
    stage.Exclude(stage.Node("A"));
    stage.Exclude(nullptr);
    stage.Select({"A"});
    stage.Drag({30, 30}, {60, 40});
    ASSERT_EQ(stage.UndoClasses().size(), 1U);

    stage.NewPage(100, 50, 1.5);

    EXPECT_TRUE(stage.PageNames().empty());
    EXPECT_TRUE(stage.UndoClasses().empty());
    EXPECT_EQ(stage.Node("A"), nullptr);
    EXPECT_EQ(stage.CurrentTool(), stage.Tool("CSelectTool"));
    CRect rcClient;
    stage.Desk().View()->GetClientRect(&rcClient);
    EXPECT_EQ(rcClient, CRect(0, 0, 150, 75));
}

TEST(StagePage, StandsOnADarkGreyImageOfItsOwnSize) {
    CStage stage;
    stage.NewPage(30, 20, 2.0);
    const buffer_host::View base = buffer_host::Look(stage.Desk().Document()->GetBaseImage());

    EXPECT_EQ(CSize(base.width, base.height), CSize(30, 20));
    ASSERT_NE(base.pixels, nullptr);
    EXPECT_EQ(base.pixels[0], 0x50);
    EXPECT_EQ(base.pixels[30 * 20 * 3 - 1], 0x50);
}

TEST(StagePage, OffsetIsAddedToAPicturesPosition) {
    CStage stage;
    PictureOptions options;
    options.hasOffset = true;
    options.offset = CPoint(5, -3);
    stage.AddPicture("A", RGB(255, 0, 0), 10, 20, 30, 40, options);

    EXPECT_EQ(stage.Rect("A"), CRect(15, 17, 45, 57));
}

TEST(StagePage, NodeOnThePageIsNotFreed) {
    CStage stage;
    CImgNode* pNode = stage.AddPicture("A", RGB(255, 0, 0), 0, 0, 10, 10);
    EXPECT_FALSE(stage.FreeNode(pNode));

    CImgNodeList* pList = stage.Desk().Document()->GetObjList();
    pList->RemoveAt(pList->Find(pNode));

    EXPECT_TRUE(stage.FreeNode(pNode));
}

TEST(StagePage, PixelsAreThoseOfTheBaseAndThePictures) {
    CStage stage;
    stage.SetBaseColor(RGB(0x10, 0x20, 0x30));
    stage.AddPicture("A", RGB(0xFF, 0x80, 0x00), 10, 10, 20, 20);

    EXPECT_EQ(stage.Pixel(9, 10), RGB(0x10, 0x20, 0x30));
    EXPECT_EQ(stage.Pixel(10, 10), RGB(0xFF, 0x80, 0x00));
    EXPECT_EQ(stage.Pixel(29, 29), RGB(0xFF, 0x80, 0x00));
    EXPECT_EQ(stage.Pixel(30, 29), RGB(0x10, 0x20, 0x30));
    EXPECT_EQ(stage.Pixel(720, 0), CLR_INVALID);
}

TEST(StageInput, CtrlIsHeldForTheCommandAlone) {
    CStage stage;
    stage.Hold(VK_CONTROL, KeyStates::Sync);

    stage.Click({5, 5}, Ctrl::Down);

    EXPECT_GE(::GetAsyncKeyState(VK_CONTROL), 0);
    EXPECT_LT(::GetKeyState(VK_CONTROL), 0);
}

TEST(StageInput, QueuedKeyChangesTheSynchronousStateWhenDispatched) {
    CStage stage;
    stage.QueueKeyDown(VK_LEFT);
    EXPECT_LT(::GetAsyncKeyState(VK_LEFT), 0);
    EXPECT_GE(::GetKeyState(VK_LEFT), 0);

    stage.Pump();

    EXPECT_LT(::GetKeyState(VK_LEFT), 0);
    EXPECT_EQ(platform::QueuedMessages(), 0U);
}

TEST(StageInput, PumpDispatchesAsManyAsAsked) {
    CStage stage;
    stage.QueueMove({1, 1});
    stage.QueueMove({2, 2});
    stage.QueueMove({3, 3});

    stage.Pump(2);

    EXPECT_EQ(platform::QueuedMessages(), 1U);
}

TEST(StageInput, AcceleratorTakesTheKeyAndStandsInTheTrace) {
    CStage stage;
    stage.AddAccelerator('S', Ctrl::Down);
    stage.Trace();

    stage.Key('S');
    EXPECT_TRUE(stage.Trace().empty());
    stage.Key('S', 1, Ctrl::Down);

    const std::vector<trace::Row> rows = stage.Trace();
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].on, "frame");
    EXPECT_EQ(rows[0].op, "Accelerator");
}

TEST(StageInput, PressTakesTheFocus) {
    CStage stage;
    stage.FocusNone();

    stage.Move({5, 5});
    EXPECT_EQ(::GetFocus(), nullptr);
    stage.Press({5, 5});

    EXPECT_EQ(::GetFocus(), stage.Desk().View()->m_hWnd);
}

TEST(StageInput, WaitFiresTimersInTheirOrder) {
    static std::vector<UINT_PTR> fired;
    fired.clear();
    const TIMERPROC pfnFired = [](HWND, UINT, UINT_PTR nId, DWORD) { fired.push_back(nId); };
    CStage stage;
    HWND hView = stage.Desk().View()->m_hWnd;
    ::SetTimer(hView, 1, 40, pfnFired);
    ::SetTimer(hView, 2, 30, pfnFired);

    stage.Wait(29);
    EXPECT_TRUE(fired.empty());
    stage.Wait(51);

    EXPECT_EQ(fired, (std::vector<UINT_PTR>{2, 1, 2, 1})) << "due at 30, 40, 60 and 80";
}

TEST(StageSelect, RecordsAndTellsNothing) {
    CStage stage;
    stage.LoadModule();
    stage.AddPicture("A", RGB(255, 0, 0), 10, 10, 40, 40);
    stage.AddPicture("B", RGB(0, 255, 0), 60, 10, 40, 40);
    stage.UseTool("CSelectTool");
    stage.Calls();

    EXPECT_TRUE(stage.Select({"B", "A"}));

    EXPECT_EQ(stage.Selection(), (Names{"B", "A"}));
    EXPECT_TRUE(stage.UndoClasses().empty());
    EXPECT_TRUE(stage.Calls().empty());
}

TEST(StageSelect, NeedsATool) {
    CStage stage;
    stage.LoadModule();
    stage.AddPicture("A", RGB(255, 0, 0), 10, 10, 40, 40);

    EXPECT_FALSE(stage.Select({"A"}));
}

TEST(StageDrag, MovesWhatItGrabsAndIsUndone) {
    CStage stage;
    stage.LoadModule();
    stage.AddPicture("A", RGB(255, 0, 0), 10, 10, 40, 40);
    stage.UseTool("CSelectTool");
    stage.Select({"A"});

    stage.Drag({30, 30}, {70, 45});
    EXPECT_EQ(stage.Rect("A"), CRect(50, 25, 90, 65));
    EXPECT_EQ(stage.UndoClasses(), Names{"CMoveChangedUndoEvent"});

    stage.Undo();
    EXPECT_EQ(stage.Rect("A"), CRect(10, 10, 50, 50));
    EXPECT_EQ(stage.RedoClasses(), Names{"CMoveChangedUndoEvent"});
}

TEST(StageEnd, LeavesNothingAlive) {
    const platform::LiveCounts before = platform::CountLive();
    const std::size_t nNodes = CNodeBookkeeping::LiveNodes();
    const std::size_t nBuffers = buffer_host::BufferCount();
    {
        CStage stage;
        stage.LoadModule();
        stage.SetBaseColor(RGB(9, 9, 9));
        stage.AddPicture("A", RGB(255, 0, 0), 10, 10, 40, 40);
        stage.AddPlaceholder("P", 60, 10, 40, 40);
        stage.UseTool("CSelectTool");
        stage.Click({30, 30});
        stage.Drag({30, 30}, {70, 45}, Ctrl::Down);
        stage.Undo();
        stage.Press({30, 30});
        stage.Move({90, 90});
    }
    const platform::LiveCounts after = platform::CountLive();

    EXPECT_EQ(after.gdiObjects, before.gdiObjects);
    EXPECT_EQ(after.deviceContexts, before.deviceContexts);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_EQ(CNodeBookkeeping::LiveNodes(), nNodes);
    EXPECT_EQ(buffer_host::BufferCount(), nBuffers);
    EXPECT_EQ(undo_host::EventCount(), 0U);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(StagePage, NewPageInTheMiddleOfADragEndsIt) {
    CStage stage;
    stage.LoadModule();
    stage.AddPicture("A", RGB(255, 0, 0), 10, 10, 40, 40);
    stage.UseTool("CSelectTool");
    stage.Select({"A"});
    stage.Press({30, 30});
    stage.Move({60, 60});
    ASSERT_NE(::GetCapture(), nullptr);

    stage.NewPage(200, 100);

    EXPECT_EQ(::GetCapture(), nullptr);
    stage.Move({70, 70});
    stage.Release({70, 70});
    EXPECT_TRUE(stage.UndoClasses().empty());
}

TEST(StagePage, MarksReturnAfterTheViewWasComposedAfresh) {
    CStage stage;
    stage.LoadModule();
    stage.AddPicture("A", RGB(255, 0, 0), 10, 10, 40, 40);
    stage.UseTool("CSelectTool");
    stage.Select({"A"});
    const COLORREF crHandle = RGB(255, 255, 0);
    ASSERT_EQ(stage.Pixel(8, 8), crHandle);

    stage.SetScroll({5, 0});

    EXPECT_EQ(stage.Pixel(3, 8), crHandle);
    EXPECT_EQ(stage.Pixel(25, 30), RGB(255, 0, 0));

    for (const auto& Compose :
         {+[](CStage& s) { s.SetViewSize(300, 200); }, +[](CStage& s) { s.SetBaseColor(RGB(1, 2, 3)); }}) {
        stage.Trace();
        Compose(stage);
        EXPECT_EQ(stage.Pixel(3, 8), crHandle);
        const std::vector<trace::Row> rows = stage.Trace();
        ASSERT_EQ(rows.size(), 2U) << "showing the marks stands in the record";
        EXPECT_EQ(rows[0].op, "GetDisplayCache");
    }
}

} // namespace
