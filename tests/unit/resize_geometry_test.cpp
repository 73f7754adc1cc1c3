#include "ops/resize_geometry.h"

#include <cmath>

#include <gtest/gtest.h>

namespace {

constexpr CRect View(0, 0, 400, 300);

struct ClampRow {
    int nHandle;
    CPoint point;
    CPoint expected;
};

// A handle keeps eight pixels from the view's side that faces the edge which it moves.
constexpr ClampRow ClampRows[] = {
    {0, {395, 295}, {392, 292}}, {0, {391, 291}, {391, 291}},   {0, {392, 292}, {392, 292}},
    {0, {-50, -60}, {-50, -60}}, {1, {395, -999}, {392, -999}}, {2, {399, 1}, {392, 8}},
    {3, {999, 2}, {999, 8}},     {4, {-3, 295}, {-3, 292}},     {5, {1, 299}, {8, 292}},
    {6, {3, -5}, {8, -5}},       {7, {5, 3}, {8, 8}},           {7, {8, 8}, {8, 8}},
    {7, {9, 9}, {9, 9}},         {7, {900, 900}, {900, 900}},
};

TEST(ClampedPointer, StaysEightPixelsFromTheFacingSide) {
    for (const ClampRow& row : ClampRows) {
        const CPoint clamped = ClampedPointer(row.point, row.nHandle, View);
        EXPECT_EQ(clamped, row.expected) << "handle " << row.nHandle << " at " << row.point.x << ','
                                         << row.point.y << " gave " << clamped.x << ',' << clamped.y;
    }
}

TEST(ClampedPointer, CountsFromTheViewsOwnCorner) {
    constexpr CRect moved(10, 20, 110, 120);

    EXPECT_EQ(ClampedPointer({0, 0}, 7, moved), CPoint(18, 28));
    EXPECT_EQ(ClampedPointer({500, 500}, 0, moved), CPoint(102, 112));
}

struct ResizeRow {
    const char* pszWhat;
    CRect rcNode;
    int nHandle;
    CPoint point;
    CRect expected;
};

constexpr CRect Wide(100, 100, 200, 150); // 100 by 50
constexpr CRect Tall(100, 100, 150, 300); // 50 by 200
constexpr CRect Thin(100, 100, 110, 150); // 10 by 50

constexpr ResizeRow ResizeRows[] = {
    {"left edge out", Wide, 1, {80, 999}, {80, 100, 200, 150}},
    {"right edge out", Wide, 6, {260, -9}, {100, 100, 260, 150}},
    {"top edge out", Wide, 4, {-9, 70}, {100, 70, 200, 150}},
    {"bottom edge out", Wide, 3, {999, 190}, {100, 100, 200, 190}},
    {"left edge at 10 of 16", Wide, 1, {190, 120}, {184, 100, 200, 150}},
    {"left edge across", Wide, 1, {250, 120}, {184, 100, 200, 150}},
    {"right edge at 16", Wide, 6, {116, 120}, {100, 100, 116, 150}},
    {"right edge at 15", Wide, 6, {115, 120}, {100, 100, 116, 150}},
    {"right edge across", Wide, 6, {90, 120}, {100, 100, 116, 150}},
    {"top edge across", Wide, 4, {150, 160}, {100, 134, 200, 150}},
    {"bottom edge across", Wide, 3, {150, 50}, {100, 100, 200, 116}},
    {"right edge of one 10 wide", Thin, 6, {112, 120}, {100, 100, 116, 150}},
    {"left edge of one 10 wide, unmoved", Thin, 1, {100, 120}, {94, 100, 110, 150}},
    {"bottom edge of one 10 wide keeps the width", Thin, 3, {105, 160}, {100, 100, 110, 160}},
    {"7: the width's factor is larger", Wide, 7, {300, 160}, {100, 100, 300, 200}},
    {"7: the height's factor is larger", Wide, 7, {210, 200}, {100, 100, 300, 200}},
    {"7: equal factors", Wide, 7, {300, 200}, {100, 100, 300, 200}},
    {"7: half", Wide, 7, {150, 110}, {100, 100, 150, 125}},
    {"0 keeps the bottom-right", Wide, 0, {0, 100}, {0, 50, 200, 150}},
    {"2 keeps the top-right", Wide, 2, {150, 200}, {0, 100, 200, 200}},
    {"5 keeps the bottom-left", Wide, 5, {300, 140}, {100, 50, 300, 150}},
    {"7 across both edges", Wide, 7, {50, 60}, {100, 100, 132, 116}},
    {"7 far across", Wide, 7, {-5000, -5000}, {100, 100, 132, 116}},
    {"7 across one edge: the other factor wins", Wide, 7, {50, 130}, {100, 100, 160, 130}},
    {"0 across both edges", Wide, 0, {230, 170}, {168, 134, 200, 150}},
    {"2 across both edges", Wide, 2, {230, 90}, {168, 100, 200, 116}},
    {"5 across both edges", Wide, 5, {90, 170}, {100, 134, 132, 150}},
    {"a tall one gets 16 wide after the height", Tall, 7, {105, 110}, {100, 100, 116, 164}},
    {"one 10 wide by a corner: the floor of the width", Thin, 7, {110, 150}, {100, 100, 116, 180}},
};

TEST(ResizedCorners, MoveOneCornerOrEdgeAndKeepTheOpposite) {
    for (const ResizeRow& row : ResizeRows) {
        const Corners corners = ResizedCorners(row.rcNode, row.point, row.nHandle);
        EXPECT_DOUBLE_EQ(corners[TopLeft].x, row.expected.left) << row.pszWhat;
        EXPECT_DOUBLE_EQ(corners[TopLeft].y, row.expected.top) << row.pszWhat;
        EXPECT_DOUBLE_EQ(corners[BottomRight].x, row.expected.right) << row.pszWhat;
        EXPECT_DOUBLE_EQ(corners[BottomRight].y, row.expected.bottom) << row.pszWhat;
    }
}

TEST(ResizedCorners, StandInTheOrderOfTheNodesCorners) {
    const Corners corners = ResizedCorners(Wide, {300, 200}, 7);

    EXPECT_DOUBLE_EQ(corners[TopRight].x, 300.0);
    EXPECT_DOUBLE_EQ(corners[TopRight].y, 100.0);
    EXPECT_DOUBLE_EQ(corners[BottomLeft].x, 100.0);
    EXPECT_DOUBLE_EQ(corners[BottomLeft].y, 200.0);
}

TEST(ResizedCorners, KeepFractionsOfPixels) {
    const Corners corners = ResizedCorners(CRect(0, 0, 90, 60), {100, 20}, 7);

    EXPECT_DOUBLE_EQ(corners[BottomRight].x, 100.0);
    EXPECT_NEAR(corners[BottomRight].y, 66.666666666, 1e-6);
}

TEST(ResizedCorners, OfNodesWithoutAnAreaAreNumbersOfAtLeastSixteen) {
    for (const CRect& rcNode :
         {CRect(100, 100, 100, 150), CRect(100, 100, 150, 100), CRect(70, 70, 70, 70)}) {
        for (const int nHandle : {0, 2, 5, 7}) {
            const Corners corners = ResizedCorners(rcNode, {120, 90}, nHandle);
            const double dWidth = corners[BottomRight].x - corners[TopLeft].x;
            const double dHeight = corners[BottomRight].y - corners[TopLeft].y;
            EXPECT_TRUE(std::isfinite(dWidth) && std::isfinite(dHeight)) << "handle " << nHandle;
            EXPECT_GE(dWidth, LeastResizedSide) << "handle " << nHandle;
            EXPECT_GE(dHeight, LeastResizedSide) << "handle " << nHandle;
        }
    }
}

TEST(ResizedCorners, HoldAtTheLimitsOfCoordinates) {
    constexpr int Least = -2147483647 - 1;
    constexpr int Most = 2147483647;

    const Corners corners = ResizedCorners(CRect(Least, Least, Most, Most), {Least, Most}, 6);

    EXPECT_DOUBLE_EQ(corners[TopLeft].x, Least);
    EXPECT_DOUBLE_EQ(corners[TopRight].x, Least + LeastResizedSide);
    EXPECT_DOUBLE_EQ(corners[BottomRight].y, Most);
}

} // namespace
