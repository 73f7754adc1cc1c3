// The undo events of display values, whole looks, added objects and edited texts.
#include <gtest/gtest.h>

#include "host/notifications.h"
#include "host/text_node.h"
#include "image/node_host.h"
#include "tool_desk.h"
#include "trace/trace.h"
#include "undo/add_object_event.h"
#include "undo/attribute_changed_event.h"
#include "undo/display_event.h"
#include "undo/text_edit_changed_event.h"

namespace {

using Values = std::array<int, 3>; ///< brightness, contrast, transparency

/// Its idea of a look is display values and size, and of a text ten pixels a letter. It keeps what it was
/// given to look at.
class CLookTool : public CSelectTool {
  public:
    int CopyNodeLook(CImgNode* pSource, CImgNode* pTarget) override {
        sources.push_back(pSource);
        bSourceHasPicture = pSource->m_hImage != 0 && pSource->m_hImage != pTarget->m_hImage;
        bSourceHasOwnFrame = pSource->m_pFrameNode && pSource->m_pFrameNode != pTarget->m_pFrameNode &&
                             pSource->m_pFrameNode->m_hImage != 0;
        bSourceSharesShadow = pSource->m_pShadowNode == pTarget->m_pShadowNode;
        const CRect rcSource = BoundsOf(pSource);
        pTarget->m_fnResize(CRect(BoundsOf(pTarget).TopLeft(), rcSource.Size()));
        return pTarget->m_fnUpdateBCAndT(pSource->m_nBrightness, pSource->m_nContrast,
                                         pSource->m_nTransparency);
    }
    CTextNode* CreateTextNode(const CString& strText, const CString& strFontName, COLORREF crColor,
                              int nPixelSize, int nAlignment, int nStyle) override {
        if (strText.IsEmpty()) {
            return nullptr;
        }
        auto* pNode = new CTextNode(nullptr);
        pNode->m_strText = strText;
        pNode->m_strFontName = strFontName;
        pNode->m_crText = crColor;
        pNode->m_nFontSize = nPixelSize;
        pNode->m_nAlignment = 1000 + (3 - nAlignment) % 3;
        pNode->m_nBold = nStyle & 1;
        pNode->m_nUnderline = nStyle & 4 ? 1 : 0;
        HBUF32 hImage = 0;
        buf32Alloc(&hImage, 24, 10 * strText.GetLength(), nPixelSize, 1, nullptr);
        pNode->SetImage(hImage, 0, 0, 0, 0);
        return pNode;
    }

    std::vector<const CImgNode*> sources;
    bool bSourceHasPicture = false;
    bool bSourceHasOwnFrame = false;
    bool bSourceSharesShadow = false;
};

Values ValuesOf(const CImgNode* pNode) {
    return {pNode->m_nBrightness, pNode->m_nContrast, pNode->m_nTransparency};
}

void Set(CImgNode* pNode, const Values& values) { pNode->m_fnUpdateBCAndT(values[0], values[1], values[2]); }

class AttributeEvents : public testing::Test {
  protected:
    AttributeEvents() {
        m_desk.Desk().AddTool(&m_tool);
        m_desk.Desk().SwitchTool(&m_tool, 0);
        for (int i = 0; i < 3; ++i) {
            m_nodes.AddTail(m_desk.Picture(20 + 100 * i, 20, 40, 40));
        }
    }
    ~AttributeEvents() override { trace::TurnOn(false); }

    CImgNode* Node(int nIndex) { return m_nodes.GetAt(m_nodes.FindIndex(nIndex)); }
    void Select(std::initializer_list<CImgNode*> nodes) {
        m_desk.Selection().RemoveAll();
        for (CImgNode* pNode : nodes) {
            m_desk.Selection().AddTail(pNode);
        }
    }
    std::vector<CImgNode*> Selected() {
        std::vector<CImgNode*> nodes;
        for (POSITION position = m_desk.Selection().GetHeadPosition(); position;) {
            nodes.push_back(m_desk.Selection().GetNext(position));
        }
        return nodes;
    }
    void TakeOff(CImgNode* pNode) { m_desk.Objects().RemoveAt(m_desk.Objects().Find(pNode)); }
    static void StartTrace() {
        trace::TurnOn(true);
        trace::Take();
    }
    /// What was called since: the operations of the page's objects, of the view, and the two notifications.
    static std::vector<std::string> Calls() {
        std::vector<std::string> calls;
        for (const trace::Row& row : trace::Take()) {
            if (row.on == "27" || row.op == "FlushCacheRect" || row.op == "RepaintViewRect") {
                calls.push_back(row.op);
            } else if (row.on == "51" || row.on == "45") {
                calls.push_back("kind " + row.on);
            }
        }
        return calls;
    }
    std::vector<std::int32_t> Table() {
        std::vector<std::int32_t> values;
        for (CImgNode* pNode : m_desk.Order()) {
            if (!pNode->m_pOwner) {
                values.push_back(m_desk.Desk().PageObjects().GetValue(pNode));
            }
        }
        return values;
    }
    void FillTable(std::initializer_list<std::int32_t> values) {
        m_desk.Desk().PageObjects().ClearValues();
        for (const std::int32_t nValue : values) {
            m_desk.Desk().PageObjects().AppendValue(nValue);
        }
    }

