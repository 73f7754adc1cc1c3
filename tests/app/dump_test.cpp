#include "dump.h"

#include <gtest/gtest.h>

#include "code_page.h"
#include "scenario_lines.h"

namespace {

TEST(CodePage, AsciiStaysAndLatinLettersBecomeTwoBytes) {
    EXPECT_EQ(ToUtf8("Az 09\n"), "Az 09\n");
    EXPECT_EQ(ToUtf8("\xE9"), "\xC3\xA9");
    EXPECT_EQ(ToUtf8("\xFF\xA0"), "\xC3\xBF\xC2\xA0");
}

TEST(CodePage, EuroAndQuotesComeFromTheMiddle) {
    EXPECT_EQ(ToUtf8("\x80"), "\xE2\x82\xAC");
    EXPECT_EQ(ToUtf8("\x93\x94"), "\xE2\x80\x9C\xE2\x80\x9D");
    EXPECT_EQ(ToUtf8("\x83"), "\xC6\x92");
    EXPECT_EQ(ToUtf8("\x9F"), "\xC5\xB8");
}

TEST(CodePage, BytesThatAreNoCharacterAreEscaped) {
    EXPECT_EQ(ToUtf8("a\x81z"), "a\\x81z");
    EXPECT_EQ(ToUtf8("\x8D\x8F\x90\x9D"), "\\x8D\\x8F\\x90\\x9D");
}

TEST(Dump, NamesAreWrittenFromTheCodePage) {
    const Outcome outcome = RunLines("picture \"\\xE9\\x81\" #FF0000 0 0 40 40\ntool CSelectTool\nselect "
                                     "\"\\xE9\\x81\"\ndump selection\n");

    EXPECT_EQ(outcome.out, "selection [\"\xC3\xA9\\\\x81\"]\n") << outcome.err;
}

TEST(Dump, PageOfOnePictureHasEveryKeyInOrder) {
    CStage stage;
    CImgNode* pNode = stage.AddPicture("A", RGB(255, 0, 0), 10, 20, 30, 40);
    Json json;

    ASSERT_TRUE(Dump(stage, "page", Records::Keep, json));

    EXPECT_EQ(JsonText(json),
              "{\"width\":720,\"height\":480,\"modified\":false,\"nodes\":[{\"id\":" +
                  std::to_string(pNode->m_nId) +
                  ",\"name\":\"A\",\"type\":\"picture\",\"owner\":null,\"rect\":[10,20,40,60],"
                  "\"brightness\":0,\"contrast\":0,\"transparency\":0,\"frame\":null,\"shadow\":null,"
                  "\"frameRect\":null,\"placeholderRect\":null,\"frameFollows\":0,"
                  "\"shadowParams\":null,\"text\":null}]}");
}

TEST(Dump, PlaceholderHasTheEmptyFrameOfItsOwnSizeBeforeIt) {
    CStage stage;
    stage.AddPlaceholder("P", 10, 20, 30, 40);
    Json json;

    ASSERT_TRUE(Dump(stage, "page", Records::Keep, json));

    ASSERT_EQ(json["nodes"].size(), 2U);
    EXPECT_EQ(json["nodes"][0]["name"], "P.frame");
    EXPECT_EQ(json["nodes"][0]["type"], "frame");
    EXPECT_EQ(json["nodes"][0]["owner"], "P");
    EXPECT_EQ(json["nodes"][0]["rect"], Json::array({10, 20, 40, 60}));
    EXPECT_EQ(json["nodes"][1]["frame"], "P.frame");
    EXPECT_EQ(json["nodes"][1]["frameFollows"], 1);
    EXPECT_EQ(json["nodes"][1]["placeholderRect"], Json::array({10, 20, 40, 60}));
}

TEST(Dump, ShadowParametersOutliveTheShadow) {
    CStage stage;
    CImgNode* pNode = stage.AddPicture("A", RGB(255, 0, 0), 0, 0, 10, 10);
    pNode->m_shadow = {4.0, 2.5, 3.0, 50, RGB(1, 2, 3)};
    Json json;

    ASSERT_TRUE(Dump(stage, "page", Records::Keep, json));

    EXPECT_EQ(JsonText(json["nodes"][0]["shadowParams"]),
              R"({"dx":4,"dy":2.5,"softness":3,"transparency":50,"color":"#010203"})");
}

TEST(Dump, LinksToNodesThatAreGoneOrAreNotTheNodesOwnAreNull) {
    CStage stage;
    CImgNode* pOwner = stage.AddPlaceholder("P", 10, 20, 30, 40);
    CImgNode* pCopy = pOwner->Duplicate();
    pCopy->m_pFrameNode = pOwner->m_pFrameNode;
    pOwner->m_pShadowNode = pCopy->m_pShadowNode = new CImgNode(nullptr);
    delete pOwner->m_pShadowNode;
    Json json;
    ASSERT_TRUE(Dump(stage, "nodes", Records::Keep, json));
    EXPECT_TRUE(json[0]["frame"] == "P.frame" && json[2]["frame"].is_null());
    EXPECT_TRUE(json[0]["shadow"].is_null() && json[2]["shadow"].is_null() && !stage.Node("P.shadow"));
}

TEST(Dump, InputTellsFocusKeysQueueAndTimers) {
    CStage stage;
    stage.Hold(VK_LEFT, KeyStates::Async);
    stage.Hold('A');
    stage.Hold(VK_DELETE, KeyStates::Sync);
    stage.QueueMove({5, 5});
    ::SetTimer(stage.Desk().View()->m_hWnd, 7, 250, nullptr);
    Json json;

    ASSERT_TRUE(Dump(stage, "input", Records::Keep, json));

    EXPECT_EQ(JsonText(json), R"({"capture":null,"focus":"view","held":["LEFT","A"],"queued":1,)"
                              R"("timers":[{"id":7,"ms":250}]})");
}

TEST(Dump, CursorStartsAsTheArrow) {
    CStage stage;
    Json json;

    ASSERT_TRUE(Dump(stage, "cursor", Records::Keep, json));

    EXPECT_EQ(JsonText(json), R"({"current":32512,"class":32512,"waits":0})");
}

TEST(Dump, ToolTellsClassKindPageAndExcludedNode) {
    CStage stage;
    stage.LoadModule();
    stage.AddPicture("A", RGB(255, 0, 0), 0, 0, 10, 10);
    stage.Exclude(stage.Node("A"));
    stage.UseTool("CTextComboTool");
    Json json;

    ASSERT_TRUE(Dump(stage, "tool", Records::Keep, json));

    EXPECT_EQ(JsonText(json), R"({"class":"CTextComboTool","kind":"edit:13","panelKind":12,"excluded":"A"})");
}

TEST(Dump, FrameIsMadeBehindItsObject) {
    CStage stage;
    CImgNode* pObject = stage.AddPlaceholder("P", 10, 20, 30, 40);

    EXPECT_LT(pObject->m_nId, stage.Node("P.frame")->m_nId);
}

TEST(Dump, TraceStillNamesTheNodesOfTheFormerPage) {
    const Outcome outcome =
        RunLines("picture A #FF0000 10 10 40 40\ntool CSelectTool\ndump trace\nop AddToSelection A\n"
                 "page 100 100\npicture A #FF0000 10 10 40 40\nexpect trace[0].op == selection.AddTail\n"
                 "expect trace[0].args == [A]\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(Dump, CallsStandUnderTheKindThatTheToolSearched) {
    const Outcome outcome =
        RunLines("picture A #FF0000 10 10 40 40\npanel 7+12\ntool CSelectTool\ndump calls\nop host-reset\n"
                 "expect calls[0].kind == 1\nexpect calls[0].interface == "
                 "{461E83E3-1A84-4B93-89FB-7C973F28275A}\nclick 30 30\nexpect calls[1].kind == 7\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(Dump, ResourcesCountWhatLives) {
    CStage stage;
    Json before;
    ASSERT_TRUE(Dump(stage, "resources", Records::Keep, before));

    stage.AddPicture("A", RGB(255, 0, 0), 0, 0, 10, 10);
    PictureOptions ellipse;
    ellipse.ellipseMask = true;
    stage.AddPicture("B", RGB(255, 0, 0), 0, 0, 10, 10, ellipse);
    Json after;
    ASSERT_TRUE(Dump(stage, "resources", Records::Keep, after));

    EXPECT_EQ(after["nodes"].get<int>(), before["nodes"].get<int>() + 2);
    EXPECT_EQ(after["buffers"].get<int>(), before["buffers"].get<int>() + 3);
    EXPECT_EQ(after["offPage"], 0);
    EXPECT_EQ(after["windows"], 1);
    EXPECT_EQ(after["undoEvents"], 0);
}

TEST(Dump, UndoEventTellsClassToolAndState) {
    CStage stage;
    stage.LoadModule();
    stage.AddPicture("A", RGB(255, 0, 0), 10, 10, 40, 40);
    stage.UseTool("CSelectTool");
    stage.Select({"A"});
    stage.Drag({30, 30}, {60, 40});
    Json json;

    ASSERT_TRUE(Dump(stage, "undo", Records::Keep, json));
    ASSERT_EQ(json["undo"].size(), 1U);
    EXPECT_EQ(json["undo"][0]["class"], "CMoveChangedUndoEvent");
    EXPECT_EQ(json["undo"][0]["tool"], "CSelectTool");
    EXPECT_EQ(json["undo"][0]["undone"], false);

    stage.Undo();
    ASSERT_TRUE(Dump(stage, "undo", Records::Keep, json));
    ASSERT_EQ(json["redo"].size(), 1U);
    EXPECT_EQ(json["redo"][0]["undone"], true);
}

TEST(Dump, PanelsKeepTheLastCallOfEachOperation) {
    CStage stage;
    stage.LoadModule();
    stage.AddPicture("A", RGB(255, 0, 0), 10, 10, 40, 40);
    stage.UseTool("CSelectTool");
    stage.Click({30, 30});
    Json json;

    ASSERT_TRUE(Dump(stage, "panels", Records::Keep, json));

    EXPECT_EQ(json["{D6E291AB-E666-4473-9907-B9C62879E72D}"]["1"], Json::array({4}));
}

TEST(Dump, UnknownNameIsNone) {
    CStage stage;
    Json json;

    EXPECT_FALSE(Dump(stage, "weather", Records::Keep, json));
}

} // namespace
