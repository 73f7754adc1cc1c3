#include "../stage.h"

TEST(Blits, CopyWhatBothSidesHave) {
    Picture source(3, 3);
    Picture target(4, 3);
    source.Paint({"RGB", "kWk", "BGR"});

    BitBlt(target.Dc(), -1, 1, 10, 10, source.Dc(), 0, 0, SRCCOPY);

    EXPECT_EQ(target.Rows(), (Rows{"----", "GB--", "Wk--"}));
}

TEST(Blits, SourceBeforeItsEdgeIsLeftOut) {
    Picture source(2, 2);
    Picture target(4, 2);
    source.Paint({"RG", "BW"});

    BitBlt(target.Dc(), 0, 0, 4, 2, source.Dc(), -1, 1, SRCCOPY);

    EXPECT_EQ(target.Rows(), (Rows{"-BW-", "----"}));
}

TEST(Blits, EmptyAndNegativeSizesDrawNothing) {
    Picture source(2, 2);
    Picture target(2, 2);
    source.Paint({"RG", "BW"});

    EXPECT_TRUE(BitBlt(target.Dc(), 0, 0, 0, 2, source.Dc(), 0, 0, SRCCOPY));
    EXPECT_TRUE(BitBlt(target.Dc(), 1, 1, -1, -1, source.Dc(), 0, 0, SRCCOPY));

    EXPECT_EQ(target.Rows(), (Rows{"--", "--"}));
}

struct Shift {
    int dx;
    int dy;
    Rows expected;
};

class OverlappingBlits : public testing::TestWithParam<Shift> {};

TEST_P(OverlappingBlits, ReadBeforeTheyWrite) {
    Picture picture(4, 3);
    picture.Paint({"RGBW", "kRGB", "WkRG"});

    BitBlt(picture.Dc(), GetParam().dx, GetParam().dy, 4, 3, picture.Dc(), 0, 0, SRCCOPY);

    EXPECT_EQ(picture.Rows(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Shifts, OverlappingBlits,
                         testing::Values(Shift{1, 0, {"RRGB", "kkRG", "WWkR"}},
                                         Shift{-1, 0, {"GBWW", "RGBB", "kRGG"}},
                                         Shift{0, 1, {"RGBW", "RGBW", "kRGB"}},
                                         Shift{0, -1, {"kRGB", "WkRG", "WkRG"}},
                                         Shift{1, 1, {"RGBW", "kRGB", "WkRG"}}));

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
