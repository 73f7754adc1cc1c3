// The editor's lines against a plain vector of strings.
#include "text/editor/line_store.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;

std::string Bytes(const CString& text) {
    return {static_cast<LPCSTR>(text), static_cast<std::size_t>(text.GetLength())};
}

Lines Down(const CLineStore& store) {
    Lines lines;
    for (POSITION position = store.Begin(); position;) {
        lines.push_back(Bytes(store.Next(position)));
    }
    return lines;
}

Lines UpTurnedRound(const CLineStore& store) {
    Lines lines;
    for (POSITION position = store.Last(); position;) {
        lines.insert(lines.begin(), Bytes(store.Prev(position)));
    }
    return lines;
}

class LineStore : public ::testing::Test {
  protected:
    std::string Line(int nLine) {
        CString line("former");
        m_nAnswer = store.GetLine(nLine, line);
        return Bytes(line);
    }

    CLineStore store;
    int m_nAnswer = -1;
};

TEST_F(LineStore, OnlyLineFeedsPartAndEveryOneDoes) {
    EXPECT_EQ(store.InsertText(-1, "a\r\nb\n\n"), 1);
    EXPECT_EQ(Down(store), (Lines{"a\r", "b", "", ""}));

    EXPECT_EQ(store.InsertText(0, ""), 1);
    EXPECT_EQ(Down(store), (Lines{"a\r", "", "b", "", ""}));

    EXPECT_EQ(store.InsertText(-1, "\n"), 1);
    EXPECT_EQ(Down(store), (Lines{"", "", "a\r", "", "b", "", ""}));
}

TEST_F(LineStore, PlacesBehindTheLastLineAreTheLastLines) {
    store.InsertText(99, "a\nb");
    store.InsertText(2, "c");
    store.InsertText(99, "d");

    EXPECT_EQ(Down(store), (Lines{"a", "b", "c", "d"}));
}

TEST_F(LineStore, OutsideThereIsNoLineAndNothingChanges) {
    store.InsertText(-1, "a\nb");
    for (const int nLine : {-1, 2, 99}) {
        EXPECT_EQ(Line(nLine), "");
        EXPECT_EQ(m_nAnswer, 0);
        EXPECT_EQ(store.Find(nLine), nullptr);
        EXPECT_EQ(store.LengthOf(nLine), 0);
        store.RemoveLine(nLine);
    }
    EXPECT_EQ(store.ReplaceLine(2, "x"), 0);
    EXPECT_EQ(Down(store), (Lines{"a", "b"}));
}

TEST_F(LineStore, ReplacedLineMayBecomeSeveral) {
    store.InsertText(-1, "a\nb\nc");

    EXPECT_EQ(store.ReplaceLine(1, "1\n2\n3"), 1);
    EXPECT_EQ(Down(store), (Lines{"a", "1", "2", "3", "c"}));
    EXPECT_EQ(store.ReplaceLine(0, ""), 1);
    EXPECT_EQ(Down(store), (Lines{"", "1", "2", "3", "c"}));
    EXPECT_EQ(store.ReplaceLine(4, "z\n"), 1);
    EXPECT_EQ(Down(store), (Lines{"", "1", "2", "3", "z", ""}));
}

TEST_F(LineStore, TrimmedLineLosesBlanksAlone) {
    store.InsertText(-1, "  a b  \n \t c\t \n   \n");
    const Lines trimmed = {"a b", "\t c\t", "", ""};
    for (int n = 0; n < 4; ++n) {
        CString line;
        EXPECT_EQ(store.GetTrimmedLine(n, line), 1);
        EXPECT_EQ(Bytes(line), trimmed[static_cast<std::size_t>(n)]);
    }
    CString line("former");
    EXPECT_EQ(store.GetTrimmedLine(4, line), 0);
    EXPECT_EQ(Bytes(line), "");
    EXPECT_EQ(Line(0), "  a b  ");
}

TEST_F(LineStore, ZerosAreBytesOfALine) {
    store.InsertText(-1, CString("a\0b\nc\0", 6));

    EXPECT_EQ(Down(store), (Lines{std::string("a\0b", 3), std::string("c\0", 2)}));
}

// Lookups walk from the nearer end, so both halves of a long list are asked for.
TEST_F(LineStore, FindsEveryLineAfterAnySteps) {
    constexpr unsigned Seed = 20260201;
    std::mt19937 random(Seed);
    Lines model;
    for (int nStep = 0; nStep < 400; ++nStep) {
        const int nCount = static_cast<int>(model.size());
        const int nLine = nCount ? static_cast<int>(random() % static_cast<unsigned>(nCount)) : 0;
        const std::string mark = std::to_string(nStep);
        const CString pieces((mark + "\n" + mark + "'").c_str());
        if (nCount == 0 || random() % 2 == 0) {
            store.InsertText(nLine - 1, pieces);
            model.insert(model.begin() + nLine, {mark, mark + "'"});
        } else if (random() % 3 == 0) {
            store.ReplaceLine(nLine, pieces);
            model[static_cast<std::size_t>(nLine)] = mark + "'";
            model.insert(model.begin() + nLine, mark);
        } else {
            const int nGone = std::min(nCount - nLine, 1 + static_cast<int>(random() % 3));
            store.RemoveLines(nLine, nGone);
            model.erase(model.begin() + nLine, model.begin() + nLine + nGone);
        }
        ASSERT_EQ(store.GetCount(), static_cast<int>(model.size())) << Seed << ' ' << nStep;
        ASSERT_EQ(Down(store), model) << Seed << ' ' << nStep;
        ASSERT_EQ(UpTurnedRound(store), model) << Seed << ' ' << nStep;
        for (int n = 0; n < store.GetCount(); ++n) {
            ASSERT_EQ(Line(n), model[static_cast<std::size_t>(n)]) << Seed << ' ' << nStep;
        }
    }
}

} // namespace