    CToolDesk m_desk;
    CLookTool& m_tool = *new CLookTool; ///< the desk owns it
    CNodeRefList m_nodes;
};

TEST_F(AttributeEvents, DisplayGivesEachItsOwnValuesBackAndThenOneTripleToAll) {
    const Values old[] = {{1, 2, 3}, {-4, 5, 60}, {100, -100, 0}};
    const Values wanted = {7, 8, 9};
    for (int i = 0; i < 3; ++i) {
        Set(Node(i), old[i]);
    }
    CuDisplayUndoEvent event(&m_tool, m_nodes, wanted[0], wanted[1], wanted[2]);
    for (int i = 0; i < 3; ++i) {
        Set(Node(i), wanted);
    }

    EXPECT_TRUE(event.Undo());
    EXPECT_TRUE(event.IsUndone());
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(ValuesOf(Node(i)), old[i]) << i;
    }
    EXPECT_TRUE(event.Redo());
    EXPECT_FALSE(event.IsUndone());
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(ValuesOf(Node(i)), wanted) << i;
    }
}

TEST_F(AttributeEvents, DisplayRedoAppliesWhatWasAskedForAndMinusOneKeepsTheObjectsOwn) {
    Set(Node(0), {10, 20, 30});
    Set(Node(1), {40, 50, 60});
    CuDisplayUndoEvent event(&m_tool, m_nodes, -1, 250, -1);

    EXPECT_TRUE(event.Redo());

    EXPECT_EQ(ValuesOf(Node(0)), (Values{10, 250, 30}));
    EXPECT_EQ(ValuesOf(Node(1)), (Values{40, 250, 60}));
    EXPECT_EQ(ValuesOf(Node(2)), (Values{0, 250, 0}));
}

TEST_F(AttributeEvents, DisplayRefreshesTheSelectionOnceAndThenNotifies) {
    Select({Node(0)});
    CuDisplayUndoEvent event(&m_tool, m_nodes, 1, 1, 1);
    const std::vector<std::string> calls = {"FlushCacheRect", "RepaintViewRect", "kind 51", "kind 45"};
    StartTrace();

    event.Undo();
    EXPECT_EQ(Calls(), calls);
    event.Redo();
    EXPECT_EQ(Calls(), calls);
}

TEST_F(AttributeEvents, LookSwapsItsCopiesThereAndBack) {
    Set(Node(0), {1, 2, 3});
    CObjectAttributeChangedUndoEvent event;
    event.m_fnSaveState(&m_tool, m_nodes);
    Set(Node(0), {7, 8, 9});
    Node(2)->m_fnResize(CRect(220, 20, 280, 70));

    for (int nTurn = 0; nTurn < 2; ++nTurn) {
        EXPECT_TRUE(event.Undo());
        EXPECT_TRUE(event.IsUndone());
        EXPECT_EQ(ValuesOf(Node(0)), (Values{1, 2, 3}));
        EXPECT_EQ(BoundsOf(Node(2)), CRect(220, 20, 260, 60));
        EXPECT_TRUE(event.Redo());
        EXPECT_FALSE(event.IsUndone());
        EXPECT_EQ(ValuesOf(Node(0)), (Values{7, 8, 9}));
        EXPECT_EQ(BoundsOf(Node(2)), CRect(220, 20, 280, 70));
        EXPECT_EQ(event.CopyCount(), 3);
    }
}

