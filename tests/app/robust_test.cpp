#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "buffer/buffer_host.h"
#include "image/node_host.h"
#include "scenario/error.h"
#include "scenario_lines.h"

namespace {

/// Neighbours from here make more of the grammar's corners than single random bytes would.
constexpr const char* Pieces[] = {
    "page ",
    "picture ",
    "select ",
    "expect ",
    "dump ",
    "op ",
    "drag ",
    "A ",
    "page[\"A",
    "\"] ",
    "\"",
    "\\",
    "\\x4",
    "[",
    "]",
    ",",
    "#FF0000 ",
    "# ",
    "{",
    "}",
    "-1 ",
    "1e9 ",
    "99999999999 ",
    "0.5 ",
    "none ",
    "== ",
    "7+12 ",
    "\r",
    "\t",
    "\n",
    "tool CSelectTool\n",
    "key LEFT x3\n",
    "undo\n",
    "click 5 5\n",
    "editor ",
    "editor new 9 9 \"a\\nb\"\n",
    "type \"x\\n\"\n",
    "drop \"x\" 9 9\n",
};

std::string Garbage(std::mt19937& random) {
    std::string text;
    for (unsigned n = random() % 40; n > 0; n--) {
        if (random() % 3 == 0) {
            text += static_cast<char>(random() % 256);
        } else {
            text += Pieces[random() % std::size(Pieces)];
        }
    }
    return text;
}

TEST(Garbage, EndsWithAStatusAndAtMostOneLineOfError) {
    std::mt19937 random(20);
    for (int n = 0; n < 300; n++) {
        const std::string text = Garbage(random);

        const Outcome outcome = RunLines(text);

        const auto nErrors = std::count(outcome.err.begin(), outcome.err.end(), '\n');
        EXPECT_EQ(nErrors, outcome.status == 0 ? 0 : 1) << text << '\n' << outcome.err;
    }
}

TEST(Garbage, IsLexedOrRefused) {
    std::mt19937 random(21);
    int nLexed = 0;
    int nRefused = 0;
    for (int n = 0; n < 20000; n++) {
        try {
            Lex(Garbage(random));
            nLexed++;
        } catch (const CScenarioError&) {
            nRefused++;
        }
    }
    EXPECT_GT(nLexed, 0);
    EXPECT_GT(nRefused, 0);
}

struct RefusedRow {
    std::string line;
    const char* pszError;
};

TEST(HostileLine, IsRefusedInOneReadableLine) {
    std::ostringstream tails;
    std::fill_n(std::ostream_iterator<std::string>(tails), 50'000, ".frame");
    const RefusedRow rows[] = {
        {std::string(10'000'000, 'a'), "t.scn:1: the line is longer than a mebibyte\n"},
        {"echo " + std::string(100'000, '['), "t.scn:1: lists stand too deep in each other\n"},
        {std::string("no\0such", 7), "t.scn:1: unknown command: no?such\n"},
        {"select \"a\\nb\"", "t.scn:1: NAME is no name; usage: select NAME...|none\n"},
        {"bus \"a\\r\\nb\"", "t.scn:1: remove, restore or add is unknown: a??b; usage: "},
        {"exclude A" + tails.str(), "t.scn:1: no node is called A.frame.frame"},
        {"module load\nfault tool\nbus add 38", "t.scn:3: no memory for the receiver\n"},
        {"module load\nfault buffer\nbase #FF0000", "t.scn:3: no memory for the base image\n"},
        {"dump [A]B", "t.scn:1: a blank is missing behind a list\n"},
    };
    for (const RefusedRow& row : rows) {
        const Outcome outcome = RunLines(row.line);

        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.err.rfind(row.pszError, 0), 0U) << outcome.err;
        EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1);
    }
}

TEST(HostileLine, LongMessageIsCut) {
    const Outcome outcome = RunLines(std::string(5000, 'a'));

    EXPECT_EQ(outcome.err.size(), std::string("t.scn:1: ").size() + 1000 + std::string("...\n").size());
}

TEST(HostileNumber, OutOfRangeIsRefused) {
    for (const char* pszLine : {"drag 0 0 32768 0", "down -32768 0", "pointer 0 40000", "page 32767 32767",
                                "view 20000 20000", "page 10000 10000 zoom 3",
                                "picture A #FF0000 0 0 32767 32767", "page 100 100\nrender r.png scale 300",
                                "page 32767 4096", "page 1000 1000 zoom 11", "view 32767 4000"}) {
        EXPECT_EQ(RunLines(pszLine).status, 2) << pszLine;
    }
}

TEST(HostileNumber, DragsFarthestPointsAreReached) {
    const Outcome outcome = RunLines("drag -32767 -32767 32767 32767 steps 100000\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(ModuleLife, LoadingTwiceTellsTheStateAgain) {
    EXPECT_EQ(RunLines("module load\nmodule load\n").out,
              "module load -> 1 resource=loaded tools=11\nmodule load -> 1 resource=loaded tools=11\n");
}

TEST(ModuleLife, DetachedInMidDragItLeavesThePageAndCanComeBack) {
    const Outcome outcome = RunLines(
        "picture A #FF0000 10 10 40 40\ntool CSelectTool\nclick 30 30\ndown 30 30\nmove 60 60\nmodule "
        "detach\n"
        "expect input.capture == none\nexpect undo.undo.length == 0\nexpect resources.undoEvents == 0\n"
        "expect page.A.rect == [10,10,50,50]\nup 60 60\nkey LEFT\nwait 100\nundo\nscroll 1 1\npage 50 50\n"
        "module load\nexpect last.tools == 11\npicture A #FF0000 10 10 20 20\ntool CSelectTool\nclick 15 15\n"
        "expect selection == [A]\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(Freed, NodeIsForgottenByHistoryAndExclusion) {
    const Outcome outcome =
        RunLines("picture A #FF0000 10 10 40 40\ntool CSelectTool\nselect A\n"
                 "drag 30 30 60 60\nexclude A\nop m_fnDelete\nfree A\n"
                 "expect tool.excluded == none\nexpect nodes == []\nundo\nexpect last == 0\n"
                 "select none\nclick 60 60\nexpect selection == []\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(Freed, NodeIsFoundAndTakenByNoList) {
    CStage stage;
    CImgNode* pNode = stage.AddPicture("A", RGB(255, 0, 0), 10, 10, 40, 40);
    CImgNodeList* pList = stage.Desk().Document()->GetObjList();
    pList->RemoveAll();
    stage.FreeNode(pNode);

    EXPECT_EQ(pList->Find(pNode), nullptr);
    EXPECT_EQ(pList->AddHead(pNode), nullptr);
    EXPECT_FALSE(CNodeBookkeeping::IsLive(pNode));
}

} // namespace
