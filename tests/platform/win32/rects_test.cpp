#include <gtest/gtest.h>
#include <windows.h>

static RECT Made(int left, int top, int right, int bottom) { return {left, top, right, bottom}; }

static bool Same(const RECT& a, const RECT& b) { return EqualRect(&a, &b) != FALSE; }

TEST(Rects, LeftAndTopBelongRightAndBottomDoNot) {
    const RECT rect = Made(2, 3, 5, 7);

    EXPECT_TRUE(PtInRect(&rect, {2, 3}));
    EXPECT_TRUE(PtInRect(&rect, {4, 6}));
    EXPECT_FALSE(PtInRect(&rect, {5, 6}));
    EXPECT_FALSE(PtInRect(&rect, {4, 7}));
    EXPECT_FALSE(PtInRect(&rect, {1, 3}));
}

TEST(Rects, IntersectionOfTouchingRectsIsZero) {
    const RECT a = Made(0, 0, 4, 4);
    const RECT b = Made(4, 0, 8, 4);
    RECT result = Made(1, 1, 1, 1);

    EXPECT_FALSE(IntersectRect(&result, &a, &b));

    EXPECT_TRUE(Same(result, Made(0, 0, 0, 0)));
}

TEST(Rects, IntersectionMayReplaceAnOperand) {
    RECT a = Made(0, 0, 4, 4);
    const RECT b = Made(2, 1, 8, 3);

    EXPECT_TRUE(IntersectRect(&a, &a, &b));

    EXPECT_TRUE(Same(a, Made(2, 1, 4, 3)));
}

TEST(Rects, UnionLeavesEmptyOperandsOut) {
    const RECT full = Made(2, 2, 4, 4);
    const RECT empty = Made(-50, -50, -50, 90);
    RECT result;

    EXPECT_TRUE(UnionRect(&result, &full, &empty));
    EXPECT_TRUE(Same(result, full));
    EXPECT_TRUE(UnionRect(&result, &empty, &full));
    EXPECT_TRUE(Same(result, full));
    EXPECT_FALSE(UnionRect(&result, &empty, &empty));
    EXPECT_TRUE(Same(result, Made(0, 0, 0, 0)));
}

TEST(Rects, InflatingByNegativeAmountsMayTurnARectInsideOut) {
    RECT rect = Made(0, 0, 4, 10);

    InflateRect(&rect, -3, -2);

    EXPECT_TRUE(Same(rect, Made(3, 2, 1, 8)));
    EXPECT_TRUE(IsRectEmpty(&rect));
}

TEST(Rects, OffsetMovesAllEdges) {
    RECT rect = Made(1, 2, 3, 4);

    OffsetRect(&rect, 10, -2);

    EXPECT_TRUE(Same(rect, Made(11, 0, 13, 2)));
}

TEST(Rects, NullPointersAreRefused) {
    RECT rect = Made(1, 2, 3, 4);

    EXPECT_FALSE(SetRect(nullptr, 0, 0, 1, 1));
    EXPECT_FALSE(UnionRect(&rect, &rect, nullptr));
    EXPECT_FALSE(CopyRect(nullptr, &rect));
    EXPECT_TRUE(Same(rect, Made(1, 2, 3, 4)));
}

TEST(MulDiv, RoundsHalvesAwayFromZero) {
    EXPECT_EQ(MulDiv(5, 1, 2), 3);
    EXPECT_EQ(MulDiv(-5, 1, 2), -3);
    EXPECT_EQ(MulDiv(5, 1, -2), -3);
    EXPECT_EQ(MulDiv(-5, -1, 2), 3);
    EXPECT_EQ(MulDiv(4, 1, 3), 1);
    EXPECT_EQ(MulDiv(5, 1, 3), 2);
}

TEST(MulDiv, UsesSixtyFourBitsInBetween) {
    EXPECT_EQ(MulDiv(2000000000, 3, 6), 1000000000);
    EXPECT_EQ(MulDiv(INT32_MIN, 1, 1), INT32_MIN);
}

TEST(MulDiv, OverflowAndZeroDivisorAnswerMinusOne) {
    EXPECT_EQ(MulDiv(7, 3, 0), -1);
    EXPECT_EQ(MulDiv(2000000000, 3, 1), -1);
    EXPECT_EQ(MulDiv(INT32_MIN, -1, 1), -1);
}

TEST(Words, CoordinatesKeepTheirSignsInALParam) {
    const LPARAM packed = MAKELPARAM(static_cast<ULONG_PTR>(-3), 7);

    EXPECT_EQ(GET_X_LPARAM(packed), -3);
    EXPECT_EQ(GET_Y_LPARAM(packed), 7);
    EXPECT_EQ(packed, 0x7FFFD);
}
