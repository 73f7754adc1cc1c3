#include "stage.h"

#include <gtest/gtest.h>

#include "buffer/buffer_host.h"
#include "dump.h"
#include "image/node_host.h"
#include "platform/counts.h"
#include "platform/faults.h"
#include "scenario_lines.h"

namespace {

using Names = std::vector<std::string>;

Json Looked(CStage& stage, const char* pszDump) {
    Json json;
    EXPECT_TRUE(Dump(stage, pszDump, Records::Keep, json));
    return json;
}

/// What is left of a text besides its node.
struct Held {
    std::size_t nodes = CNodeBookkeeping::LiveNodes();
    unsigned buffers = static_cast<unsigned>(buffer_host::BufferCount());
    unsigned windows = platform::CountLive().windows;
    unsigned gdiObjects = platform::CountLive().gdiObjects;
    unsigned blocks = platform::CountLive().globalBlocks;

    bool operator==(const Held&) const = default;
};

class TextStage : public testing::Test {
  protected:
    TextStage() { m_stage.LoadModule(); }

    Json Node(const std::string& name) {
        for (const Json& node : Looked(m_stage, "nodes")) {
            if (node["name"] == name) {
                return node;
            }
        }
        return nullptr;
    }
    Json Text(const std::string& name) { return Node(name)["text"]; }

