// The undo classes on their own: run-time classes, answers to the manager, comparison of captures.
#include <memory>

#include <gtest/gtest.h>

#include "bus/bus_object.h"
#include "host/document_service.h"
#include "tools/select_tool.h"
#include "undo/add_object_event.h"
#include "undo/align_event.h"
#include "undo/arrange_event.h"
#include "undo/attribute_changed_event.h"
#include "undo/delete_node_event.h"
#include "undo/display_event.h"
#include "undo/duplicate_object_event.h"
#include "undo/move_changed_event.h"
#include "undo/remove_shadow_event.h"
#include "undo/resize_changed_event.h"
#include "undo/sel_changed_event.h"
#include "undo/shadow_changed_event.h"
#include "undo/text_edit_changed_event.h"

namespace {

struct ClassRow {
    CRuntimeClass* pClass;
    const char* pszName;
    BOOL bAccumulate;
    BOOL bToolTip;
};

const std::vector<ClassRow>& ClassRows() {
    static const std::vector<ClassRow> rows = {
        {RUNTIME_CLASS(CSelChangedUndoEvent), "CSelChangedUndoEvent", TRUE, TRUE},
        {RUNTIME_CLASS(CMoveChangedUndoEvent), "CMoveChangedUndoEvent", TRUE, TRUE},
        {RUNTIME_CLASS(CResizeChangedUndoEvent), "CResizeChangedUndoEvent", TRUE, TRUE},
        {RUNTIME_CLASS(CShadowChangedUndoEvent), "CShadowChangedUndoEvent", TRUE, TRUE},
        {RUNTIME_CLASS(CShadowMoveChangedUndoEvent), "CShadowMoveChangedUndoEvent", TRUE, TRUE},
        {RUNTIME_CLASS(CuArrangeUndoEvent), "CuArrangeUndoEvent", FALSE, FALSE},
        {RUNTIME_CLASS(CuAlignUndoEvent), "CuAlignUndoEvent", FALSE, FALSE},
        {RUNTIME_CLASS(CAddObjectUndoEvent), "CAddObjectUndoEvent", FALSE, TRUE},
        {RUNTIME_CLASS(CDuplicateObjectUndoEvent), "CDuplicateObjectUndoEvent", FALSE, TRUE},
        {RUNTIME_CLASS(CuDeleteNodeUndoEvent), "CuDeleteNodeUndoEvent", FALSE, TRUE},
        {RUNTIME_CLASS(CuRemoveShadowUndoEvent), "CuRemoveShadowUndoEvent", FALSE, FALSE},
        {RUNTIME_CLASS(CuDisplayUndoEvent), "CuDisplayUndoEvent", FALSE, TRUE},
        {RUNTIME_CLASS(CObjectAttributeChangedUndoEvent), "CObjectAttributeChangedUndoEvent", TRUE, FALSE},
        {RUNTIME_CLASS(CTextEditChangedUndoEvent), "CTextEditChangedUndoEvent", FALSE, TRUE},
    };
    return rows;
}

TEST(UndoClass, NamesCUndoEventAsItsBaseAndIsNotSerialised) {
    for (const ClassRow& row : ClassRows()) {
        EXPECT_STREQ(row.pClass->m_lpszClassName, row.pszName);
        EXPECT_STREQ(row.pClass->m_pBaseClass->m_lpszClassName, "CUndoEvent") << row.pszName;
        EXPECT_EQ(row.pClass->m_wSchema, 0xFFFFU) << row.pszName;
        EXPECT_EQ(CRuntimeClass::FromName(row.pszName), nullptr) << row.pszName;
    }
}

TEST(UndoClass, MadeByItsRuntimeClassAnswersTheManagerAsTheTableSays) {
    for (const ClassRow& row : ClassRows()) {
        const std::unique_ptr<CObject> pMade(row.pClass->CreateObject());
        auto* pEvent = static_cast<CUndoEvent*>(pMade.get());
        ASSERT_NE(pEvent, nullptr) << row.pszName;
        CRect rc(1, 2, 3, 4);

        EXPECT_EQ(pEvent->GetRuntimeClass(), row.pClass);
        EXPECT_EQ(pEvent->IsDummyUndo(), FALSE) << row.pszName;
        EXPECT_EQ(pEvent->Accumulate(nullptr), row.bAccumulate) << row.pszName;
        EXPECT_EQ(pEvent->ToolTipNeedText(nullptr), row.bToolTip) << row.pszName;
        EXPECT_FALSE(pEvent->IsAccumulating()) << row.pszName;
        pEvent->GetRedrawRect(&rc);
        EXPECT_EQ(rc, CRect(0, 0, 0, 0)) << row.pszName;
        pEvent->Free();
        pEvent->Cancel();
    }
}

/// A document service without a view, whose current tool can be set.
class CService : public CBusObject, public IDocumentService, public ICurrentToolService {
  public:
    CService() {
        AddKind(CategoryId, kind::Document);
        AddInterface<IDocumentService>(this);
        AddInterface<ICurrentToolService>(this);
    }
    CVorDoc* GetActiveDocument() override { return &doc; }
    int Reserved1() override { return 0; }
    CListenerObject* GetCurrentTool() override { return pCurrent; }
    CListenerObject* GetPropertyObject(const GUID&) override { return nullptr; }

