#include "../stage.h"

namespace {

HBRUSH WhiteBrush() { return static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)); }

/// What the shape's operation leaves of a picture of this size when it is drawn with stock objects.
Rows Drawn(decltype(&Rectangle) shape, int width, int height, RECT rect, int pen = BLACK_PEN,
           int brush = WHITE_BRUSH) {
    Picture picture(width, height);
    SelectObject(picture.Dc(), GetStockObject(pen));
    SelectObject(picture.Dc(), GetStockObject(brush));
    shape(picture.Dc(), rect.left, rect.top, rect.right, rect.bottom);
    return picture.Rows();
}

} // namespace

TEST(Rectangles, FrameStandsInsideRightAndBottomWhateverTheOrderOfCorners) {
    const Rows expected = {"------", "-kkkk-", "-kWWk-", "-kkkk-", "------"};

    EXPECT_EQ(Drawn(Rectangle, 6, 5, {1, 1, 5, 4}), expected);
    EXPECT_EQ(Drawn(Rectangle, 6, 5, {5, 4, 1, 1}), expected);
}

TEST(Rectangles, NullPenGivesUpTheLastRowAndColumnAndNullBrushTheInside) {
    EXPECT_EQ(Drawn(Rectangle, 5, 4, {1, 1, 5, 4}, NULL_PEN), (Rows{"-----", "-WWW-", "-WWW-", "-----"}));
    EXPECT_EQ(Drawn(Rectangle, 4, 3, {0, 0, 4, 3}, BLACK_PEN, NULL_BRUSH), (Rows{"kkkk", "k--k", "kkkk"}));
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

namespace {

/// The pixels of a black picture that the shape's white frame and inside leave white when drawn by exclusive
/// or.
Rows Toggled(decltype(&Rectangle) shape, int size, int width, int height) {
    Picture picture(size, size);
    PatBlt(picture.Dc(), 0, 0, size, size, BLACKNESS);
    picture.Use(CreatePen(PS_SOLID, 1, White));
    SetROP2(picture.Dc(), R2_XORPEN);
    shape(picture.Dc(), 0, 0, width, height);
    return picture.Rows();
}

} // namespace

TEST(Rectangles, TouchEachPixelOnce) {
    for (const POINT size : {POINT{1, 1}, {1, 5}, {5, 1}, {2, 2}, {2, 6}, {3, 3}, {6, 4}}) {
        const Rows rows = Toggled(Rectangle, 6, size.x, size.y);
        for (int i = 0; i < 36; ++i) {
            EXPECT_EQ(rows[i / 6][i % 6] == 'W', i % 6 < size.x && i / 6 < size.y) << size.x << " " << i;
        }
    }
}

TEST(Ellipses, HoldTheCentresInside) {
    EXPECT_EQ(Drawn(Ellipse, 6, 6, {0, 0, 6, 6}),
              (Rows{"-kkkk-", "kWWWWk", "kWWWWk", "kWWWWk", "kWWWWk", "-kkkk-"}));
    EXPECT_EQ(Drawn(Ellipse, 7, 5, {0, 0, 8, 6}, NULL_PEN),
              (Rows{"-WWWWW-", "WWWWWWW", "WWWWWWW", "WWWWWWW", "-WWWWW-"}));
}

TEST(Ellipses, AreSymmetricalAndTouchEachPixelOnce) {
    for (const POINT size : {POINT{1, 1}, {2, 3}, {3, 3}, {12, 12}, {13, 7}, {20, 20}, {19, 2}}) {
        const Rows rows = Toggled(Ellipse, 20, size.x, size.y);
        for (int y = 0; y < size.y; ++y) {
            const std::string row = rows[y].substr(0, size.x);
            EXPECT_EQ(row[size.x / 2], 'W') << size.x << " " << y;
            EXPECT_EQ(row, std::string(row.rbegin(), row.rend())) << size.x << " " << y;
            EXPECT_EQ(row, rows[size.y - 1 - y].substr(0, size.x)) << size.x << " " << y;
        }
    }
}

TEST(Fills, FillRectIgnoresTheMixModeAndEmptyRectsAndFrameRectIsOnePixelWide) {
    Picture picture(4, 4);
    SetROP2(picture.Dc(), R2_NOP);
    const RECT inverted = {3, 2, 1, 0};
    const RECT some = {1, 1, 3, 2};
    const RECT all = {0, 0, 4, 4};

    EXPECT_TRUE(FillRect(picture.Dc(), &inverted, WhiteBrush()));
    EXPECT_TRUE(FillRect(picture.Dc(), &some, WhiteBrush()));
    EXPECT_EQ(picture.Rows(), (Rows{"----", "-WW-", "----", "----"}));
    FrameRect(picture.Dc(), &all, WhiteBrush());

    EXPECT_EQ(picture.Rows(), (Rows{"WWWW", "WWWW", "W--W", "WWWW"}));
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