TEST_F(AttributeEvents, LookRefreshesBothAreasOfTheNodesBeforeThePanels) {
    Select({Node(0)});
    Node(0)->m_fnResize(CRect(20, 20, 60, 120));
    CObjectAttributeChangedUndoEvent event;
    event.m_fnSaveState(&m_tool, m_nodes);
    Node(0)->m_fnResize(CRect(20, 20, 60, 60));
    Node(2)->m_fnResize(CRect(220, 20, 280, 70));
    StartTrace();

    event.Undo();

    const std::vector<trace::Row> rows = trace::Take();
    const auto flush = std::find_if(rows.begin(), rows.end(),
                                    [](const trace::Row& row) { return row.op == "FlushCacheRect"; });
    ASSERT_NE(flush, rows.end());
    // The nodes' rectangles, widened by four pixels: the first is higher after, the last was wider before.
    EXPECT_EQ(CRect(std::get<RECT>(flush->args[0])), CRect(16, 16, 284, 124));
    const auto panel =
        std::find_if(rows.begin(), rows.end(), [](const trace::Row& row) { return row.on == "7"; });
    ASSERT_NE(panel, rows.end());
    EXPECT_GT(panel - flush, 0);
}

TEST_F(AttributeEvents, LookCopiesHoldAFrameOfTheirOwnAndNoPixelsUntilTheyAreUsed) {
    CImgNode* pNode = Node(0);
    m_desk.Frame(*pNode, CRect(10, 10, 70, 70));
    ASSERT_EQ(m_desk.Shadow(pNode, 5, 5, 0), 1);
    CNodeRefList nodes;
    nodes.AddTail(pNode);
    const std::size_t nBuffers = buffer_host::BufferCount();
    const std::size_t nNodes = CNodeBookkeeping::LiveNodes();
    {
        CObjectAttributeChangedUndoEvent event;
        event.m_fnSaveState(&m_tool, nodes);
        EXPECT_EQ(CNodeBookkeeping::LiveNodes(), nNodes + 2) << "the object's and the frame's";
        EXPECT_EQ(buffer_host::BufferCount(), nBuffers + 1) << "the frame's picture";

        EXPECT_TRUE(event.Undo());
        EXPECT_TRUE(m_tool.bSourceHasPicture);
        EXPECT_TRUE(m_tool.bSourceHasOwnFrame);
        EXPECT_TRUE(m_tool.bSourceSharesShadow);
        EXPECT_EQ(CNodeBookkeeping::LiveNodes(), nNodes + 2);
        EXPECT_EQ(buffer_host::BufferCount(), nBuffers + 1);
        event.m_fnSaveState(&m_tool, nodes);
        EXPECT_EQ(event.CopyCount(), 1) << "what was saved before goes";
    }
    EXPECT_EQ(CNodeBookkeeping::LiveNodes(), nNodes);
    EXPECT_EQ(buffer_host::BufferCount(), nBuffers);
}

TEST_F(AttributeEvents, LookOfCompanionsAloneHoldsNothingAndRefreshesNothing) {
    CNodeRefList companions;
    companions.AddTail(m_desk.Frame(*Node(0), CRect(10, 10, 70, 70)));
    ASSERT_EQ(m_desk.Shadow(Node(0), 5, 5, 0), 1);
    companions.AddTail(Node(0)->m_pShadowNode);
    CObjectAttributeChangedUndoEvent event;
    event.m_fnSaveState(&m_tool, companions);
    StartTrace();

    EXPECT_EQ(event.CopyCount(), 0);
    EXPECT_TRUE(event.Undo());
    EXPECT_EQ(Calls(), std::vector<std::string>());
}

TEST_F(AttributeEvents, LookStopsAtANodeOffThePageAndSwapsTheSameNodesBack) {
    CObjectAttributeChangedUndoEvent event;
    event.m_fnSaveState(&m_tool, m_nodes);
    for (int i = 0; i < 3; ++i) {
        Set(Node(i), {9, 9, 9});
    }
    TakeOff(Node(1));
    StartTrace();

    EXPECT_FALSE(event.Undo());
    EXPECT_EQ(ValuesOf(Node(0)), (Values{0, 0, 0}));
    EXPECT_EQ(ValuesOf(Node(1)), (Values{9, 9, 9}));
    EXPECT_EQ(ValuesOf(Node(2)), (Values{9, 9, 9}));
    EXPECT_EQ(Calls(), std::vector<std::string>());
    EXPECT_FALSE(event.Redo());
    EXPECT_EQ(ValuesOf(Node(0)), (Values{9, 9, 9}));
    EXPECT_EQ(event.CopyCount(), 3);

    m_desk.Objects().AddHead(Node(1));
    EXPECT_TRUE(event.Undo());
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(ValuesOf(Node(i)), (Values{0, 0, 0})) << i;
    }
}

