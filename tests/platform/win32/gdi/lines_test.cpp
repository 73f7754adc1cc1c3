#include "../stage.h"

namespace {

void Draw(const Picture& picture, POINT from, POINT to) {
    MoveToEx(picture.Dc(), from.x, from.y, nullptr);
    LineTo(picture.Dc(), to.x, to.y);
}

} // namespace

TEST(Lines, LeaveTheLastPixelOutAndTakeTheSameBetweenTheEndsBothWays) {
    struct Row {
        POINT from, to;
        Rows expected;
    };
    // Half-way points take the upper or the left pixel.
    for (const Row& row :
         {Row{{1, 0}, {4, 0}, {"-kkk-", "-----", "-----"}}, Row{{0, 0}, {4, 2}, {"kk---", "--kk-", "-----"}},
          Row{{4, 2}, {0, 0}, {"-k---", "--kk-", "----k"}},
          Row{{1, 0}, {0, 2}, {"-k---", "k----", "-----"}}}) {
        const Picture picture(5, 3);
        Draw(picture, row.from, row.to);
        EXPECT_EQ(picture.Rows(), row.expected) << row.from.x << " to " << row.to.x;
        POINT at;
        GetCurrentPositionEx(picture.Dc(), &at);
        EXPECT_EQ(at.x, row.to.x);
    }
}

TEST(Lines, DottedOnesRunThreeOnThreeOffThroughCornersClipsAndHiddenParts) {
    struct Row {
        int background;
        std::vector<POINT> points;
        std::string expected;
    };
    // In the last row five pixels go down the hidden side and two more up to the edge, so that the pattern is
    // one pixel in at the first that is seen.
    for (const Row& row : {Row{OPAQUE, {{0, 0}, {14, 0}}, "WWWkkkWWWkkkWW"},
                           Row{TRANSPARENT, {{0, 0}, {14, 0}}, "WWW---WWW---WW"},
                           Row{OPAQUE, {{0, 0}, {4, 0}, {14, 0}}, "WWWkkkWWWkkkWW"},
                           Row{OPAQUE, {{-4, 0}, {4, 0}}, "kkWW----------"},
                           Row{OPAQUE, {{-2, 5}, {-2, 0}, {4, 0}}, "WWkk----------"}}) {
        Picture picture(14, 1);
        picture.Use(CreatePen(PS_DOT, 1, White));
        SetBkColor(picture.Dc(), Black);
        SetBkMode(picture.Dc(), row.background);
        MoveToEx(picture.Dc(), row.points[0].x, row.points[0].y, nullptr);
        for (std::size_t i = 1; i < row.points.size(); ++i) {
            LineTo(picture.Dc(), row.points[i].x, row.points[i].y);
        }
        EXPECT_EQ(picture.Rows(), Rows{row.expected});
    }
}

TEST(Lines, MovingStartsTheDotsAnew) {
    Picture picture(14, 1);
    picture.Use(CreatePen(PS_DOT, 1, White));
    SetBkColor(picture.Dc(), Black);

    Draw(picture, {0, 0}, {4, 0});
    Draw(picture, {4, 0}, {14, 0});

    EXPECT_EQ(picture.Rows(), Rows{"WWWkWWWkkkWWWk"});
}

TEST(Lines, WidePenStandsOnBothSidesAndIncludesTheEnd) {
    Picture picture(5, 5);
    picture.Use(CreatePen(PS_SOLID, 2, Black));

    Draw(picture, {2, 1}, {2, 3});

    EXPECT_EQ(picture.Rows(), (Rows{"-----", "-kk--", "-kk--", "-kk--", "-----"}));
}

TEST(Lines, DrawnTwiceWithTheXorPenIsNothing) {
    Picture picture(8, 8);
    picture.Use(CreatePen(PS_SOLID, 2, White));
    SetROP2(picture.Dc(), R2_XORPEN);
    const Rows before = picture.Rows();

    for (int i = 0; i < 2; ++i) {
        Draw(picture, {1, 6}, {6, 2});
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
