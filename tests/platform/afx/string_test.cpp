#include <afx.h>

#include <gtest/gtest.h>

#include <cstring>

TEST(String, BuiltFromPieces) {
    CString string("ab", 1);
    string += CString('x', 3);
    string += static_cast<LPCSTR>(nullptr);
    string = "<" + string + '>' + CString("\x82\xA0");

    EXPECT_STREQ(string, "<axxx>\x82\xA0");
    EXPECT_EQ(string.GetLength(), 8);
    EXPECT_STREQ(CString(static_cast<LPCSTR>(nullptr)), "");
}

TEST(String, ComparesByUnsignedBytesAndIgnoresCaseOfAsciiOnly) {
    const CString string("b");

    EXPECT_EQ(string.Compare("a"), 1);
    EXPECT_EQ(string.Compare("\x80"), -1);
    EXPECT_TRUE(string == "b" && "b" == string && string == CString("b"));
    EXPECT_TRUE(string != "a" && string < "c" && "c" > string && string >= CString("B"));
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
    EXPECT_STREQ(string.Mid(1, 2), "an");
    EXPECT_STREQ(string.Mid(9, 2), "");
    EXPECT_STREQ(string.Mid(-2, 2), "ca");
}

TEST(String, FindsFromItsStart) {
    const CString string("abcabc");

    EXPECT_EQ(string.Find('c', 3), 5);
    EXPECT_EQ(string.Find("bc", 2), 4);
    EXPECT_EQ(string.Find('x'), -1);
    EXPECT_EQ(string.Find("abc", 7), -1);
    EXPECT_EQ(string.ReverseFind('a'), 3);
    EXPECT_EQ(string.FindOneOf("xcb"), 1);
}

TEST(String, TrimsWhiteSpaceAtItsEndsAndChangesCaseOfAsciiLetters) {
    CString string(" \t aZ 9\xE4\r\n");
    CString blank("  ");

    string.TrimLeft();
    string.TrimRight();
    string.MakeUpper();
    blank.TrimRight();

    EXPECT_STREQ(string, "AZ 9\xE4");
    EXPECT_TRUE(blank.IsEmpty());
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
    EXPECT_EQ(string.GetLength(), 5);

    string.GetBuffer(0)[0] = 'j';
    string.ReleaseBuffer(4);
    EXPECT_STREQ(string, "jell");
}
