#include <algorithm>

#include <gtest/gtest.h>

#include "scenario/commands.h"
#include "scenario_lines.h"

namespace {

constexpr const char* NotBuilt[] = {
    "shadow-mode 1", "frame query",        "service blend 50", "service duplicate-scaled A 2",
    "op ops:38",     "op m_fnRemoveFrame",
};

class NotBuiltLine : public testing::TestWithParam<const char*> {};

TEST_P(NotBuiltLine, EndsWithStatusTwoAndSaysSo) {
    const std::string line = GetParam();

    const Outcome outcome = RunLines("\n" + line + "\necho never\n");

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err.rfind("t.scn:2: not built yet: " + line.substr(0, line.find(' ')), 0), 0U)
        << outcome.err;
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1);
}

INSTANTIATE_TEST_SUITE_P(Rows, NotBuiltLine, testing::ValuesIn(NotBuilt));

constexpr const char* Malformed[] = {
    "no-such-command",
    "\"page\" 10 10",
    "dpi 0",
    "codepage 1251",
    "default-font",
    "default-font none Arial",
    "page",
    "page 10",
    "page 10 x",
    "page 10 2.5",
    "page 0 10",
    "page 10 10 zoom 0",
    "page 10 10 extra",
    "scroll 1",
    "base no-such-file.png",
    "component f.cmp",
    "component f.cmp A 0 0 1 none",
    "component f.cmp A 0 0 1 1 none mask",
    "component f.cmp A 0 0 0 1 #FFFFFF",
    "component f.cmp A 0 0 32767 32767 #FFFFFF",
    "component f.cmp A 0 0 1 1 no-such-file.png",
    "component no/such/f.cmp A 0 0 1 1 none",
    "picture A",
    "picture A #FF0000 1 2 3",
    "picture A #FF0000 1 2 0 4",
    "picture A #FF0000 1 2 3 4 mask square",
    "picture A #FF0000 1 2 3 4 rounded",
    "picture A no-such-file.png 1 2 3 4",
    "placeholder P 1 2 3",
    "text T",
    "text T hello 1 2",
    "text T \"hello\" 1",
    "text T \"hello\" 1 2 px 0",
    "text T \"hello\" 1 2 align 3",
    "text T \"hello\" 1 2 effect shine",
    "text T \"hello\" 1 2 slanted",
    "text T \" \" 1 2",
    "attr size 12",
    "attr weight 12",
    "attr color red",
    "edit A 10 10",
    "edit none 10 10",
    "free A",
    "exclude A",
    "handover 6 1 CSelectTool",
    "handover 7 4 CNoTool",
    "panel 13",
    "page-shown light",
    "property CSelectTool 13",
    "panel-set volume 11",
    "panel-set shadow-range 1 2 3",
    "panel-set text Arial 12 0 0 #FFFFFF",
    "panel-set clipboard 1 1",
    "fit-to-placeholder A 1",
    "bus remove",
    "bus remove x",
    "bus remove 7/{123}",
    "bus add 51",
    "bus forget 7",
    "fault",
    "fault no-such-fault",
    "fault node once 3",
    "fault node after -1",
    "module unload",
    "tool CNoTool",
    "tool CSelectTool redraw 2",
    "down 1",
    "drag 1 2 3",
    "drag 1 2 3 4 steps 0",
    "queue wheel 1 1",
    "pump -1",
    "rclick 1 1",
    "key",
    "key F13",
    "key 256",
    "key LEFT 3",
    "key LEFT x",
    "hold LEFT both",
    "type hello",
    "char -1",
    "wait -5",
    "focus window",
    "focus editor",
    "editor",
    "editor new 1 2",
    "editor new 1 2 hello",
    "editor new 1 2 \"hello\" shown",
    "editor destroy now",
    "editor m_fnIsBold",
    "editor m_fnNoSuchOperation",
    "convert pt2px",
    "convert pt2mm 3",
    "convert dpi 96",
    "clipboard hello",
    "drop \"x\" 1",
    "hover x 1 1",
    "hover \"x\" 1 1 source",
    "hover \"x\" 1 1 shift",
    "leave now",
    "dragtext 1 1 2",
    "export richtext",
    "export richtext r.bin",
    "export mask m.png",
    "export image i.png scale 2",
    "select",
    "select A",
    "select-only none",
    "op NoSuchOperation",
    "op main:54",
    "op ops:39",
    "op CreateTextNode",
    "op ClearSelection",
    "ask kind CNoTool {0E1C6DC7-1DDE-4881-8AEE-E495DB635354} 1",
    "ask state CSelectTool {0E1C6DC7-1DDE-4881-8AEE-E495DB635354}",
    "service",
    "mark",
    "mark attributes",
    "mark attributes-of 5",
    "dump",
    "dump weather",
    "shot",
    "shot s.png 1 2 3",
    "shot s.png 700 400 100 100",
    "render r.png scale 0",
    "expect",
    "expect page.width ==",
    "expect page.width ~ 3",
    "expect weather == 3",
    "expect page. == 3",
    "expect page.nodes[x] == 3",
    "expect page.nodes[0 == 3",
    "expect page.nodes[0]] == 3",
    "expect page[\"A == 3",
    "expect page[\"A\"x] == 3",
    "expect pixel 1 1 == red",
    "expect pixel 9999 1 == #000000",
    "undo 2",
};

class MalformedLine : public testing::TestWithParam<const char*> {};

TEST_P(MalformedLine, EndsWithStatusTwoAndOneLine) {
    const Outcome outcome = RunLines(std::string("echo first\n") + GetParam() + "\necho never\n");

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "first\n");
    EXPECT_EQ(outcome.err.rfind("t.scn:2: ", 0), 0U) << outcome.err;
    EXPECT_EQ(outcome.err.find("not built yet"), std::string::npos) << outcome.err;
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1);
}

INSTANTIATE_TEST_SUITE_P(Rows, MalformedLine, testing::ValuesIn(Malformed));

TEST(Grammar, EveryCommandHasAUsageThatStartsWithItsName) {
    for (const char* pszName :
         {"codepage", "picture", "text", "drag", "editor", "dragtext", "expect", "accelerator"}) {
        const CommandRow* pRow = FindCommand(pszName);
        ASSERT_NE(pRow, nullptr) << pszName;
        EXPECT_EQ(std::string(pRow->pszUsage).rfind(pszName, 0), 0U) << pRow->pszUsage;
    }
}

TEST(Grammar, BlankLinesAndCommentsDoNothing) {
    const Outcome outcome = RunLines("\n   \n# nothing\n\t# nothing either\n");

    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out + outcome.err, "");
}

TEST(Grammar, CarriageReturnsAtLineEndsAreBlanks) {
    const Outcome outcome = RunLines("echo one\r\nundo\r\n");

    EXPECT_EQ(outcome.out, "one\nundo -> 0\n");
}

} // namespace
