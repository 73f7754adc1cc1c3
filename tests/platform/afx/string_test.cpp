#include <afx.h>

#include <gtest/gtest.h>

#include <cstring>

TEST(String, NullTextIsEmpty) {
    const CString string(static_cast<LPCSTR>(nullptr));

    EXPECT_TRUE(string.IsEmpty());
    EXPECT_EQ(string.GetLength(), 0);
    EXPECT_STREQ(string, "");
}

TEST(String, BuiltFromPieces) {
    CString string("ab", 1);
    string += CString('x', 3);
    string += "-";
    string = "<" + string + '>' + CString("!");

    EXPECT_STREQ(string, "<axxx->!");
    EXPECT_EQ(string.GetLength(), 8);
}

TEST(String, LengthCountsBytes) { EXPECT_EQ(CString("\x82\xA0z").GetLength(), 3); }

TEST(String, ComparesByUnsignedBytes) {
    const CString string("b");

    EXPECT_EQ(string.Compare("a"), 1);
    EXPECT_EQ(string.Compare("b"), 0);
    EXPECT_EQ(string.Compare("\x80"), -1);
    EXPECT_TRUE(string == "b" && "b" == string && string == CString("b"));
    EXPECT_TRUE(string != "a" && string < "c" && "c" > string && string >= CString("B"));
}

TEST(String, CaseIsIgnoredForAsciiLettersOnly) {
    EXPECT_EQ(CString("AbC").CompareNoCase("aBc"), 0);
    EXPECT_EQ(CString("\xC4").CompareNoCase("\xE4"), -1);
}

TEST(String, PartsAreCutToTheString) {
    const CString string("canvas");

    EXPECT_STREQ(string.Left(3), "can");
    EXPECT_STREQ(string.Left(99), "canvas");
    EXPECT_STREQ(string.Left(-1), "");
    EXPECT_STREQ(string.Right(2), "as");
    EXPECT_STREQ(string.Right(99), "canvas");
    EXPECT_STREQ(string.Right(-1), "");
    EXPECT_STREQ(string.Mid(3), "vas");
    EXPECT_STREQ(string.Mid(1, 2), "an");
    EXPECT_STREQ(string.Mid(6), "");
    EXPECT_STREQ(string.Mid(9, 2), "");
    EXPECT_STREQ(string.Mid(-2, 2), "ca");
}

TEST(String, FindsFromItsStart) {
    const CString string("abcabc");

    EXPECT_EQ(string.Find('c'), 2);
    EXPECT_EQ(string.Find('c', 3), 5);
    EXPECT_EQ(string.Find("ca"), 2);
    EXPECT_EQ(string.Find("bc", 2), 4);
    EXPECT_EQ(string.Find('x'), -1);
    EXPECT_EQ(string.Find("abc", 7), -1);
    EXPECT_EQ(string.ReverseFind('a'), 3);
    EXPECT_EQ(string.FindOneOf("xcb"), 1);
}

TEST(String, TrimsWhiteSpaceAtItsEnds) {
    CString string(" \t a b\r\n");
    string.TrimLeft();
    EXPECT_STREQ(string, "a b\r\n");
    string.TrimRight();
    EXPECT_STREQ(string, "a b");

    CString blank("  ");
    blank.TrimRight();
    EXPECT_TRUE(blank.IsEmpty());
}

TEST(String, ChangesCaseOfAsciiLetters) {
    CString string("aZ9\xE4");
    string.MakeUpper();
    EXPECT_STREQ(string, "AZ9\xE4");
    string.MakeLower();
    EXPECT_STREQ(string, "az9\xE4");
}

TEST(String, FormatMayReadTheStringItself) {
    CString string("x");
    string.Format("%s%03d%s", static_cast<LPCSTR>(string), 7, "y");

    EXPECT_STREQ(string, "x007y");
}

TEST(String, BufferTakesTheTextUpToItsZero) {
    CString string("ab");
    std::strcpy(string.GetBuffer(16), "hello");
    string.ReleaseBuffer();
    EXPECT_STREQ(string, "hello");
    EXPECT_EQ(string.GetLength(), 5);

    string.GetBuffer(0)[0] = 'j';
    string.ReleaseBuffer(4);
    EXPECT_STREQ(string, "jell");
}

TEST(String, SingleBytesAreReadAndSet) {
    CString string("abc");
    string.SetAt(1, 'x');

    EXPECT_EQ(string[1], 'x');
    EXPECT_EQ(string.GetAt(2), 'c');
}
