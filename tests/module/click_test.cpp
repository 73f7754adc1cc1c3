// The left click, step by step: what it selects, whom it tells, what it records.
#include "host/document_service.h"
#include "host/panels.h"
#include "host/undo.h"
#include "module_help.h"
#include "platform/faults.h"
#include "undo/undo_host.h"

namespace {

const Lines OneObjectShown = {"area.3 1", "display-panel.3 0 0 0 0", "shadow-panel.4 0 0", "shadow-panel.3"};
const Lines NothingShown = {"area.3 1", "reset.1 0"};

Lines Joined(Lines lines, const Lines& more) {
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

/// A [10,10,50,50] and B [100,10,140,50].
class Click : public testing::Test {
  protected:
    Click() {
        m_stage.Square("A", 10, 10);
        m_stage.Square("B", 100, 10);
        m_stage.Forget();
    }
    /// Every snapshot is on the stack or gone.
    void ExpectNoSnapshotLeft() const { EXPECT_EQ(undo_host::EventCount(), m_stage.UndoClasses().size()); }

    CModuleStage m_stage;
};

TEST_F(Click, OnAnUnselectedObjectAnnouncesSelectsRecordsAndShows) {
    m_stage.Click({30, 30});

    EXPECT_EQ(m_stage.Told(),
              Joined({"object-page.1 4", "selection.AddTail A", "flush 6 6 54 54", "read 6 6 54 54",
                      "write 6 6", "repaint 6 6 54 54 erase", "record CSelChangedUndoEvent"},
                     OneObjectShown));
    EXPECT_EQ(m_stage.UndoClasses(), Lines{"CSelChangedUndoEvent"});
    EXPECT_TRUE(m_stage.ShowsTruePicture());
    ExpectNoSnapshotLeft();
}

TEST_F(Click, OnAnotherObjectDeselectsBeforeThePageIsTold) {
    m_stage.Select({"B"});

    m_stage.Click({30, 30});

    EXPECT_EQ(m_stage.Told(),
              Joined({"flush 96 6 144 14", "flush 136 6 144 54", "flush 96 46 144 54", "flush 96 6 104 54",
                      "selection.RemoveAt B", "repaint 96 6 144 54 erase", "object-page.1 4",
                      "selection.AddTail A", "flush 6 6 54 54", "read 6 6 54 54", "write 6 6",
                      "repaint 6 6 54 54 erase", "record CSelChangedUndoEvent"},
                     OneObjectShown));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(Click, OnTheOnlySelectedObjectRecordsNothing) {
    m_stage.Select({"A"});

    m_stage.Click({30, 30});

    EXPECT_EQ(m_stage.Told(), OneObjectShown);
    EXPECT_TRUE(m_stage.UndoClasses().empty());
    ExpectNoSnapshotLeft();
}

TEST_F(Click, OnOneOfSeveralSelectedSelectsItAloneAtTheRelease) {
    m_stage.Select({"A", "B"});

    m_stage.Press({30, 30});
    EXPECT_EQ(m_stage.Selection(), (Lines{"A", "B"}));
    EXPECT_EQ(m_stage.Told(), Lines{});
    m_stage.Release({30, 30});

    EXPECT_EQ(m_stage.Selection(), Lines{"A"});
    EXPECT_EQ(m_stage.Told(), Joined({"selection.RemoveHead A", "selection.RemoveHead B",
                                      "selection.AddTail A", "flush 6 6 140 54", "read 6 6 54 54",
                                      "write 6 6", "repaint 6 6 140 54 erase", "record CSelChangedUndoEvent"},
                                     OneObjectShown));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(Click, OnEmptyGroundDeselectsAndRecords) {
    m_stage.Select({"A"});

    m_stage.Click({300, 300});

    EXPECT_EQ(m_stage.Told(),
              Joined({"flush 6 6 54 14", "flush 46 6 54 54", "flush 6 46 54 54", "flush 6 6 14 54",
                      "selection.RemoveAt A", "repaint 6 6 54 54 erase", "record CSelChangedUndoEvent"},
                     NothingShown));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
    ExpectNoSnapshotLeft();
}

TEST_F(Click, OnEmptyGroundWithNothingSelectedRecordsNothing) {
    EXPECT_EQ(m_stage.PressAnswer({300, 300}), 1);

    EXPECT_EQ(m_stage.Told(), NothingShown);
    EXPECT_TRUE(m_stage.UndoClasses().empty());
    ExpectNoSnapshotLeft();
}

TEST_F(Click, WithCtrlTogglesWithoutAnnouncing) {
    m_stage.Click({30, 30}, Ctrl::Down);
    EXPECT_EQ(m_stage.Told(), Joined({"selection.AddTail A", "read 6 6 54 54", "write 6 6",
                                      "repaint 6 6 54 54 erase", "record CSelChangedUndoEvent"},
                                     OneObjectShown));

    m_stage.Click({120, 30}, Ctrl::Down);
    EXPECT_EQ(m_stage.Selection(), (Lines{"A", "B"}));
    EXPECT_TRUE(m_stage.ShowsTruePicture());

    m_stage.Click({30, 30}, Ctrl::Down);
    EXPECT_EQ(m_stage.Selection(), Lines{"B"});
    EXPECT_EQ(m_stage.UndoClasses().size(), 3U);
    EXPECT_TRUE(m_stage.ShowsTruePicture());
    ExpectNoSnapshotLeft();
}

TEST_F(Click, WithCtrlOnEmptyGroundDeselectsAllTheSame) {
    m_stage.Select({"A", "B"});

    m_stage.Click({300, 300}, Ctrl::Down);

    EXPECT_EQ(m_stage.Selection(), Lines{});
    EXPECT_EQ(m_stage.UndoClasses(), Lines{"CSelChangedUndoEvent"});
}

TEST_F(Click, WithCtrlNeverHandsOver) {
    m_stage.Desk().SetHandover(kind::ObjectPage, 4, "CObjectPageTool");

    m_stage.Click({30, 30}, Ctrl::Down);

    EXPECT_EQ(m_stage.CurrentTool(), m_stage.Tool("CSelectTool"));
    EXPECT_EQ(m_stage.Selection(), Lines{"A"});
}

TEST_F(Click, ReadsCtrlFromTheKeyStateAndNotFromTheFlags) {
    m_stage.Select({"B"});
    m_stage.Input().OnLButtonDown(MK_LBUTTON | MK_CONTROL | MK_SHIFT, {30, 30});
    EXPECT_EQ(m_stage.Selection(), Lines{"A"});

    m_stage.Input().OnLButtonUp(0, {30, 30});
    m_stage.Hold(VK_CONTROL, KeyStates::Async);
    m_stage.Input().OnLButtonDown(MK_LBUTTON, {120, 30});
    EXPECT_EQ(m_stage.Selection(), (Lines{"A", "B"}));
}

TEST_F(Click, OnATextTellsTheTextPageThree) {
    m_stage.TextBox("T", 200, 10);

    m_stage.Click({220, 30});

    EXPECT_EQ(m_stage.Selection(), Lines{"T"});
    EXPECT_EQ(m_stage.ToldOnBus(), (Lines{"text-page.1 3", "area.3 0", "reset.1 0"}));
}

TEST_F(Click, OnTheOnlySelectedTextAnnouncesWithoutDeselecting) {
    m_stage.TextBox("T", 200, 10);
    m_stage.Select({"T"});

    m_stage.Click({220, 30});

    EXPECT_EQ(m_stage.Told(), (Lines{"text-page.1 3", "area.3 0", "reset.1 0"}));
    EXPECT_TRUE(m_stage.UndoClasses().empty());
}

TEST_F(Click, OnTheOnlySelectedTextHandsOverAtTheRelease) {
    m_stage.TextBox("T", 200, 10);
    m_stage.Select({"T"});
    m_stage.Desk().SetHandover(kind::TextPage, 3, "CTextDisplayTool");

    m_stage.Press({220, 30});
    EXPECT_EQ(m_stage.CurrentTool(), m_stage.Tool("CSelectTool"));
    m_stage.Release({220, 30});

    EXPECT_EQ(m_stage.CurrentTool(), m_stage.Tool("CTextDisplayTool"));
    EXPECT_FALSE(m_stage.HasCapture()) << "the release went to the other tool, too";
    EXPECT_EQ(m_stage.Selection(), Lines{"T"});
    EXPECT_TRUE(m_stage.UndoClasses().empty());
    ExpectNoSnapshotLeft();
}

TEST_F(Click, OnASelectedTextAmongOthersDeselectsAndAnnounces) {
    m_stage.TextBox("T", 200, 10);
    m_stage.Select({"A", "T"});

    m_stage.Click({220, 30});

    EXPECT_EQ(m_stage.Selection(), Lines{"T"});
    EXPECT_EQ(m_stage.UndoClasses(), Lines{"CSelChangedUndoEvent"});
    Lines told = m_stage.Told();
    ASSERT_GT(told.size(), 12U);
    told.erase(told.begin(), told.begin() + 8); // the strips of both marks
    told.resize(5);
    EXPECT_EQ(told, (Lines{"selection.RemoveAt A", "selection.RemoveAt T", "repaint 10 10 240 50 erase",
                           "text-page.1 3", "selection.AddTail T"}));
}

TEST_F(Click, OnAFrameIsAClickOnWhatItFrames) {
    m_stage.AddPlaceholder("P", 300, 100, 60, 40);
    CImgNode* pFrame = m_stage.Node("P.frame");
    pFrame->SetImage(buf32DupBuf(pFrame->m_hImage), 0, 300, 100, 0); // without a mask the whole frame hits

    m_stage.Click({330, 120});

    EXPECT_EQ(m_stage.Selection(), Lines{"P"});
}

TEST_F(Click, OnAShadowIsAClickOnNothing) {
    m_stage.Shadow("A", 0, 100);
    m_stage.Select({"B"});

    m_stage.Click({30, 130});

    EXPECT_EQ(m_stage.Selection(), Lines{});
    EXPECT_EQ(m_stage.UndoClasses(), Lines{"CSelChangedUndoEvent"});
    EXPECT_EQ(m_stage.ToldOnBus(), NothingShown);
}

TEST_F(Click, SecondPressOfADoubleClickIsAPress) {
    EXPECT_EQ(m_stage.Input().OnLButtonDblClk(MK_LBUTTON, {30, 30}), 1);

    EXPECT_EQ(m_stage.Selection(), Lines{"A"});
    EXPECT_TRUE(m_stage.HasCapture());
}

TEST_F(Click, OnTheExcludedNodeDeselectsWithoutRecordOrPanels) {
    m_stage.Exclude(m_stage.Node("A"));
    m_stage.Select({"B"});

    EXPECT_EQ(m_stage.PressAnswer({30, 30}), 1);

    EXPECT_EQ(m_stage.Told(),
              (Lines{"flush 96 6 144 14", "flush 136 6 144 54", "flush 96 46 144 54", "flush 96 6 104 54",
                     "selection.RemoveAt B", "repaint 96 6 144 54 erase"}));
    EXPECT_TRUE(m_stage.UndoClasses().empty());
    EXPECT_FALSE(m_stage.HasCapture());
}

TEST_F(Click, OnTheExcludedNodeWhereTheSelectionLiesIsAPressOnTheSelection) {
    m_stage.AddPicture("E", RGB(0, 0, 255), 20, 20, 100, 20);
    m_stage.Exclude(m_stage.Node("E"));
    m_stage.Select({"A", "B"});

    m_stage.Click({30, 30});

    EXPECT_EQ(m_stage.Selection(), Lines{"A"}) << "the node below the excluded one";
    EXPECT_EQ(m_stage.PageNames(), (Lines{"E", "B", "A"}));
}

TEST_F(Click, LooksBelowTheExcludedNodeAndPutsItBackAtItsPlace) {
    m_stage.Exclude(m_stage.Node("A"));
    m_stage.Click({120, 30});
    EXPECT_EQ(m_stage.Selection(), Lines{"B"});
    EXPECT_EQ(m_stage.PageNames(), (Lines{"B", "A"}));
    const Lines told = m_stage.Told();
    ASSERT_GE(told.size(), 2U);
    EXPECT_EQ(told[0], "objects.RemoveAt A");
    EXPECT_EQ(told[1], "objects.InsertAfter A B");

    m_stage.Exclude(m_stage.Node("B"));
    m_stage.Click({300, 300});
    EXPECT_EQ(m_stage.PageNames(), (Lines{"B", "A"}));
    EXPECT_THAT(m_stage.Told(), testing::Contains("objects.AddHead B"));
}

TEST_F(Click, FindsNoNodeWhileTheExcludedOneIsOffThePage) {
    CImgNode* pExcluded = m_stage.Node("B");
    CImgNodeList* pObjects = m_stage.Desk().Document()->GetObjList();
    m_stage.Exclude(pExcluded);
    pObjects->RemoveAt(pObjects->Find(pExcluded));

    m_stage.Click({30, 30});

    EXPECT_EQ(m_stage.Selection(), Lines{});
}

TEST_F(Click, HandsThePressToTheToolThatBecameCurrentAndDropsItsRecords) {
    m_stage.Desk().SetHandover(kind::ObjectPage, 4, "CObjectPageTool");
    m_stage.Select({"B"});

    m_stage.Press({30, 30});

    EXPECT_EQ(m_stage.Told(),
              Joined(Joined({"flush 96 6 144 14", "flush 136 6 144 54", "flush 96 46 144 54",
                             "flush 96 6 104 54", "selection.RemoveAt B", "repaint 96 6 144 54 erase",
                             "object-page.1 4", "area.3 1", "reset.1 0", "open pack", "object-page.1 4",
                             "selection.AddTail A", "flush 6 6 54 54", "read 6 6 54 54", "write 6 6",
                             "repaint 6 6 54 54 erase", "record CSelChangedUndoEvent"},
                            OneObjectShown),
                     {"area.1 1", "close pack", "record CSelChangedUndoEvent"}));
    EXPECT_EQ(m_stage.CurrentTool(), m_stage.Tool("CObjectPageTool"));
    EXPECT_EQ(m_stage.NewestUndo(), "CSelectTool done");
    EXPECT_EQ(m_stage.UndoClasses().size(), 1U);
    EXPECT_TRUE(m_stage.HasCapture()) << "the other tool holds the press";
    ExpectNoSnapshotLeft();

    m_stage.Release({30, 30});
    EXPECT_FALSE(m_stage.HasCapture());
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(Click, HandedOverDragIsTheOtherTools) {
    m_stage.Desk().SetHandover(kind::ObjectPage, 4, "CObjectPageTool");

    m_stage.Drag({30, 30}, {60, 40});

    EXPECT_EQ(m_stage.Rect("A"), CRect(40, 20, 80, 60));
    EXPECT_EQ(m_stage.UndoClasses(), (Lines{"CMoveChangedUndoEvent", "CSelChangedUndoEvent"}));
    EXPECT_EQ(m_stage.NewestUndo(), "CObjectPageTool done");
}

TEST_F(Click, AnswersWhatTheOtherToolAnswered) {
    m_stage.Desk().SetHandover(kind::TextPage, 3, "CObjectPageTool");
    m_stage.TextBox("T", 200, 10);
    EXPECT_EQ(m_stage.PressAnswer({220, 30}), 1);

    m_stage.Input().OnLButtonUp(0, {220, 30});
    m_stage.UseTool("CSelectTool");
    m_stage.Desk().SetHandover(kind::TextPage, 3, "CTextToolBase");
    m_stage.FailUndoEvent(1); // the other tool's first snapshot
    m_stage.TextBox("U", 300, 10);
    EXPECT_EQ(m_stage.PressAnswer({320, 30}), 0);
}

TEST_F(Click, WithoutTheObjectPageAnswersZeroAndRecordsNothing) {
    m_stage.HideKind(kind::ObjectPage);

    EXPECT_EQ(m_stage.PressAnswer({30, 30}), 0);

    EXPECT_EQ(m_stage.Told(), Lines{});
    EXPECT_EQ(m_stage.Selection(), Lines{});
    EXPECT_FALSE(m_stage.HasCapture());
    ExpectNoSnapshotLeft();
}

TEST_F(Click, WithoutTheObjectPagesInterfaceAnswersZero) {
    m_stage.HideInterface<IObjectPage>(kind::ObjectPage);

    EXPECT_EQ(m_stage.PressAnswer({30, 30}), 0);

    EXPECT_EQ(m_stage.Selection(), Lines{});
    ExpectNoSnapshotLeft();
}

TEST_F(Click, WithoutTheTextPageAnswersZeroForATextAndGoesOnForAPicture) {
    m_stage.TextBox("T", 200, 10);
    m_stage.HideKind(kind::TextPage);

    EXPECT_EQ(m_stage.PressAnswer({220, 30}), 0);
    EXPECT_EQ(m_stage.Selection(), Lines{});
    EXPECT_EQ(m_stage.PressAnswer({30, 30}), 1);
    EXPECT_EQ(m_stage.Selection(), Lines{"A"});
}

TEST_F(Click, WithoutACurrentToolEndsAfterThePageWasTold) {
    m_stage.HideInterface<ICurrentToolService>(kind::Document);

    EXPECT_EQ(m_stage.PressAnswer({30, 30}), 0);

    EXPECT_EQ(m_stage.Told(), Lines{"object-page.1 4"});
    EXPECT_EQ(m_stage.Selection(), Lines{});
    ExpectNoSnapshotLeft();
}

TEST_F(Click, WithoutAFirstSnapshotChangesAndTellsNothing) {
    m_stage.Select({"B"});
    m_stage.FailUndoEvent(0);

    EXPECT_EQ(m_stage.PressAnswer({30, 30}), 0);

    EXPECT_EQ(m_stage.Selection(), Lines{"B"});
    EXPECT_EQ(m_stage.Told(), Lines{});
}

TEST_F(Click, OnEmptyGroundWithoutAFirstSnapshotChangesNothing) {
    m_stage.Select({"B"});
    m_stage.FailUndoEvent(0);

    EXPECT_EQ(m_stage.PressAnswer({300, 300}), 0);

    EXPECT_EQ(m_stage.Selection(), Lines{"B"});
    EXPECT_EQ(m_stage.Told(), Lines{});
}

TEST_F(Click, WithoutASecondSnapshotKeepsTheSelectionUnrecordedAndLeavesThePanels) {
    m_stage.FailUndoEvent(1);
    m_stage.Click({30, 30});
    EXPECT_EQ(m_stage.Selection(), Lines{"A"});
    EXPECT_EQ(m_stage.ToldOnBus(), Lines{"object-page.1 4"});

    m_stage.FailUndoEvent(1);
    EXPECT_EQ(m_stage.PressAnswer({300, 300}), 0);
    EXPECT_EQ(m_stage.Selection(), Lines{});
    EXPECT_EQ(m_stage.ToldOnBus(), Lines{});

    EXPECT_TRUE(m_stage.UndoClasses().empty());
    ExpectNoSnapshotLeft();
}

TEST_F(Click, WithoutAShownPageStillSelectsAndRecords) {
    m_stage.Desk().ShowPanel(PanelChoice::Missing);

    EXPECT_EQ(m_stage.PressAnswer({30, 30}), 1);

    EXPECT_EQ(m_stage.ToldOnBus(), Lines{"object-page.1 4"});
    EXPECT_EQ(m_stage.UndoClasses(), Lines{"CSelChangedUndoEvent"});
}

TEST_F(Click, WhileAnArrowKeyIsHeldDoesNothingAndItsReleaseNeither) {
    for (const int nKey : {VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN}) {
        m_stage.Hold(nKey, KeyStates::Async);
        EXPECT_EQ(m_stage.PressAnswer({30, 30}), 1) << nKey;
        EXPECT_FALSE(m_stage.HasCapture());
        m_stage.Release({30, 30});
        m_stage.LetGo(nKey);
    }
    EXPECT_EQ(m_stage.Selection(), Lines{});
    EXPECT_EQ(m_stage.Told(), Lines{});
}

TEST_F(Click, OnAHandleWhileAnArrowKeyIsHeldStartsNoResize) {
    m_stage.Select({"A"});
    m_stage.Hold(VK_UP, KeyStates::Async);

    EXPECT_EQ(m_stage.PressAnswer({10, 10}), 1);

    EXPECT_FALSE(m_stage.HasCapture());
    EXPECT_EQ(m_stage.Ops().CanRunCommand(), 1);
}

TEST_F(Click, DrawsNoMarksWithoutBitmapsButSelects) {
    platform::ArmFault("bitmap", false, 0);
    m_stage.Click({30, 30});

    EXPECT_EQ(m_stage.Selection(), Lines{"A"});
    EXPECT_EQ(m_stage.Pixel(8, 8), RGB(0x50, 0x50, 0x50));
}

} // namespace