    CStage m_stage;
};

TEST_F(TextStage, TextStandsInFrontAndNobodyIsTold) {
    m_stage.AddPicture("A", RGB(255, 0, 0), 0, 0, 100, 100);
    m_stage.UseTool("CTextTool");
    m_stage.Trace();

    ASSERT_NE(m_stage.AddText("T", "one\ntwo", 30, 40), nullptr);

    EXPECT_EQ(m_stage.PageNames(), (Names{"T", "A"}));
    EXPECT_EQ(m_stage.Rect("T").TopLeft(), CPoint(30, 40));
    EXPECT_EQ(Text("T"), Json({{"text", "one\ntwo"},
                               {"font", "Arial"},
                               {"px", 16},
                               {"align", 1000},
                               {"bold", 0},
                               {"italic", 0},
                               {"underline", 0},
                               {"color", "#FFFFFF"},
                               {"effect", nullptr}}));
    EXPECT_EQ(m_stage.Selection(), Names{});
    EXPECT_EQ(m_stage.UndoClasses(), Names{});
    EXPECT_TRUE(m_stage.Trace().empty());
    EXPECT_EQ(Looked(m_stage, "page")["modified"], false);
}

TEST_F(TextStage, EffectsAreDrawnAroundTheTextsTopLeft) {
    const std::pair<TextEffect, const char*> rows[] = {
        {TextEffect::Outline, "outline"}, {TextEffect::Glow, "glow"}, {TextEffect::Emboss, "emboss"}};
    TextOptions options;
    options.pixels = 40;
    m_stage.AddText("plain", "abc", 10, 20, options);
    for (const auto& [effect, pszName] : rows) {
        SCOPED_TRACE(pszName);
        options.effect = effect;

        ASSERT_NE(m_stage.AddText(pszName, "abc", 10, 20, options), nullptr);

        EXPECT_EQ(Text(pszName)["effect"], pszName);
        EXPECT_EQ(m_stage.Rect(pszName).TopLeft(), CPoint(10, 20));
        EXPECT_GT(m_stage.Rect(pszName).Width(), m_stage.Rect("plain").Width());
    }
}

TEST_F(TextStage, AlignmentsAreStoredAsCodesAndStylesAsFlags) {
    const Outcome outcome = RunLines("text L \"a\" 0 0\ntext C \"a\" 0 0 align 1 bold\n"
                                     "text R \"a\" 0 0 underline align 2 italic px 30 font \"Courier New\"\n"
                                     "expect page[\"L\"].text.align == 1000\n"
                                     "expect page[\"C\"].text.align == 1002\n"
                                     "expect page[\"C\"].text.bold == 1\n"
                                     "expect page[\"C\"].text.underline == 0\n"
                                     "expect page[\"R\"].text.align == 1001\n"
                                     "expect page[\"R\"].text.italic == 1\n"
                                     "expect page[\"R\"].text.underline == 1\n"
                                     "expect page[\"R\"].text.px == 30\n"
                                     "expect page[\"R\"].text.font == \"Courier New\"\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST_F(TextStage, OffThePageATextWaitsToBeFreed) {
    const Held before;
    TextOptions options;
    options.offPage = true;

    ASSERT_NE(m_stage.AddText("T", "abc", 10, 20, options), nullptr);
    EXPECT_EQ(m_stage.PageNames(), Names{});
    EXPECT_EQ(Node("T")["rect"][0], 10);

    EXPECT_TRUE(m_stage.FreeNode(m_stage.Node("T")));
    EXPECT_EQ(Held(), before);
}

TEST_F(TextStage, TextThatCannotBeMadeLeavesNothing) {
    TextOptions glowing;
    glowing.effect = TextEffect::Glow;
    const Held before;
    EXPECT_EQ(m_stage.AddText("T", " \n ", 0, 0), nullptr);
    for (const char* pszFault : {"window", "rich-edit", "record", "text-engine", "node", "buffer"}) {
        SCOPED_TRACE(pszFault);
        // Enough passes that making, effect and placing each fail once.
        for (unsigned nAfter = 0; nAfter < 8; nAfter++) {
            platform::ArmFault(pszFault, true, nAfter);
            m_stage.FocusView();
            if (CImgNode* pNode = m_stage.AddText("T", "abc", 0, 0, glowing)) {
                EXPECT_GT(nAfter, 0U);
                delete pNode;
            }
            platform::ClearFaults();
            EXPECT_EQ(Held(), before);
        }
    }
}

TEST(TextCommand, NeedsAToolButNoneCurrent) {
    CStage stage;
    EXPECT_EQ(stage.AddText("T", "abc", 0, 0), nullptr);

    stage.LoadModule();
    EXPECT_NE(stage.AddText("T", "abc", 0, 0), nullptr);
    EXPECT_EQ(stage.CurrentTool(), nullptr);
}

TEST_F(TextStage, NewTextsAreNumberedAndPassNamesThatAreTaken) {
    m_stage.AddText("text#2", "mine", 10, 200);
    m_stage.UseTool("CTextTool");
    for (const CPoint point : {CPoint(100, 50), CPoint(100, 100)}) {
        m_stage.DblClick(point);
        m_stage.Type("new");
        m_stage.EndEditor();
    }

    EXPECT_EQ(m_stage.PageNames(), (Names{"text#3", "text#1", "text#2"}));
}

TEST_F(TextStage, ToolsEditorIsTheOpenOne) {
    m_stage.AddText("T", "one two", 100, 100);
    m_stage.UseTool("CTextTool");

    ASSERT_EQ(m_stage.EditText("T", {100, 100}), 1);
    EXPECT_EQ(m_stage.PageNames(), Names{});
    EXPECT_EQ(Looked(m_stage, "input")["focus"], "editor");
    EXPECT_EQ(m_stage.EditText("T", {100, 100}), 0);
    m_stage.SelectText(0, -1, 0, 2);
    EXPECT_EQ(m_stage.SelectedText(), "one");
    m_stage.Type("No");
    EXPECT_EQ(Looked(m_stage, "editor")["lines"], Json({"No two"}));
    m_stage.EndEditor();

    EXPECT_EQ(m_stage.Editor(), nullptr);
    EXPECT_EQ(m_stage.EndedInputs(), 0);
    EXPECT_EQ(Text("T")["text"], "No two");
}

TEST_F(TextStage, AttributesReachTheToolThatHasThem) {
    m_stage.AddText("T", "abc", 100, 100);
    m_stage.UseTool("CSelectTool");
    EXPECT_EQ(m_stage.SetTextColor(RGB(255, 0, 0)) + m_stage.EditText("T", {100, 100}), 0);

    m_stage.UseTool("CTextTool");
    m_stage.Select({"T"});
    m_stage.SetTextFont("Courier New");
    m_stage.SetTextSize(30);
    m_stage.SetTextAlignment(2);
    m_stage.SetTextStyle(5);
    m_stage.SetTextColor(RGB(255, 0, 0));

    // 30 points are 40 pixels at 96 dpi.
    EXPECT_EQ(Text("T"), Json({{"text", "abc"},
                               {"font", "Courier New"},
                               {"px", 40},
                               {"align", 1001},
                               {"bold", 1},
                               {"italic", 0},
                               {"underline", 1},
                               {"color", "#FF0000"},
                               {"effect", nullptr}}));
}

TEST_F(TextStage, TextOrCompanionOfAnOpenEditorIsNotFreed) {
    m_stage.AddText("T", "abc", 100, 100);
    m_stage.UseTool("CTextTool");
    CImgNode* pText = m_stage.Node("T");
    m_stage.EditText("T", {100, 100});

    EXPECT_FALSE(m_stage.FreeNode(pText));
    m_stage.EndEditor();

    EXPECT_EQ(m_stage.PageNames(), Names{"T"});
}

struct LeaveRow {
    const char* pszName;
    void (*pfnLeave)(CStage&);
    std::size_t nNodes; ///< that the page has then
};

TEST_F(TextStage, ToolIsLeftBeforeWhatItsEditorStandsOn) {
    const LeaveRow rows[] = {
        {"another tool", [](CStage& stage) { stage.UseTool("CSelectTool"); }, 1},
        {"a new page", [](CStage& stage) { stage.NewPage(100, 100); }, 0},
        {"the module", [](CStage& stage) { stage.DetachModule(); }, 1},
    };
    for (const LeaveRow& row : rows) {
        SCOPED_TRACE(row.pszName);
        m_stage.LoadModule();
        m_stage.NewPage(720, 480);
        m_stage.AddText("T", "abc", 100, 100);
        m_stage.UseTool("CTextTool");
        m_stage.EditText("T", {100, 100});
        m_stage.Type("x");

        row.pfnLeave(m_stage);

        EXPECT_EQ(m_stage.Editor(), nullptr);
        EXPECT_EQ(m_stage.PageNames().size(), row.nNodes);
        EXPECT_EQ(Looked(m_stage, "nodes").size(), row.nNodes);
    }
    EXPECT_EQ(Text("T")["text"], "xabc");
}

TEST(TextLife, StageThatEndsWithAnEditorOpenLeavesNothing) {
    // A host in the tool's place as notify target must not be told when it is gone itself.
    for (const char* pszLast : {"type \"x\"\n", "editor m_fnRegisterNotifyObject host\n"}) {
        SCOPED_TRACE(pszLast);
        const Held before;

        const Outcome outcome =
            RunLines(std::string("tool CTextTool\ntext T \"abc\" 100 100\nedit T 100 100\n") + pszLast);

        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_EQ(Held(), before);
    }
}

TEST_F(TextStage, TextsOutliveTheModule) {
    TextOptions options;
    options.effect = TextEffect::Outline;
    options.pixels = 60;
    m_stage.AddText("T", "I", 100, 100, options);
    m_stage.AddPicture("A", RGB(255, 0, 0), 0, 0, 50, 50);
    m_stage.UseTool("CSelectTool");
    m_stage.Select({"A", "T"});
    const Json before = Looked(m_stage, "nodes");
    const CPoint ptMiddle = m_stage.Rect("T").CenterPoint();

    m_stage.DetachModule();
    m_stage.SetBaseColor(RGB(0, 0, 255));

    EXPECT_EQ(Looked(m_stage, "nodes"), before);
    EXPECT_EQ(m_stage.PageNames(), (Names{"A", "T"}));
    EXPECT_EQ(m_stage.Selection(), (Names{"A", "T"}));
    EXPECT_EQ(m_stage.Pixel(ptMiddle.x, ptMiddle.y), RGB(255, 255, 255));
}

TEST(TextOperations, AnswerNodesByTheirNames) {
    const Outcome outcome = RunLines("tool CTextTool\ntext T \"abc\" 100 100\npicture P #FF0000 0 0 10 10\n"
                                     "op CreateTextNode \"new\" \"Arial\" #00FF00 20 2 3\n"
                                     "op CreateTextNode \" \" \"Arial\" #00FF00 20 2 3\n"
                                     "op RecolorTextNode T #FFFFFF\n"
                                     "op RecolorTextNode T #112233\n"
                                     "op ReplaceTextNode P text#1 0\n"
                                     "op ReplaceTextNode T text#1 0\n"
                                     "op CopyNodeLook T none\n"
                                     "op CopyNodeLook T P\n"
                                     "op ResizeTextNode P [0,0,90,90] 4\n"
                                     "op ResizeTextNode T [0,0,900,900] 4\n"
                                     "op EditTextNode P 1 1\n"
                                     "op m_fnRemoveTextEffect 1 1\n"
                                     "op main:53 T 100 100\n"
                                     "expect editor.text == new\n");

    EXPECT_EQ(outcome.out, "op CreateTextNode \"new\" \"Arial\" #00FF00 20 2 3 -> text#1\n"
                           "op CreateTextNode \" \" \"Arial\" #00FF00 20 2 3 -> none\n"
                           "op RecolorTextNode T #FFFFFF -> none\n"
                           "op RecolorTextNode T #112233 -> T\n"
                           "op ReplaceTextNode P text#1 0 -> 0\n"
                           "op ReplaceTextNode T text#1 0 -> 1\n"
                           "op CopyNodeLook T none -> 0\n"
                           "op CopyNodeLook T P -> 1\n"
                           "op ResizeTextNode P [0,0,90,90] 4 -> none\n"
                           "op ResizeTextNode T [0,0,900,900] 4 -> text#2\n"
                           "op EditTextNode P 1 1 -> 0\n"
                           "op m_fnRemoveTextEffect 1 1 -> none\n"
                           "op main:53 T 100 100 -> 1\n");
    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(TextOperations, EditTextNodeIsTheTextToolsAlone) {
    const Outcome outcome = RunLines("tool CTextShadowTool\ntext T \"abc\" 0 0\nop EditTextNode T 1 1\n");

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.err, "t.scn:3: the current tool has no operation EditTextNode\n");
}

TEST(TextOperations, ExcludedNodeThatIsTakenUpIsForgotten) {
    const Outcome outcome = RunLines("tool CTextTool\ntext T \"abc\" 0 0\ntext N \"new\" 0 0 off-page\n"
                                     "exclude N\nop ReplaceTextNode T N 0\nexpect tool.excluded == null\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

} // namespace
