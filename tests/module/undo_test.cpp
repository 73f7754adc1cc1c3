// Undo and redo of selections and moves, as the host's undo manager calls them.
#include <memory>

#include "desk/recorded_event.h"
#include "host/document_service.h"
#include "host/panels.h"
#include "host/undo.h"
#include "module_help.h"
#include "undo/undo_host.h"

namespace {

const Lines OneObjectShown = {"area.3 1", "display-panel.3 0 0 0 0", "shadow-panel.4 0 0", "shadow-panel.3"};
const Lines NothingShown = {"area.3 1", "reset.1 0"};
const Lines Notified = {"tracker.3 1", "changed.1 27", "changed2.1 27 0", "redrawn.1 27"};

Lines Joined(std::initializer_list<Lines> parts) {
    Lines lines;
    for (const Lines& part : parts) {
        lines.insert(lines.end(), part.begin(), part.end());
    }
    return lines;
}

/// A [10,10,50,50] and B [100,10,140,50], nothing selected.
class UndoSteps : public testing::Test {
  protected:
    UndoSteps() {
        m_stage.Square("A", 10, 10);
        m_stage.Square("B", 100, 10);
        m_stage.Forget();
    }
    /// The select tool's property object is the object page, so that the tool's page shows in the record.
    void GiveSelectToolAPage() {
        const GUID id = CDesk::Query<IToolIdentity>(m_stage.Tool("CSelectTool"))->GetToolClassId();
        m_stage.Desk().SetPropertyKind(id, kind::ObjectPage);
    }