TEST_F(AttributeEvents, LookPassesOverANodeThatWasDeleted) {
    CObjectAttributeChangedUndoEvent event;
    event.m_fnSaveState(&m_tool, m_nodes);
    delete Node(0);

    EXPECT_FALSE(event.Undo());
    EXPECT_TRUE(m_tool.sources.empty());
}

TEST_F(AttributeEvents, LookKeepsThePairsMadeBeforeACopyFails) {
    CObjectAttributeChangedUndoEvent event;
    event.SetAccumulate(TRUE);
    platform::ArmFault("copy", true, 2);
    event.m_fnSaveState(&m_tool, m_nodes);
    EXPECT_EQ(event.CopyCount(), 2);
    EXPECT_TRUE(event.IsAccumulating()) << "the capture ended before its last step";
    Set(Node(0), {9, 9, 9});
    Set(Node(1), {9, 9, 9});

    platform::ArmFault("copy", true, 1);
    EXPECT_FALSE(event.Undo());
    EXPECT_EQ(ValuesOf(Node(0)), (Values{0, 0, 0}));
    EXPECT_EQ(ValuesOf(Node(1)), (Values{9, 9, 9}));
    EXPECT_TRUE(event.Undo());
    EXPECT_EQ(ValuesOf(Node(0)), (Values{9, 9, 9}));
    EXPECT_EQ(ValuesOf(Node(1)), (Values{0, 0, 0}));
}

TEST_F(AttributeEvents, AddedObjectGoesAndComesBackToItsPlaceWithItsCompanions) {
    m_desk.Frame(*Node(1), CRect(110, 10, 170, 70));
    ASSERT_EQ(m_desk.Shadow(Node(1), 5, 5, 0), 1);
    Select({Node(2), Node(0)});
    const std::vector<CImgNode*> before = m_desk.Order();
    const std::vector<CImgNode*> selectedBefore = Selected();
    CAddObjectUndoEvent event;
    event.m_fnSaveState(&m_tool);
    CImgNode* pAdded = m_desk.Picture(20, 120, 40, 40);
    m_desk.Frame(*pAdded, CRect(10, 110, 70, 170));
    Select({pAdded});
    const std::vector<CImgNode*> after = m_desk.Order();

    EXPECT_TRUE(event.Undo());
    EXPECT_TRUE(event.IsUndone());
    EXPECT_EQ(m_desk.Order(), before);
    EXPECT_EQ(Selected(), selectedBefore);
    EXPECT_TRUE(event.Redo());
    EXPECT_FALSE(event.IsUndone());
    EXPECT_EQ(m_desk.Order(), after);
    EXPECT_EQ(Selected(), std::vector<CImgNode*>{pAdded});
}

TEST_F(AttributeEvents, AddedObjectsTableIsSavedTwiceClearedAndFilledAgain) {
    FillTable({11, 12, 13});
    StartTrace();
    CAddObjectUndoEvent event;
    event.m_fnSaveState(&m_tool);
    EXPECT_EQ(Calls(), std::vector<std::string>(6, "6")) << "three objects in two snapshots";
    m_desk.Picture(20, 120, 40, 40);
    FillTable({21, 22, 23, 24});
    trace::Take();

    EXPECT_TRUE(event.Undo());
    EXPECT_EQ(Calls(), (std::vector<std::string>{"6", "6", "6", "6", "7", "5", "5", "5", "FlushCacheRect",
                                                 "RepaintViewRect", "kind 51", "kind 45"}));
    EXPECT_EQ(Table(), (std::vector<std::int32_t>{11, 12, 13}));
    EXPECT_TRUE(event.Redo());
    EXPECT_EQ(Table(), (std::vector<std::int32_t>{21, 22, 23, 24}));
}

