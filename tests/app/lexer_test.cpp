#include "scenario/lexer.h"

#include <gtest/gtest.h>

#include "scenario/error.h"

namespace {

struct KindRow {
    const char* pszLine;
    TokenKind kind;
    const char* pszText;
};

class LexerToken : public testing::TestWithParam<KindRow> {};

TEST_P(LexerToken, HasItsKindAndText) {
    const LexedLine lexed = Lex(GetParam().pszLine);

    ASSERT_EQ(lexed.tokens.size(), 1U);
    EXPECT_EQ(lexed.tokens[0].kind, GetParam().kind);
    EXPECT_EQ(lexed.tokens[0].text, GetParam().pszText);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LexerToken,
    testing::Values(KindRow{"select", TokenKind::Word, "select"},
                    KindRow{"  A#2.shadow ", TokenKind::Word, "A#2.shadow"},
                    KindRow{"7+12", TokenKind::Word, "7+12"}, KindRow{"-3", TokenKind::Number, "-3"},
                    KindRow{"1.5", TokenKind::Number, "1.5"}, KindRow{"-", TokenKind::Word, "-"},
                    KindRow{"#FF8000", TokenKind::Color, "#FF8000"},
                    KindRow{"\"a b\"", TokenKind::String, "a b"}, KindRow{"\"\"", TokenKind::String, ""},
                    KindRow{"[A B]", TokenKind::List, "[A B]"},
                    KindRow{"page[\"a b\"].rect", TokenKind::Word, "page[\"a b\"].rect"},
                    KindRow{R"(page["a\" #b"].rect)", TokenKind::Word, R"(page["a\" #b"].rect)"},
                    KindRow{"6\"", TokenKind::Word, "6\""},
                    KindRow{"{0e1c6dc7-1dde-4881-8aee-e495db635354}", TokenKind::Guid,
                            "{0E1C6DC7-1DDE-4881-8AEE-E495DB635354}"}));

TEST(Lexer, CommentStartsAtLineStartOrBehindABlank) {
    EXPECT_TRUE(Lex("# all of it").tokens.empty());
    EXPECT_TRUE(Lex("   #").tokens.empty());
    EXPECT_EQ(Lex("undo # back").tokens.size(), 1U);
    EXPECT_EQ(Lex("undo # back").command, "undo");
    EXPECT_EQ(Lex("select A#2").tokens[1].text, "A#2");
}

TEST(Lexer, SixHexDigitsAreAColourOnlyUpToABlankOrTheEnd) {
    EXPECT_EQ(Lex("base #102030").tokens.size(), 2U);
    EXPECT_EQ(Lex("base #102030 # grey").tokens.size(), 2U);
    EXPECT_EQ(Lex("base #1020304").tokens.size(), 1U);
    EXPECT_EQ(Lex("base #10203").tokens.size(), 1U);
    EXPECT_EQ(Lex("base #10203G").tokens.size(), 1U);
}

TEST(Lexer, ColourIsRedGreenBlue) { EXPECT_EQ(Lex("#010203").tokens[0].color, RGB(1, 2, 3)); }

TEST(Lexer, EscapesGiveBytes) {
    const std::string text = Lex(R"("a\n\r\t\"\\\x80\x00z")").tokens[0].text;

    EXPECT_EQ(text, std::string("a\n\r\t\"\\\x80\0z", 9));
}

TEST(Lexer, HashInAStringIsText) { EXPECT_EQ(Lex("echo \"a # b\"").tokens[1].text, "a # b"); }

TEST(Lexer, ListHoldsTokensBetweenBlanksAndCommas) {
    const Token list = Lex("[1,-2, #AABBCC \"x y\"]").tokens[0];

    ASSERT_EQ(list.items.size(), 4U);
    EXPECT_EQ(list.items[0].number, 1.0);
    EXPECT_EQ(list.items[1].number, -2.0);
    EXPECT_EQ(list.items[2].kind, TokenKind::Color);
    EXPECT_EQ(list.items[3].text, "x y");
}

TEST(Lexer, FractionIsNoWholeNumber) {
    EXPECT_TRUE(Lex("2.0").tokens[0].whole);
    EXPECT_FALSE(Lex("2.5").tokens[0].whole);
}

TEST(Lexer, CommandIsTheLineWithoutItsComment) {
    EXPECT_EQ(Lex("  drag 1 2  3 4\t# away\r").command, "drag 1 2  3 4");
}

class LexerError : public testing::TestWithParam<const char*> {};

TEST_P(LexerError, IsThrown) { EXPECT_THROW(Lex(GetParam()), CScenarioError); }

INSTANTIATE_TEST_SUITE_P(Rows, LexerError,
                         testing::Values("echo \"open", "echo \"a\\", "echo \"\\q\"", "echo \"\\x4\"",
                                         "echo \"\\xZZ\"", "echo \"a\"b", "select [A B", "select [A #no",
                                         "ask {123}", "ask {0E1C6DC7-1DDE-4881-8AEE-E495DB635354}x"));

} // namespace
