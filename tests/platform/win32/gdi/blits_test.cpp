#include "../stage.h"

TEST(Blits, CopyWhatBothSidesHave) {
    Picture source(3, 3);
    source.Paint({"RGB", "kWk", "BGR"});
    struct Row {
        int x, y, width, height, sourceX, sourceY;
        Rows expected;
    };
    for (const Row& row :
         {Row{-1, 1, 10, 10, 0, 0, {"----", "GB--", "Wk--"}},
          Row{0, 0, 4, 2, -1, 1, {"-kWk", "-BGR", "----"}}, Row{0, 0, 0, 2, 0, 0, {"----", "----", "----"}},
          Row{1, 1, -1, -1, 0, 0, {"----", "----", "----"}}}) {
        Picture target(4, 3);
        EXPECT_TRUE(BitBlt(target.Dc(), row.x, row.y, row.width, row.height, source.Dc(), row.sourceX,
                           row.sourceY, SRCCOPY));
        EXPECT_EQ(target.Rows(), row.expected) << row.x << " " << row.width;
    }
}

TEST(Blits, OverlappingOnesReadBeforeTheyWrite) {
    struct Row {
        int dx, dy;
        Rows expected;
    };
    for (const Row& row : {Row{1, 0, {"RRGB", "kkRG", "WWkR"}}, Row{-1, 0, {"GBWW", "RGBB", "kRGG"}},
                           Row{0, 1, {"RGBW", "RGBW", "kRGB"}}, Row{0, -1, {"kRGB", "WkRG", "WkRG"}},
                           Row{1, 1, {"RGBW", "kRGB", "WkRG"}}}) {
        Picture picture(4, 3);
        picture.Paint({"RGBW", "kRGB", "WkRG"});
        BitBlt(picture.Dc(), row.dx, row.dy, 4, 3, picture.Dc(), 0, 0, SRCCOPY);
        EXPECT_EQ(picture.Rows(), row.expected) << row.dx << " " << row.dy;
    }
}

TEST(Blits, OperationsMixBits) {
    Picture source(3, 1);
    Picture target(3, 1);
    const auto mixed = [&](DWORD operation) {
        source.Paint({"RWk"});
        target.Paint({"WRB"});
        BitBlt(target.Dc(), 0, 0, 3, 1, source.Dc(), 0, 0, operation);
        return std::vector<DWORD>(target.Pixels(), target.Pixels() + 3);
    };

    EXPECT_EQ(mixed(SRCINVERT), (std::vector<DWORD>{0x00FFFF, 0x00FFFF, 0x0000FF}));
    EXPECT_EQ(mixed(SRCAND), (std::vector<DWORD>{0xFF0000, 0xFF0000, 0x000000}));
    EXPECT_EQ(mixed(SRCPAINT), (std::vector<DWORD>{0xFFFFFF, 0xFFFFFF, 0x0000FF}));
}

TEST(Blits, OverlappingInvertReadsBeforeItWrites) {
    Picture picture(4, 1);
    picture.Paint({"RkkG"});

    BitBlt(picture.Dc(), 1, 0, 3, 1, picture.Dc(), 0, 0, SRCINVERT);

    EXPECT_EQ(picture.Rows(), Rows{"RRkG"});
}

TEST(Blits, OneBitSourceTakesTextAndBackgroundColours) {
    Picture target(3, 1);
    const BYTE bits[] = {0x40, 0x00};
    const HBITMAP mask = CreateBitmap(3, 1, 1, 1, bits);
    const HDC dc = CreateCompatibleDC(nullptr);
    SelectObject(dc, mask);
    SetTextColor(target.Dc(), Red);
    SetBkColor(target.Dc(), White);

    BitBlt(target.Dc(), 0, 0, 3, 1, dc, 0, 0, SRCCOPY);

    EXPECT_EQ(target.Rows(), Rows{"RWR"});
    DeleteDC(dc);
    DeleteObject(mask);
}

TEST(Blits, OneBitTargetIsSetWhereTheSourceHasItsBackground) {
    Picture source(3, 1);
    source.Paint({"RGR"});
    SetBkColor(source.Dc(), Red);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HBITMAP mask = CreateCompatibleBitmap(dc, 3, 1);
    SelectObject(dc, mask);

    BitBlt(dc, 0, 0, 3, 1, source.Dc(), 0, 0, SRCCOPY);

    EXPECT_EQ(GetPixel(dc, 0, 0), White);
    EXPECT_EQ(GetPixel(dc, 1, 0), Black);
    EXPECT_EQ(GetPixel(dc, 2, 0), White);
    DeleteDC(dc);
    DeleteObject(mask);
}

TEST(Blits, BadSourceFailsUnlessNoneIsNeeded) {
    Picture target(2, 1);

    EXPECT_FALSE(BitBlt(target.Dc(), 0, 0, 2, 1, nullptr, 0, 0, SRCCOPY));
    EXPECT_TRUE(BitBlt(target.Dc(), 0, 0, 1, 1, nullptr, 0, 0, WHITENESS));

    EXPECT_EQ(target.Rows(), Rows{"W-"});
}