// Only the look's flag waits for the document.
TEST_F(AttributeEvents, WithoutOwnerOrDocumentNothingIsRestored) {
    CSelectTool stranger;
    CuDisplayUndoEvent noDisplay;
    CObjectAttributeChangedUndoEvent look, noLook;
    CAddObjectUndoEvent added, noneAdded;
    look.m_fnSaveState(&stranger, m_nodes);
    added.m_fnSaveState(&stranger);
    noneAdded.m_fnSaveState(nullptr);
    StartTrace();

    for (CUndoEvent* pEvent :
         std::initializer_list<CUndoEvent*>{&noDisplay, &look, &noLook, &added, &noneAdded}) {
        EXPECT_FALSE(pEvent->Undo()) << pEvent->GetRuntimeClass()->m_lpszClassName;
    }
    EXPECT_FALSE(noDisplay.Redo());
    EXPECT_FALSE(look.IsUndone());
    EXPECT_TRUE(added.IsUndone());
    EXPECT_EQ(Calls(), std::vector<std::string>());
    EXPECT_EQ(m_desk.Order().size(), 3U);
}

/// A text on the page, front-most and selected, whose event was made by its run-time class.
class TextEditEvent : public AttributeEvents {
  protected:
    TextEditEvent() {
        m_pText = m_tool.CreateTextNode("first", "Arial", RGB(1, 2, 3), 16, 2, 1 | 4);
        m_pText->Move(50, 200);
        m_desk.Objects().AddHead(m_pText);
        Set(m_pText, {4, 5, 6});
        Select({m_pText, Node(0)});
        m_pMade.reset(RUNTIME_CLASS(CTextEditChangedUndoEvent)->CreateObject());
        m_pEvent = static_cast<CTextEditChangedUndoEvent*>(m_pMade.get());
        m_pEvent->m_fnSaveState(&m_tool);
    }
    void Type(const char* pszText) {
        m_pText->m_strText = pszText;
        m_pText->m_fnResize(CRect(60, 210, 160, 250));
    }
    std::string Text() {
        CString strText;
        m_pText->m_fnGetText(strText);
        return static_cast<LPCSTR>(strText);
    }

    CTextNode* m_pText;
    std::unique_ptr<CObject> m_pMade;
    CTextEditChangedUndoEvent* m_pEvent;
};

TEST_F(TextEditEvent, SwapsTextAndBoxAndKeepsTheRest) {
    CImgNode* pFrame = m_desk.Frame(*m_pText, CRect(40, 190, 110, 226));
    ASSERT_EQ(m_desk.Shadow(m_pText, 7, 5, 0), 1);
    Type("second");

    EXPECT_TRUE(m_pEvent->Undo());
    EXPECT_TRUE(m_pEvent->IsUndone());
    EXPECT_EQ(Text(), "first");
    EXPECT_EQ(BoundsOf(m_pText), CRect(50, 200, 100, 216));
    EXPECT_EQ(ValuesOf(m_pText), (Values{4, 5, 6}));
    EXPECT_EQ(m_pText->m_nAlignment, text_align_code::Right);
    EXPECT_EQ(m_pText->m_nBold + 2 * m_pText->m_nItalic + 4 * m_pText->m_nUnderline, 5);
    EXPECT_EQ(m_pText->m_shadow.dOffsetX, 7.0);
    EXPECT_EQ(BoundsOf(m_pText->m_pShadowNode), CRect(57, 205, 107, 221)) << "built anew";
    EXPECT_EQ(m_pText->m_pFrameNode, nullptr);
    EXPECT_NE(m_desk.Objects().Find(pFrame), nullptr) << "only the link goes";

    EXPECT_TRUE(m_pEvent->Redo());
    EXPECT_EQ(Text(), "second");
    EXPECT_EQ(BoundsOf(m_pText), CRect(60, 210, 160, 250));
}

TEST_F(TextEditEvent, FailsWithNothingChangedWhereNoTextStandsFirstOrNoneCanBeBuilt) {
    Type("second");
    CTextEditChangedUndoEvent orphan, empty;
    empty.m_fnSaveState(&m_tool);
    Select({Node(0), m_pText});
    empty.m_fnSaveState(&m_tool);

    EXPECT_FALSE(m_pEvent->Undo()) << "a picture is selected first";
    EXPECT_TRUE(m_pEvent->IsUndone());
    EXPECT_FALSE(orphan.Undo());
    Select({m_pText});
    m_pText->m_strText = "";
    CTextEditChangedUndoEvent textless;
    textless.m_fnSaveState(&m_tool);
    Type("second");
    EXPECT_FALSE(textless.Undo()) << "an empty text is none";
    EXPECT_EQ(Text(), "second");
}

} // namespace
