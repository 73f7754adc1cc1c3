#include <gtest/gtest.h>

#include <afxwin.h>

#include <array>

#include "host/transform.h"

namespace {

using Corners = std::array<CTxPoint, 4>;

// A diamond around (10, 10) with half axes of 5, a square that turns the other way, and a mere line.
constexpr Corners Diamond = {{{10, 5}, {15, 10}, {10, 15}, {5, 10}}};
constexpr Corners Square = {{{0, 0}, {0, 4}, {4, 4}, {4, 0}}};
constexpr Corners Line = {{{2, 2}, {8, 2}, {8, 2}, {2, 2}}};

int Inside(Corners corners, double x, double y) {
    CTxPoint point{x, y};
    return PtInBound(point, corners.data());
}

} // namespace

TEST(PtInBound, CountsEdgesAndCornersWhateverTheTurningDirection) {
    EXPECT_EQ(1, Inside(Diamond, 10, 10));
    EXPECT_EQ(1, Inside(Diamond, 10, 5));
    EXPECT_EQ(1, Inside(Diamond, 12.5, 7.5));
    EXPECT_EQ(0, Inside(Diamond, 12.6, 7.5));
    EXPECT_EQ(0, Inside(Diamond, 5, 5));
    EXPECT_EQ(1, Inside(Square, 4, 2));
    EXPECT_EQ(0, Inside(Square, 4.01, 2));
    EXPECT_EQ(1, Inside(Line, 5, 2));
    EXPECT_EQ(0, Inside(Line, 5, 3));
    EXPECT_EQ(0, Inside(Line, 9, 2));
}

TEST(GetBoundRect, TruncatesTowardZeroAndIsEmptyForNoPoints) {
    CTxPoint points[3] = {{-1.9, 3.9}, {7.2, -0.5}, {2, 2}};
    CRect rect(9, 9, 9, 9);
    CRect none(9, 9, 9, 9);

    GetBoundRect(points, 3, &rect);
    GetBoundRect(nullptr, 0, &none);

    EXPECT_EQ(CRect(-1, 0, 7, 3), rect);
    EXPECT_EQ(CRect(0, 0, 0, 0), none);
}
