#include "scenario/expect.h"

#include <gtest/gtest.h>

#include "scenario/error.h"
#include "scenario_lines.h"

namespace {

struct HoldsRow {
    Json found;
    const char* pszOp;
    Json value;
    bool bHolds;
};

TEST(ExpectOperator, ComparesNumbersTextsListsAndNothing) {
    const HoldsRow rows[] = {
        {3, "==", 3, true},
        {3, "==", 3.0, true},
        {3, "==", "3", false},
        {3, "!=", 4, true},
        {true, "==", 1, true},
        {false, "==", 1, false},
        {2, "<", 10, true},
        {10, "<", 2, false},
        {2, "<=", 2, true},
        {2, ">", 2, false},
        {2, ">=", 2, true},
        {2.5, ">", 2, true},
        {"b", ">", "a", true},
        {nullptr, "==", nullptr, true},
        {nullptr, "<", 1, false},
        {nullptr, ">=", 1, false},
        {Json::array({1, 2}), "==", Json::array({1, 2}), true},
        {Json::array({1, 2}), "==", Json::array({2, 1}), false},
        {Json::array({1, 2}), "contains", 2, true},
        {Json::array({1, 2}), "contains", 3, false},
        {"picture", "contains", "ict", true},
        {"picture", "contains", "icy", false},
        {7, "contains", 7, false},
    };
    for (const HoldsRow& row : rows) {
        EXPECT_EQ(Holds(row.found, row.pszOp, row.value), row.bHolds)
            << JsonText(row.found) << ' ' << row.pszOp << ' ' << JsonText(row.value);
    }
}

TEST(ExpectOperator, OthersAreUnknown) { EXPECT_THROW(Holds(1, "=", 1), CScenarioError); }

constexpr char TwoPictures[] = "page 200 100\n"
                               "picture A #FF0000 10 20 50 50\n"
                               "picture \"B b\" #00FF00 100 0 20 30\n";

Outcome ExpectAfterStaging(const std::string& expectation) {
    return RunLines(TwoPictures + expectation + "\n");
}

class TrueExpectation : public testing::TestWithParam<const char*> {};

TEST_P(TrueExpectation, SaysNothing) {
    const Outcome outcome = ExpectAfterStaging(std::string("expect ") + GetParam());

    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out + outcome.err, "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TrueExpectation,
    testing::Values("page.width == 200", "page.modified == 0", "page.modified == false",
                    "page.nodes.length == 2", "page.nodes[0].name == \"B b\"",
                    "page.nodes[1].rect == [10,20,60,70]", "page[\"A\"].rect == [10, 20, 60, 70]",
                    "page[\"B b\"].rect[2] == 120", "page.A.type == picture", "page[\"C\"] == none",
                    "page.nodes[2] == none", "page.nodes[0].rect[9] == none", "nodes[\"A\"].owner == none",
                    "nodes.length == 2", "selection == []", "undo.undo.length == 0", "tool.class == none",
                    "input.focus == view", "editor == none", "menu == none", "page.A.name.length == 1",
                    "page.A.shadowParams == none", "page.A.text == none"));

TEST(Expect, FailureTellsBothSidesWithStatusOne) {
    const Outcome outcome = ExpectAfterStaging("expect page[\"A\"].rect == [0,0,1,1]");

    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "t.scn:4: expected page[\"A\"].rect == [0,0,1,1], found [10,20,60,70]\n");
}

TEST(Expect, FailureEndsTheRun) {
    const Outcome outcome = RunLines("expect page.width == 1\necho never\n");

    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "");
}

TEST(Expect, PixelIsWhatAPersonSees) {
    EXPECT_EQ(ExpectAfterStaging("expect pixel 10 20 == #FF0000").status, 0);
    EXPECT_EQ(ExpectAfterStaging("expect pixel 9 20 == #505050").status, 0);
    EXPECT_EQ(ExpectAfterStaging("expect pixel 60 20 != #FF0000").status, 0);
    EXPECT_EQ(ExpectAfterStaging("expect pixel 10 20 != #FF0000").status, 1);
}

TEST(Expect, PixelToleranceIsPerChannel) {
    EXPECT_EQ(ExpectAfterStaging("expect pixel 9 20 == #535050 tolerance 3").status, 0);
    EXPECT_EQ(ExpectAfterStaging("expect pixel 9 20 == #545050 tolerance 3").status, 1);
}

TEST(Expect, LastIsTheLastPrintedResult) {
    const Outcome outcome =
        RunLines("module load\nexpect last == 1\nexpect last.tools == 11\nexpect last.error == 0\n"
                 "expect last.absent == none\nundo\nexpect last == 0\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(Expect, NoneAnswersForANullNodeAndForNoResult) {
    const Outcome outcome = RunLines("expect last == none\npicture A #FF0000 10 10 40 40\ntool CSelectTool\n"
                                     "service duplicate none 1\nexpect last.copy == none\n"
                                     "expect last.error == 1\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(Expect, QuotedNamesHaveTheEscapesOfStrings) {
    const Outcome outcome =
        RunLines("picture \"a\\\"] b\" #FF0000 1 0 40 40\npicture \"\\xE9\" #FF0000 2 0 40 40\n"
                 "expect page[\"a\\\"] b\"].rect[0] == 1\n"
                 "expect page[\"\\xE9\"].rect[0] == 2\nexpect page.\xE9.rect[0] == 2\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(Expect, TraceStaysForTheNextLook) {
    const Outcome outcome =
        RunLines("picture A #FF0000 10 10 40 40\ntool CSelectTool\ndump calls\nop NotifyObjectsChanged\n"
                 "expect calls[0].kind == 51\nexpect calls[0].kind == 51\ndump calls\n"
                 "expect calls.length == 0\nexpect trace.length > 0\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

} // namespace