    CVorDoc doc{720, 480};
    CListenerObject* pCurrent = nullptr;
};

/// Two nodes and one tool at a document.
class Captures : public testing::Test {
  protected:
    Captures() {
        m_tool.m_fnAddTargetObject(&m_service);
        m_pFirst = MakeNode(10, 10);
        m_pSecond = MakeNode(100, 10);
    }
    CImgNode* MakeNode(int nX, int nY) {
        auto* pNode = new CImgNode(&m_service.doc);
        pNode->m_tx.nX = nX;
        pNode->m_tx.nY = nY;
        pNode->m_tx.nWidth = 40;
        pNode->m_tx.nHeight = 40;
        m_service.doc.GetObjList()->AddHead(pNode);
        return pNode;
    }
    void Select(std::initializer_list<CImgNode*> nodes) {
        m_service.doc.GetActList()->RemoveAll();
        for (CImgNode* pNode : nodes) {
            m_service.doc.GetActList()->AddTail(pNode);
        }
    }
    template <class TEvent>
    void Capture(TEvent& event) {
        event.m_fnSaveState(&m_tool);
    }

    CService m_service;
    CSelectTool m_tool;
    CImgNode* m_pFirst;
    CImgNode* m_pSecond;
};

template <class TEvent>
class EveryCapture : public Captures {};
using EventTypes = testing::Types<CSelChangedUndoEvent, CMoveChangedUndoEvent, CResizeChangedUndoEvent,
                                  CShadowChangedUndoEvent, CShadowMoveChangedUndoEvent>;
TYPED_TEST_SUITE(EveryCapture, EventTypes);

TYPED_TEST(EveryCapture, DiffersFromNullFromAnotherOwnersAndFromAnotherCount) {
    TypeParam empty, owned, one, two;
    EXPECT_TRUE(empty.m_fnIsSameState(&empty)) << "no owner, no records";
    EXPECT_FALSE(empty.m_fnIsSameState(nullptr));
    this->Capture(owned);
    EXPECT_FALSE(empty.m_fnIsSameState(&owned));
    EXPECT_TRUE(owned.m_fnIsSameState(&owned));

    this->Select({this->m_pFirst});
    this->Capture(one);
    this->Select({this->m_pFirst, this->m_pSecond});
    this->Capture(two);
    EXPECT_FALSE(owned.m_fnIsSameState(&one));
    EXPECT_FALSE(one.m_fnIsSameState(&two));
    EXPECT_FALSE(two.m_fnIsSameState(&one));
}

TYPED_TEST(EveryCapture, IsTheSameInAnotherOrderAndNotOfAnotherNode) {
    TypeParam forth, back, first, second;
    this->Select({this->m_pFirst, this->m_pSecond});
    this->Capture(forth);
    this->Select({this->m_pSecond, this->m_pFirst});
    this->Capture(back);
    EXPECT_TRUE(forth.m_fnIsSameState(&back));

    this->Select({this->m_pFirst});
    this->Capture(first);
    this->Select({this->m_pSecond});
    this->Capture(second);
    EXPECT_FALSE(first.m_fnIsSameState(&second));
}

TYPED_TEST(EveryCapture, OfANullToolSavesNothing) {
    TypeParam event, untouched;
    this->Select({this->m_pFirst});

    event.m_fnSaveState(nullptr);

    EXPECT_TRUE(event.m_fnIsSameState(&untouched));
    EXPECT_EQ(event.OwnerTool(), nullptr);
}

TYPED_TEST(EveryCapture, SwitchesAccumulatingOff) {
    TypeParam event;
    event.SetAccumulate(TRUE);

    this->Capture(event);

    EXPECT_FALSE(event.IsAccumulating());
}

// A record counts as found wherever it stands, so one node's record may be found twice.
TEST_F(Captures, RecordThatTheOtherHoldsOnceIsFoundForBoth) {
    CSelChangedUndoEvent twice, both;
    Select({m_pFirst, m_pFirst});
    Capture(twice);
    Select({m_pFirst, m_pSecond});
    Capture(both);

    EXPECT_TRUE(twice.m_fnIsSameState(&both));
    EXPECT_FALSE(both.m_fnIsSameState(&twice));
}

TEST_F(Captures, PlacesAndSizesDifferByAPixelButNotWhenEmpty) {
    CMoveChangedUndoEvent before, moved, resized, empty, emptyMoved;
    Select({m_pFirst});
    Capture(before);
    m_pFirst->Move(0, 1);
    Capture(moved);
    EXPECT_FALSE(before.m_fnIsSameState(&moved));
    m_pFirst->m_fnResize(CRect(10, 10, 51, 50));
    Capture(resized);
    EXPECT_FALSE(before.m_fnIsSameState(&resized));

    m_pFirst->m_fnResize(CRect(10, 10, 10, 50));
    Capture(empty);
    m_pFirst->Move(70, 70);
    Capture(emptyMoved);
    EXPECT_TRUE(empty.m_fnIsSameState(&emptyMoved)) << "union and intersection are both without size";
}

TEST_F(Captures, ShadowsDifferInEachSettingAndInTheirPresence) {
    const auto differs = [this](auto change) {
        CShadowChangedUndoEvent before, after;
        m_pFirst->m_shadow = CShadowParam();
        m_pFirst->m_pShadowNode = nullptr;
        Capture(before);
        change(*m_pFirst);
        Capture(after);
        return !before.m_fnIsSameState(&after);
    };
    Select({m_pFirst});

    EXPECT_TRUE(differs([](CImgNode& node) { node.m_shadow.dOffsetX = 0.25; }));
    EXPECT_TRUE(differs([](CImgNode& node) { node.m_shadow.dOffsetY = -0.25; }));
    EXPECT_TRUE(differs([](CImgNode& node) { node.m_shadow.dSoftness = 1e-9; }));
    EXPECT_TRUE(differs([](CImgNode& node) { node.m_shadow.nTransparency = 1; }));
    EXPECT_TRUE(differs([](CImgNode& node) { node.m_shadow.crColor = 1; }));
    EXPECT_TRUE(differs([this](CImgNode& node) { node.m_pShadowNode = m_pSecond; }));
    EXPECT_FALSE(differs([](CImgNode& node) { node.m_nBrightness = 9; }));
    m_pFirst->m_pShadowNode = nullptr;
}

TEST_F(Captures, EmptyMoveStillAnswersTrueAndFlips) {
    CMoveChangedUndoEvent event;
    Capture(event);

    EXPECT_TRUE(event.Undo());
    EXPECT_TRUE(event.IsUndone());
    EXPECT_TRUE(event.Redo());
    EXPECT_FALSE(event.IsUndone());
}

TEST_F(Captures, MoveLeavesANodeAloneWhoseCornerMatchesAlready) {
    CMoveChangedUndoEvent event;
    Select({m_pFirst, m_pSecond});
    Capture(event);
    m_pFirst->m_fnResize(CRect(10, 10, 90, 90));
    m_pSecond->Move(5, 0);

    EXPECT_TRUE(event.Undo());

    CRect rc;
    m_pFirst->GetBoundRect(&rc);
    EXPECT_EQ(rc, CRect(10, 10, 90, 90)) << "its size is not the event's to change";
    m_pSecond->GetBoundRect(&rc);
    EXPECT_EQ(rc, CRect(100, 10, 140, 50));
}

TEST_F(Captures, SelectionTakesTheCurrentToolAsItsOwner) {
    CSelectTool other;
    other.m_fnAddTargetObject(&m_service);
    CSelChangedUndoEvent event;
    Select({m_pFirst});
    Capture(event);
    Select({m_pSecond});

    EXPECT_FALSE(event.Undo()) << "no current tool";
    EXPECT_TRUE(event.IsUndone());
    m_service.pCurrent = &other;
    EXPECT_TRUE(event.Undo());
    EXPECT_EQ(event.OwnerTool(), &other);
    EXPECT_FALSE(event.IsUndone());
}

} // namespace