    CModuleStage m_stage;
};

TEST_F(UndoSteps, SelectionGoesBackAndForth) {
    m_stage.Click({30, 30});
    m_stage.Click({120, 30});

    EXPECT_TRUE(m_stage.Undo());
    EXPECT_EQ(m_stage.Selection(), Lines{"A"});
    EXPECT_TRUE(m_stage.Undo());
    EXPECT_EQ(m_stage.Selection(), Lines{});
    EXPECT_FALSE(m_stage.Undo());
    EXPECT_TRUE(m_stage.Redo());
    EXPECT_EQ(m_stage.Selection(), Lines{"A"});
    EXPECT_TRUE(m_stage.Redo());
    EXPECT_EQ(m_stage.Selection(), Lines{"B"});
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(UndoSteps, SelectionComesBackInItsOrder) {
    m_stage.Select({"B", "A"});
    m_stage.Click({400, 300});

    m_stage.Undo();

    EXPECT_EQ(m_stage.Selection(), (Lines{"B", "A"}));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(UndoSteps, SelectionUndoShowsPagesAndMarksAndNotifiesNobody) {
    GiveSelectToolAPage();
    m_stage.Click({30, 30});
    m_stage.Click({120, 30});
    m_stage.Forget();

    m_stage.Undo();

    EXPECT_EQ(m_stage.Told(),
              Joined({{"flush 96 6 144 14", "flush 136 6 144 54", "flush 96 46 144 54", "flush 96 6 104 54",
                       "selection.RemoveHead B", "object-page.1 0"},
                      NothingShown,
                      {"selection.AddTail A", "read 6 6 54 54", "write 6 6", "repaint 6 6 144 54 erase"},
                      OneObjectShown}));
}

TEST_F(UndoSteps, SelectionEventOfNothingStillRefreshes) {
    m_stage.Ops().RecordSelectionUndo();
    m_stage.Forget();

    EXPECT_TRUE(m_stage.Undo());

    EXPECT_EQ(m_stage.Told(), Joined({{"repaint 0 0 0 0 erase"}, NothingShown}));
}

TEST_F(UndoSteps, SelectionEventBelongsToTheToolThatIsCurrentAtTheUndo) {
    m_stage.Click({30, 30});
    EXPECT_EQ(m_stage.NewestUndo(), "CSelectTool done");

    m_stage.UseTool("CObjectPageTool");
    m_stage.Undo();
    EXPECT_EQ(m_stage.NewestRedo(), "CObjectPageTool undone");

    m_stage.UseTool("CSelectTool");
    m_stage.Forget();
    m_stage.Redo();
    EXPECT_EQ(m_stage.NewestUndo(), "CSelectTool done");
    // The former owner's page is shown: the tool that was current at the undo.
    EXPECT_EQ(m_stage.ToldOnBus(), Joined({{"object-page.1 0"}, NothingShown, OneObjectShown}));
}

TEST_F(UndoSteps, SelectionUndoIsRefusedWithoutACurrentToolButFlipsAndChangesStacks) {
    m_stage.Click({30, 30});
    m_stage.HideInterface<ICurrentToolService>(kind::Document);
    m_stage.Forget();

    EXPECT_FALSE(m_stage.Undo());

    EXPECT_EQ(m_stage.Selection(), Lines{"A"});
    EXPECT_EQ(m_stage.NewestRedo(), "CSelectTool undone");
    EXPECT_TRUE(m_stage.UndoClasses().empty());
    EXPECT_EQ(m_stage.Told(), Lines{});
}

TEST_F(UndoSteps, SelectionUndoIsRefusedWithoutADocumentOrATool) {
    m_stage.Click({30, 30});
    m_stage.HideKind(kind::Document);
    EXPECT_FALSE(m_stage.Undo());
    m_stage.ShowKind(kind::Document);
    EXPECT_EQ(m_stage.Selection(), Lines{"A"});

    m_stage.UseTool("", Redraw::No);
    EXPECT_FALSE(m_stage.Redo());
    EXPECT_EQ(m_stage.Selection(), Lines{"A"});
    EXPECT_EQ(m_stage.NewestUndo(), "CSelectTool done") << "flipped twice";
}

TEST_F(UndoSteps, MoveUndoRefreshesInItsOrder) {
    GiveSelectToolAPage();
    m_stage.Select({"A"});
    m_stage.Drag({30, 30}, {45, 30});
    m_stage.Forget();

    EXPECT_TRUE(m_stage.Undo());

    EXPECT_EQ(m_stage.Told(),
              Joined({{"object-page.1 0"},
                      OneObjectShown,
                      {"flush 6 6 69 54", "read 6 6 54 54", "write 6 6", "repaint 6 6 69 54 erase"},
                      Notified}));
    EXPECT_EQ(m_stage.NewestRedo(), "CSelectTool undone");
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(UndoSteps, MoveUndoWithoutAPropertyObjectShowsNoPanels) {
    m_stage.Select({"A"});
    m_stage.Drag({30, 30}, {45, 30});
    m_stage.Forget();

    m_stage.Undo();

    EXPECT_EQ(m_stage.ToldOnBus(), Notified);
}

TEST_F(UndoSteps, MoveUndoLeavesTheSelectionAloneAndRepaintsWhatMoved) {
    m_stage.Shadow("A", 10, 60);
    m_stage.Select({"A"});
    m_stage.Drag({30, 30}, {45, 30}); // A [25,10,65,50], its shadow [35,70,75,110]
    m_stage.Select({"B"});
    m_stage.Forget();

    m_stage.Undo();

    EXPECT_EQ(m_stage.Selection(), Lines{"B"});
    EXPECT_EQ(m_stage.Rect("A.shadow"), CRect(20, 70, 60, 110));
    EXPECT_EQ(m_stage.Told().front(), "flush 6 6 75 110");
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(UndoSteps, MoveOfSeveralRepaintsTheirPlainRects) {
    m_stage.Shadow("B", 0, 60);
    m_stage.Select({"A", "B"});
    m_stage.Drag({30, 30}, {45, 30});
    m_stage.Forget();

    m_stage.Undo();

    EXPECT_EQ(m_stage.Told().front(), "flush 10 10 155 110");
    EXPECT_EQ(m_stage.Rect("A"), CRect(10, 10, 50, 50));
    EXPECT_EQ(m_stage.Rect("B"), CRect(100, 10, 140, 50));
}

TEST_F(UndoSteps, MoveRestoresTheOuterCornerOfObjectAndFrame) {
    m_stage.AddPlaceholder("P", 300, 100, 60, 40);
    m_stage.Node("P.frame")->m_fnResize(CRect(290, 95, 365, 150));
    m_stage.Select({"P"});
    m_stage.Drag({330, 120}, {300, 150});

    m_stage.Undo();

    EXPECT_EQ(m_stage.Rect("P"), CRect(300, 100, 360, 140));
    EXPECT_EQ(m_stage.Rect("P.frame"), CRect(290, 95, 365, 150));
}

TEST_F(UndoSteps, MovesGoBackAndForthTenTimesWithoutDrift) {
    m_stage.NewPage(720, 480, 1.5);
    m_stage.Square("A", 11, 13);
    m_stage.Select({"A"});
    m_stage.Drag({40, 40}, {90, 77}, Ctrl::Up, 7);
    const CRect rcMoved = m_stage.Rect("A");
    ASSERT_NE(rcMoved, CRect(11, 13, 51, 53));

    for (int n = 0; n < 10; ++n) {
        EXPECT_TRUE(m_stage.Undo());
        EXPECT_EQ(m_stage.Rect("A"), CRect(11, 13, 51, 53));
        EXPECT_EQ(m_stage.NewestRedo(), "CSelectTool undone");
        EXPECT_TRUE(m_stage.Redo());
        EXPECT_EQ(m_stage.Rect("A"), rcMoved);
        EXPECT_EQ(m_stage.NewestUndo(), "CSelectTool done");
    }
}

TEST_F(UndoSteps, MoveUndoPutsBackWhateverHappenedSince) {
    m_stage.Select({"A"});
    m_stage.Drag({30, 30}, {45, 30});
    m_stage.Node("A")->Move(100, 100);

    m_stage.Undo();
    EXPECT_EQ(m_stage.Rect("A"), CRect(10, 10, 50, 50));
    m_stage.Redo();
    EXPECT_EQ(m_stage.Rect("A"), CRect(125, 110, 165, 150)) << "the live state was kept";
}

TEST_F(UndoSteps, EventsOfADragStandOnTheStackUnaccumulated) {
    m_stage.Drag({30, 30}, {45, 30});
    m_stage.Drag({45, 30}, {60, 30});

    EXPECT_EQ(m_stage.UndoClasses(),
              (Lines{"CMoveChangedUndoEvent", "CMoveChangedUndoEvent", "CSelChangedUndoEvent"}));
    EXPECT_FALSE(GetUndoMgr()->GetUndoEvent(0)->IsAccumulating());
    EXPECT_EQ(GetUndoMgr()->GetUndoEvent(0)->GetStrID(), 0U);
}

/// One selection and one move event on the stack, newest first.
class UndoClassesOfTheModule : public UndoSteps {
  protected:
    UndoClassesOfTheModule() { m_stage.Drag({30, 30}, {45, 30}); }
    static std::unique_ptr<CUndoEvent> MadeLike(int nIndex) {
        CObject* pMade = GetUndoMgr()->GetUndoEvent(nIndex)->GetRuntimeClass()->CreateObject();
        return std::unique_ptr<CUndoEvent>(static_cast<CUndoEvent*>(pMade));
    }
};

TEST_F(UndoClassesOfTheModule, CarryRuntimeClassesThatNobodyFindsByName) {
    for (int n = 0; n < 2; ++n) {
        const CRuntimeClass* pClass = GetUndoMgr()->GetUndoEvent(n)->GetRuntimeClass();
        EXPECT_STREQ(pClass->m_lpszClassName, n == 0 ? "CMoveChangedUndoEvent" : "CSelChangedUndoEvent");
        EXPECT_EQ(pClass->m_wSchema, 0xFFFFU);
        EXPECT_STREQ(pClass->m_pBaseClass->m_lpszClassName, "CUndoEvent");
        EXPECT_EQ(CRuntimeClass::FromName(pClass->m_lpszClassName), nullptr);
    }
}

TEST_F(UndoClassesOfTheModule, MadeByTheirRuntimeClassRefuseToUndoWithoutAnOwner) {
    RecordedEvent record;
    const std::unique_ptr<CUndoEvent> pMove = MadeLike(0);
    EXPECT_FALSE(pMove->Undo());
    ASSERT_TRUE(ReadRecordedEvent(*pMove, record));
    EXPECT_EQ(record.pTool, nullptr);
    EXPECT_FALSE(record.bUndone) << "a move flips after it looked for its owner";

    const std::unique_ptr<CUndoEvent> pSelection = MadeLike(1);
    EXPECT_FALSE(pSelection->Undo());
    ASSERT_TRUE(ReadRecordedEvent(*pSelection, record));
    EXPECT_TRUE(record.bUndone) << "a selection flips before";
    EXPECT_FALSE(pSelection->Redo());
    ReadRecordedEvent(*pSelection, record);
    EXPECT_FALSE(record.bUndone);
}

TEST_F(UndoClassesOfTheModule, AreNotMadeWithoutMemory) {
    m_stage.FailUndoEvent(0);

    EXPECT_EQ(MadeLike(0), nullptr);
}

} // namespace
