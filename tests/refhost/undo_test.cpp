#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/img_node_list.h"
#include "host/undo.h"
#include "refhost_help.h"
#include "undo/undo_host.h"

using namespace refhost_help;

namespace {

class CTestEvent : public CUndoEvent {
    DECLARE_DYNAMIC(CTestEvent)

    CTestEvent(char chName, std::string* pLog) : m_chName(chName), m_pLog(pLog) {}
    BOOL Accumulate(CUndoEvent*) override { return m_bAbsorbs; }
    BOOL Undo() override { return Note('u'); }
    BOOL Redo() override { return Note('r'); }

    BOOL m_bAnswer = TRUE;
    BOOL m_bAbsorbs = FALSE;

  private:
    BOOL Note(char chWhat) {
        *m_pLog += {chWhat, m_chName, ' '};
        return m_bAnswer;
    }
    char m_chName;
    std::string* m_pLog;
};

IMPLEMENT_DYNAMIC(CTestEvent, CUndoEvent)

class UndoManager : public ::testing::Test {
  protected:
    CTestEvent* Add(char chName) {
        CTestEvent* pTest = new CTestEvent(chName, &log);
        CUndoEvent* pEvent = pTest;
        manager.AddUndoEvent(pEvent, TRUE);
        return pTest;
    }

    std::string log;
    const std::size_t nBefore = undo_host::EventCount();
    CUndoMgr manager;
};

} // namespace

TEST_F(UndoManager, UndoesNewestFirstAndRedoesBack) {
    CTestEvent* pA = Add('a');
    CTestEvent* pB = Add('b');
    EXPECT_EQ(pB, manager.GetUndoEvent(0));
    EXPECT_EQ(pA, manager.GetUndoEvent(1));
    EXPECT_EQ(nullptr, manager.GetUndoEvent(2));
    EXPECT_EQ(nullptr, manager.GetUndoEvent(-1));

    EXPECT_EQ(TRUE, manager.Undo());
    EXPECT_EQ(TRUE, manager.Undo());
    EXPECT_EQ(FALSE, manager.Undo());
    EXPECT_EQ(TRUE, manager.Redo());

    EXPECT_EQ("ub ua ra ", log);
    EXPECT_EQ(pB, manager.GetRedoEvent(0));
    manager.Clear();
    EXPECT_EQ(nBefore, undo_host::EventCount());
}

TEST_F(UndoManager, ANewEventDestroysWhatCouldBeRedone) {
    Add('a');
    Add('b');
    manager.Undo();

    Add('c');

    EXPECT_EQ(nullptr, manager.GetRedoEvent(0));
    EXPECT_EQ(nBefore + 2, undo_host::EventCount());
}

TEST_F(UndoManager, AnEventThatRestoredNothingStillChangesStacks) {
    CTestEvent* pEvent = Add('a');
    pEvent->m_bAnswer = FALSE;

    EXPECT_EQ(FALSE, manager.Undo());
    EXPECT_EQ(pEvent, manager.GetRedoEvent(0));
    EXPECT_EQ(FALSE, manager.Redo());
    EXPECT_EQ(pEvent, manager.GetUndoEvent(0));
}

TEST_F(UndoManager, ANullEventIsRefusedAndAGivenPointerKeepsItsValue) {
    CUndoEvent* pNull = nullptr;
    EXPECT_EQ(FALSE, manager.AddUndoEvent(pNull, TRUE));

    CUndoEvent* pEvent = new CTestEvent('a', &log);
    CUndoEvent* const pGiven = pEvent;
    EXPECT_EQ(TRUE, manager.AddUndoEvent(pEvent, TRUE));
    EXPECT_EQ(pGiven, pEvent);
}

TEST_F(UndoManager, AnOpenPackTakesEventsInOrderAndLeavesTheStacksAlone) {
    Add('a');
    manager.Undo();
    CUndoEventList pack, refused;
    manager.BeginPackUndoEvent(&pack);
    manager.BeginPackUndoEvent(&refused);

    CUndoEvent* pFirst = Add('x');
    CUndoEvent* pSecond = Add('y');

    EXPECT_EQ(&pack, manager.EndPackUndoEvent());
    EXPECT_EQ(nullptr, manager.EndPackUndoEvent());
    ASSERT_EQ(2, pack.GetCount());
    EXPECT_EQ(pFirst, pack.GetHead());
    EXPECT_EQ(pSecond, pack.GetTail());
    EXPECT_EQ(nullptr, manager.GetUndoEvent(0));
    EXPECT_NE(nullptr, manager.GetRedoEvent(0));
    delete pFirst;
    delete pSecond;
}

TEST_F(UndoManager, OnlyAnAccumulatingEventAbsorbsTheNext) {
    CTestEvent* pFirst = Add('a');
    pFirst->m_bAbsorbs = TRUE;
    CTestEvent* pSecond = Add('b');
    EXPECT_EQ(pSecond, manager.GetUndoEvent(0));

    pSecond->m_bAbsorbs = TRUE;
    pSecond->SetAccumulate(TRUE);
    Add('c');

    EXPECT_EQ(pSecond, manager.GetUndoEvent(0));
    EXPECT_EQ(nBefore + 2, undo_host::EventCount());
}

TEST(UndoEvent, TheBaseClassIsNamedAndPlain) {
    CUndoEvent event;
    CRect rect(1, 2, 3, 4);

    event.GetRedrawRect(rect);

    EXPECT_STREQ("CUndoEvent", event.GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ(0xFFFFu, event.GetRuntimeClass()->m_wSchema);
    EXPECT_EQ(FALSE, event.IsDummyUndo());
    EXPECT_EQ(FALSE, event.Accumulate(nullptr));
    EXPECT_EQ(CRect(0, 0, 0, 0), rect);
}

TEST(UndoEvent, SetsNothingUpByItself) {
    CUndoEvent event;
    CImgNodeList nodes(nullptr);
    EXPECT_FALSE(event.SetUndo(nullptr, static_cast<CImgNode*>(nullptr), 0));
    EXPECT_FALSE(event.SetUndo(nullptr, nodes, 0));
    EXPECT_FALSE(event.SetUndo(nullptr, 0));
}
