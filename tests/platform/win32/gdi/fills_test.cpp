#include "../stage.h"

static HBRUSH WhiteBrush() { return static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)); }

TEST(Rectangles, FrameStandsInsideRightAndBottom) {
    Picture picture(6, 5);

    Rectangle(picture.Dc(), 1, 1, 5, 4);

    EXPECT_EQ(picture.Rows(), (Rows{"------", "-kkkk-", "-kWWk-", "-kkkk-", "------"}));
}

TEST(Rectangles, CornersMayComeInAnyOrder) {
    Picture picture(6, 5);

    Rectangle(picture.Dc(), 5, 4, 1, 1);

    EXPECT_EQ(picture.Rows(), (Rows{"------", "-kkkk-", "-kWWk-", "-kkkk-", "------"}));
}

TEST(Rectangles, NullPenGivesUpTheLastRowAndColumn) {
    Picture picture(6, 5);
    SelectObject(picture.Dc(), GetStockObject(NULL_PEN));

    Rectangle(picture.Dc(), 1, 1, 5, 4);

    EXPECT_EQ(picture.Rows(), (Rows{"------", "-WWW--", "-WWW--", "------", "------"}));
}

TEST(Rectangles, NullBrushLeavesTheInside) {
    Picture picture(4, 4);
    SelectObject(picture.Dc(), GetStockObject(NULL_BRUSH));

    Rectangle(picture.Dc(), 0, 0, 4, 4);

    EXPECT_EQ(picture.Rows(), (Rows{"kkkk", "k--k", "k--k", "kkkk"}));
}

TEST(Rectangles, WideFrameStandsAroundTheEdgePixels) {
    Picture picture(8, 8);
    picture.Use(CreatePen(PS_SOLID, 3, Black));

    Rectangle(picture.Dc(), 1, 1, 7, 7);

    EXPECT_EQ(picture.Rows(), (Rows{"kkkkkkkk", "kkkkkkkk", "kkkkkkkk", "kkkWWkkk", "kkkWWkkk", "kkkkkkkk",
                                    "kkkkkkkk", "kkkkkkkk"}));
}

TEST(Rectangles, DottedFrameRunsRoundClockwise) {
    Picture picture(5, 4);
    picture.Use(CreatePen(PS_DOT, 1, White));
    SelectObject(picture.Dc(), GetStockObject(NULL_BRUSH));
    SetBkColor(picture.Dc(), Black);

    Rectangle(picture.Dc(), 0, 0, 5, 4);

    // Round the fourteen edge pixels: three white, three black, and so on.
    EXPECT_EQ(picture.Rows(), (Rows{"WWWkk", "W---k", "W---W", "kkkWW"}));
}

class XorRectangles : public testing::TestWithParam<std::pair<int, int>> {};

