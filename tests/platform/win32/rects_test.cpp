#include <gtest/gtest.h>
#include <windows.h>

namespace {

bool Same(const RECT& a, const RECT& b) { return EqualRect(&a, &b) != FALSE; }

} // namespace

TEST(Rects, LeftAndTopBelongRightAndBottomDoNot) {
    const RECT rect = {2, 3, 5, 7};

    EXPECT_TRUE(PtInRect(&rect, {2, 3}));
    EXPECT_TRUE(PtInRect(&rect, {4, 6}));
    EXPECT_FALSE(PtInRect(&rect, {5, 6}));
    EXPECT_FALSE(PtInRect(&rect, {4, 7}));
    EXPECT_FALSE(PtInRect(&rect, {1, 3}));
}

TEST(Rects, IntersectionMayReplaceAnOperandAndIsZeroWhereTheyTouch) {
    RECT a = {0, 0, 4, 4};
    const RECT b = {2, 1, 8, 3};
    const RECT touching = {4, 0, 8, 4};

    EXPECT_TRUE(IntersectRect(&a, &a, &b));
    EXPECT_TRUE(Same(a, {2, 1, 4, 3}));
    EXPECT_FALSE(IntersectRect(&a, &a, &touching));
    EXPECT_TRUE(Same(a, {0, 0, 0, 0}));
}

TEST(Rects, UnionLeavesEmptyOperandsOut) {
    const RECT full = {2, 2, 4, 4};
    const RECT empty = {-50, -50, -50, 90};
    RECT result;

    EXPECT_TRUE(UnionRect(&result, &full, &empty));
    EXPECT_TRUE(Same(result, full));
    EXPECT_TRUE(UnionRect(&result, &empty, &full));
    EXPECT_TRUE(Same(result, full));
    EXPECT_FALSE(UnionRect(&result, &empty, &empty));
    EXPECT_TRUE(Same(result, {0, 0, 0, 0}));
}

TEST(Rects, InflatingByNegativeAmountsMayTurnARectInsideOut) {
    RECT rect = {0, 0, 4, 10};

    InflateRect(&rect, -3, -2);

    EXPECT_TRUE(Same(rect, {3, 2, 1, 8}));
    EXPECT_TRUE(IsRectEmpty(&rect));
    EXPECT_FALSE(UnionRect(&rect, &rect, nullptr));
}

TEST(MulDiv, RoundsHalvesAwayFromZeroInSixtyFourBitsAndTellsOverflow) {
    const int rows[][4] = {
        {5, 1, 2, 3},           {-5, 1, 2, -3},        {5, 1, -2, -3}, {-5, -1, 2, 3},
        {4, 1, 3, 1},           {5, 1, 3, 2},          {7, 3, 0, -1},  {2000000000, 3, 6, 1000000000},
        {2000000000, 3, 1, -1}, {INT32_MIN, -1, 1, -1}};
    for (const auto& [number, numerator, denominator, expected] : rows) {
        EXPECT_EQ(MulDiv(number, numerator, denominator), expected) << number << " " << denominator;
    }
}
