// What fails in an editing session loses neither the object nor the typed text, and leaves nothing behind.
#include <array>
#include <memory>

#include "editor_binding.h"
#include "platform/faults.h"
#include "text/tools/text_tool.h"
#include "text_help.h"

namespace {

/// The picture F, T with frame and shadow, and U.
class TextFailure : public testing::Test {
  protected:
    TextFailure() {
        m_stage.AddText("U", "World", 100, 300);
        m_stage.AddText("T", "Hello", 100, 100);
        m_stage.RealShadow("T");
        m_stage.Frame("T", {80, 90, 200, 140});
        m_stage.Square("F", 300, 100);
        m_stage.Select({"T"});
        m_order = m_stage.PageNames();
        m_rcText = m_stage.Rect("T");
        m_before = CTextStage::CountLiving();
    }
    void ExpectAsBefore(const std::string& what) {
        platform::ClearFaults();
        EXPECT_EQ(m_stage.Editor(), nullptr) << what;
        EXPECT_EQ(m_stage.PageNames(), m_order) << what;
        EXPECT_EQ(m_stage.Rect("T"), m_rcText) << what;
        EXPECT_STREQ(m_stage.Text("T").m_strText, "Hello") << what;
        EXPECT_EQ(CTextStage::CountLiving(), m_before) << what;
        EXPECT_TRUE(m_stage.ShowsTruePicture()) << what;
    }
    CTextStage m_stage;
    Lines m_order;
    CRect m_rcText;
    Living m_before{};
};

TEST_F(TextFailure, ObjectThatCannotBeOpenedGoesBackSelected) {
    for (const char* pszFault : {"window", "rich-edit"}) {
        platform::ArmFault(pszFault, false, 0);
        EXPECT_EQ(m_stage.Edit("T"), 0) << pszFault;
        ExpectAsBefore(pszFault);
        EXPECT_EQ(m_stage.Selection(), Lines{"T"}) << pszFault;
    }
}

TEST_F(TextFailure, WhatIsNoTextToEditIsRefused) {
    for (const char* pszNode : {"F", "T.frame", "T.shadow", "nobody"}) {
        EXPECT_EQ(m_stage.EditText(pszNode, {110, 110}), 0) << pszNode;
        ExpectAsBefore(pszNode);
    }
    m_stage.AddText("C", "companion", 300, 300);
    m_stage.Text("C").m_pOwner = m_stage.Node("F");
    EXPECT_EQ(m_stage.EditText("C", {310, 310}), 0);
    m_stage.Text("C").m_pOwner = nullptr;
    EXPECT_EQ(CDesk::Query<ITextEditEntry>(m_stage.CurrentTool())->EditTextNode(m_stage.Node("T"), nullptr),
              0);
}

TEST_F(TextFailure, SecondObjectIsRefusedWhileAnEditorIsOpen) {
    EXPECT_EQ(m_stage.Edit("T"), 1);

    EXPECT_EQ(m_stage.EditText("U", {110, 310}), 0);

    EXPECT_EQ(m_stage.EditorText(), "Hello");
    EXPECT_EQ(m_stage.PageNames(), (Lines{"F", "U"}));
    m_stage.EndEditor();
    ExpectAsBefore("commit");
}

// The engine, the node and the windows of the hidden layout; display values that the new object does not
// take.
constexpr std::array<const char*, 6> CommitFaults = {"text-engine", "node",   "window",
                                                     "rich-edit",   "buffer", "display-values"};

TEST_F(TextFailure, FailedCommitPutsTheObjectBackAndOffersTheTypedTextAgain) {
    m_stage.Text("T").m_fnUpdateBCAndT(10, 20, 30);
    for (const char* pszFault : CommitFaults) {
        m_stage.Edit("T");
        m_stage.WriteInEditor("typed in vain");
        platform::ArmFault(pszFault, false, 0);
        m_stage.EndEditor();
        ExpectAsBefore(pszFault);
        EXPECT_EQ(m_stage.Text("T").m_nTransparency, 30) << pszFault;

        m_stage.Edit("U");
        EXPECT_EQ(m_stage.EditorText(), "World") << pszFault << ": it is not this one's";
        m_stage.EndEditor();
        m_stage.Edit("T");
        EXPECT_EQ(m_stage.EditorText(), "typed in vain") << pszFault;
        m_stage.WriteInEditor("Hello");
        m_stage.EndEditor();
        ExpectAsBefore(pszFault);
    }
}

TEST_F(TextFailure, NewTextThatCannotBeMadeIsOfferedToTheNextNewText) {
    for (const char* pszFault : {"text-engine", "node"}) {
        m_stage.WriteAt({500, 300}, "typed in vain");
        platform::ArmFault(pszFault, false, 0);
        m_stage.EndEditor();
        platform::ClearFaults();
        EXPECT_EQ(m_stage.PageNames(), m_order) << pszFault;

        m_stage.SecondPress({400, 200});
        EXPECT_EQ(m_stage.EditorText(), "typed in vain") << pszFault;
        m_stage.WriteInEditor("");
        m_stage.EndEditor();
        m_stage.SecondPress({400, 200});
        EXPECT_EQ(m_stage.EditorText(), "") << pszFault << ": it is offered once";
        m_stage.EndEditor();
    }
}

TEST_F(TextFailure, EditorThatCannotBeMadeLeavesTheToolIdle) {
    m_stage.Select({});
    for (const char* pszFault : {"window", "rich-edit"}) {
        platform::ArmFault(pszFault, false, 0);
        m_stage.SecondPress({500, 300});
        ExpectAsBefore(pszFault);
    }
    m_stage.SecondPress({500, 300});
    EXPECT_NE(m_stage.Editor(), nullptr);
}

TEST_F(TextFailure, CommitWithoutPanelsGivesAPlainText) {
    m_stage.SecondPress({500, 300});
    m_stage.Type("new");
    m_stage.HideKind(kind::TextPage);
    m_stage.EndEditor();

    EXPECT_EQ(m_stage.Text("text#1").m_nTransparency, 0);
    EXPECT_EQ(m_stage.Node("text#1")->m_pShadowNode, nullptr);
}

TEST_F(TextFailure, EndOfAnotherEditorIsNotTheToolsOwn) {
    m_stage.Edit("T");
    const std::unique_ptr<CInplaceEditor> pOther(MakeEditor(*m_stage.EditorOperations()));

    static_cast<CTextTool*>(m_stage.CurrentTool())->OnInputEnded(pOther.get());

    EXPECT_EQ(m_stage.EditorText(), "Hello");
    EXPECT_EQ(m_stage.PageNames(), (Lines{"F", "U"}));
}

TEST_F(TextFailure, PageThatGoesMeanwhileTakesEverythingAlong) {
    m_stage.Edit("T");
    m_stage.WriteInEditor("changed");
    m_stage.NewPage(720, 480);
    EXPECT_EQ(CTextStage::CountLiving().nodes, 0U);
    EXPECT_EQ(m_stage.PageNames(), Lines{});
    EXPECT_EQ(CTextStage::CountLiving().windows, m_before.windows);

    m_stage.WriteAt({300, 200}, "new");
    EXPECT_EQ(m_stage.DetachModule(), 1);
}

} // namespace