TEST_P(XorRectangles, TouchEachPixelOnce) {
    Picture picture(6, 6);
    PatBlt(picture.Dc(), 0, 0, 6, 6, BLACKNESS);
    picture.Use(CreatePen(PS_SOLID, 1, White));
    SetROP2(picture.Dc(), R2_XORPEN);
    const auto [width, height] = GetParam();

    Rectangle(picture.Dc(), 0, 0, width, height);

    for (int y = 0; y < 6; ++y) {
        for (int x = 0; x < 6; ++x) {
            EXPECT_EQ(picture.Pixels()[y * 6 + x] != 0, x < width && y < height) << x << "," << y;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, XorRectangles,
                         testing::Values(std::pair{1, 1}, std::pair{1, 5}, std::pair{5, 1}, std::pair{2, 2},
                                         std::pair{2, 6}, std::pair{3, 3}, std::pair{6, 4}));

TEST(Ellipses, OfSixBySixLoseTheirCorners) {
    Picture picture(6, 6);

    Ellipse(picture.Dc(), 0, 0, 6, 6);

    EXPECT_EQ(picture.Rows(), (Rows{"-kkkk-", "kWWWWk", "kWWWWk", "kWWWWk", "kWWWWk", "-kkkk-"}));
}

TEST(Ellipses, OfSevenByFiveHoldTheCentresInside) {
    Picture picture(7, 5);
    SelectObject(picture.Dc(), GetStockObject(NULL_PEN));

    Ellipse(picture.Dc(), 0, 0, 8, 6);

    EXPECT_EQ(picture.Rows(), (Rows{"-WWWWW-", "WWWWWWW", "WWWWWWW", "WWWWWWW", "-WWWWW-"}));
}

class EllipseSizes : public testing::TestWithParam<std::pair<int, int>> {};

TEST_P(EllipseSizes, AreSymmetricalAndTouchEachPixelOnce) {
    Picture picture(20, 20);
    PatBlt(picture.Dc(), 0, 0, 20, 20, BLACKNESS);
    picture.Use(CreatePen(PS_SOLID, 1, White));
    SetROP2(picture.Dc(), R2_XORPEN);
    const auto [width, height] = GetParam();

    Ellipse(picture.Dc(), 0, 0, width, height);

    const auto at = [&](int x, int y) { return picture.Pixels()[y * 20 + x]; };
    for (int y = 0; y < height; ++y) {
        EXPECT_NE(at(width / 2, y), 0U) << y;
        for (int x = 0; x < width; ++x) {
            EXPECT_EQ(at(x, y), at(width - 1 - x, y)) << x << "," << y;
            EXPECT_EQ(at(x, y), at(x, height - 1 - y)) << x << "," << y;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, EllipseSizes,
                         testing::Values(std::pair{1, 1}, std::pair{2, 3}, std::pair{3, 3}, std::pair{12, 12},
                                         std::pair{13, 7}, std::pair{20, 20}, std::pair{19, 2}));

TEST(Fills, FillRectIgnoresTheMixModeAndEmptyRects) {
    Picture picture(4, 2);
    SetROP2(picture.Dc(), R2_NOP);
    const RECT some = {1, 0, 3, 1};
    const RECT inverted = {3, 2, 1, 0};

    EXPECT_TRUE(FillRect(picture.Dc(), &some, WhiteBrush()));
    EXPECT_TRUE(FillRect(picture.Dc(), &inverted, WhiteBrush()));

    EXPECT_EQ(picture.Rows(), (Rows{"-WW-", "----"}));
}

TEST(Fills, FrameRectIsOnePixelWide) {
    Picture picture(4, 4);
    const RECT all = {0, 0, 4, 4};

    FrameRect(picture.Dc(), &all, WhiteBrush());

    EXPECT_EQ(picture.Rows(), (Rows{"WWWW", "W--W", "W--W", "WWWW"}));
}

TEST(Fills, ColoursTurnRoundBetweenColourAndPixel) {
    Picture picture(1, 1);

    EXPECT_EQ(SetPixel(picture.Dc(), 0, 0, RGB(1, 2, 3)), RGB(1, 2, 3));

    EXPECT_EQ(picture.Pixels()[0], 0x00010203U);
    EXPECT_EQ(GetPixel(picture.Dc(), 0, 0), RGB(1, 2, 3));
    EXPECT_EQ(GetPixel(picture.Dc(), 1, 0), CLR_INVALID);
    EXPECT_EQ(SetPixel(picture.Dc(), 0, -1, White), CLR_INVALID);
}

TEST(Fills, OriginsShiftAndClipsLimit) {
    Picture picture(5, 1);
    SetViewportOrgEx(picture.Dc(), 3, 0, nullptr);
    SetWindowOrgEx(picture.Dc(), 1, 0, nullptr);
    // Logical -1 to 1 lies at device 1 to 3.
    EXPECT_EQ(IntersectClipRect(picture.Dc(), -1, 0, 1, 1), SIMPLEREGION);
    RECT box;
    GetClipBox(picture.Dc(), &box);

    PatBlt(picture.Dc(), -10, 0, 20, 1, WHITENESS);

    EXPECT_EQ(box.left, -1);
    EXPECT_EQ(box.right, 1);
    EXPECT_EQ(picture.Rows(), Rows{"-WW--"});
    SelectClipRgn(picture.Dc(), nullptr);
    PatBlt(picture.Dc(), -10, 0, 20, 1, BLACKNESS);
    EXPECT_EQ(picture.Rows(), Rows{"kkkkk"});
}
