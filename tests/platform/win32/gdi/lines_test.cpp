#include "../stage.h"

TEST(Lines, LastPixelIsLeftOut) {
    Picture picture(6, 1);

    MoveToEx(picture.Dc(), 1, 0, nullptr);
    LineTo(picture.Dc(), 4, 0);

    EXPECT_EQ(picture.Rows(), Rows{"-kkk--"});
    POINT at;
    GetCurrentPositionEx(picture.Dc(), &at);
    EXPECT_EQ(at.x, 4);
}

TEST(Lines, BothDirectionsTakeTheSamePixelsBetweenTheEnds) {
    Picture there(5, 3);
    Picture back(5, 3);

    MoveToEx(there.Dc(), 0, 0, nullptr);
    LineTo(there.Dc(), 4, 2);
    MoveToEx(back.Dc(), 4, 2, nullptr);
    LineTo(back.Dc(), 0, 0);

    EXPECT_EQ(there.Rows(), (Rows{"kk---", "--kk-", "-----"}));
    EXPECT_EQ(back.Rows(), (Rows{"-k---", "--kk-", "----k"}));
}

TEST(Lines, SteepOnesStepAlongTheirHeight) {
    Picture picture(3, 5);

    MoveToEx(picture.Dc(), 2, 0, nullptr);
    LineTo(picture.Dc(), 0, 4);

    // Half-way points take the left pixel.
    EXPECT_EQ(picture.Rows(), (Rows{"--k", "-k-", "-k-", "k--", "---"}));
}

class DottedLines : public testing::Test {
  protected:
    DottedLines() {
        m_picture.Use(CreatePen(PS_DOT, 1, White));
        SetBkColor(m_picture.Dc(), Black);
    }
    std::string Drawn() { return m_picture.Rows()[0]; }

    Picture m_picture{14, 1};
};

TEST_F(DottedLines, ThreePixelsOnThreeOffInTheBackgroundColour) {
    MoveToEx(m_picture.Dc(), 0, 0, nullptr);
    LineTo(m_picture.Dc(), 14, 0);

    EXPECT_EQ(Drawn(), "WWWkkkWWWkkkWW");
}

TEST_F(DottedLines, TransparentGapsLeaveWhatIsThere) {
    SetBkMode(m_picture.Dc(), TRANSPARENT);

    MoveToEx(m_picture.Dc(), 0, 0, nullptr);
    LineTo(m_picture.Dc(), 14, 0);

    EXPECT_EQ(Drawn(), "WWW---WWW---WW");
}

TEST_F(DottedLines, PatternRunsOnFromOneLineToTheNext) {
    MoveToEx(m_picture.Dc(), 0, 0, nullptr);
    LineTo(m_picture.Dc(), 4, 0);
    LineTo(m_picture.Dc(), 14, 0);

    EXPECT_EQ(Drawn(), "WWWkkkWWWkkkWW");
}

TEST_F(DottedLines, MovingStartsThePatternAnew) {
    MoveToEx(m_picture.Dc(), 0, 0, nullptr);
    LineTo(m_picture.Dc(), 4, 0);
    MoveToEx(m_picture.Dc(), 4, 0, nullptr);
    LineTo(m_picture.Dc(), 14, 0);

    EXPECT_EQ(Drawn(), "WWWkWWWkkkWWWk");
}

TEST_F(DottedLines, PartOutsideThePictureCountsForThePattern) {
    MoveToEx(m_picture.Dc(), -4, 0, nullptr);
    LineTo(m_picture.Dc(), 4, 0);

    EXPECT_EQ(Drawn(), "kkWW----------");
}

TEST_F(DottedLines, WhollyHiddenLinesCountToo) {
    MoveToEx(m_picture.Dc(), -2, 5, nullptr);
    LineTo(m_picture.Dc(), -2, 0);
    LineTo(m_picture.Dc(), 4, 0);

    // Five pixels go down the hidden side and two more up to the edge, so the pattern is one pixel in at the
    // first seen.
    EXPECT_EQ(Drawn(), "WWkk----------");
}

TEST(Lines, WidePenStandsOnBothSidesAndIncludesTheEnd) {
    Picture picture(5, 5);
    picture.Use(CreatePen(PS_SOLID, 2, Black));

    MoveToEx(picture.Dc(), 2, 1, nullptr);
    LineTo(picture.Dc(), 2, 3);

    EXPECT_EQ(picture.Rows(), (Rows{"-----", "-kk--", "-kk--", "-kk--", "-----"}));
}

TEST(Lines, DrawnTwiceWithTheXorPenIsNothing) {
    Picture picture(8, 8);
    picture.Use(CreatePen(PS_SOLID, 2, White));
    SetROP2(picture.Dc(), R2_XORPEN);
    const Rows before = picture.Rows();

    for (int i = 0; i < 2; ++i) {
        MoveToEx(picture.Dc(), 1, 6, nullptr);
        LineTo(picture.Dc(), 6, 2);
        EXPECT_EQ(picture.Rows() == before, i == 1);
    }
}

TEST(Lines, PolylineRunsThePatternRoundItsCorners) {
    Picture picture(4, 4);
    picture.Use(CreatePen(PS_DOT, 1, White));
    SetBkColor(picture.Dc(), Black);
    const POINT square[] = {{0, 0}, {3, 0}, {3, 3}, {0, 3}, {0, 0}};

    Polyline(picture.Dc(), square, 5);

    EXPECT_EQ(picture.Rows(), (Rows{"WWWk", "k--k", "k--k", "kWWW"}));
}

TEST(Lines, FarAwayEndsAreRefusedAndLongOnesClipped) {
    Picture picture(4, 1);

    EXPECT_FALSE(LineTo(picture.Dc(), INT32_MAX, 0));
    MoveToEx(picture.Dc(), -100000000, 0, nullptr);
    EXPECT_TRUE(LineTo(picture.Dc(), 100000000, 0));

    EXPECT_EQ(picture.Rows(), Rows{"kkkk"});
}

TEST(Lines, NullPenDrawsNothing) {
    Picture picture(4, 1);
    SelectObject(picture.Dc(), GetStockObject(NULL_PEN));

    EXPECT_TRUE(LineTo(picture.Dc(), 4, 0));

    EXPECT_EQ(picture.Rows(), Rows{"----"});
}
