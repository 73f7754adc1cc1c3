#include <gtest/gtest.h>

#include "host/transform.h"

namespace {

int Inside(double x, double y) {
    // A diamond around (10, 10) with half axes of 5.
    CTxPoint corners[4] = {{10, 5}, {15, 10}, {10, 15}, {5, 10}};
    CTxPoint point{x, y};
    return PtInBound(point, corners);
}

} // namespace

TEST(PtInBound, CountsEdgesAndCorners) {
    EXPECT_EQ(1, Inside(10, 10));
    EXPECT_EQ(1, Inside(10, 5));
    EXPECT_EQ(1, Inside(12.5, 7.5));
    EXPECT_EQ(0, Inside(12.6, 7.5));
    EXPECT_EQ(0, Inside(5, 5));
}

TEST(PtInBound, DoesNotMindTheTurningDirection) {
    CTxPoint corners[4] = {{0, 0}, {0, 4}, {4, 4}, {4, 0}};
    CTxPoint inside{4, 2};
    CTxPoint outside{4.01, 2};

    EXPECT_EQ(1, PtInBound(inside, corners));
    EXPECT_EQ(0, PtInBound(outside, corners));
}

TEST(PtInBound, AnOutlineWithoutAreaHoldsOnlyItself) {
    CTxPoint corners[4] = {{2, 2}, {8, 2}, {8, 2}, {2, 2}};
    CTxPoint on{5, 2};
    CTxPoint beside{5, 3};
    CTxPoint beyond{9, 2};

    EXPECT_EQ(1, PtInBound(on, corners));
    EXPECT_EQ(0, PtInBound(beside, corners));
    EXPECT_EQ(0, PtInBound(beyond, corners));
}

TEST(GetBoundRect, TruncatesTowardZero) {
    CTxPoint points[3] = {{-1.9, 3.9}, {7.2, -0.5}, {2, 2}};
    RECT rect{9, 9, 9, 9};

    GetBoundRect(points, 3, &rect);

    EXPECT_EQ(-1, rect.left);
    EXPECT_EQ(0, rect.top);
    EXPECT_EQ(7, rect.right);
    EXPECT_EQ(3, rect.bottom);
}

TEST(GetBoundRect, NoPointsGiveAnEmptyRectangle) {
    RECT rect{9, 9, 9, 9};
    GetBoundRect(nullptr, 0, &rect);
    EXPECT_TRUE(rect.left == 0 && rect.top == 0 && rect.right == 0 && rect.bottom == 0);
}

TEST(TxParam, SetOrWHLeavesThePlaceAlone) {
    CTxParam tx;
    tx.nX = 3;
    tx.nWidth = 40;

    tx.SetOrWH(11, 12, 0);

    EXPECT_EQ(11, tx.nOrgWidth);
    EXPECT_EQ(12, tx.nOrgHeight);
    EXPECT_EQ(3, tx.nX);
    EXPECT_EQ(40, tx.nWidth);
}
