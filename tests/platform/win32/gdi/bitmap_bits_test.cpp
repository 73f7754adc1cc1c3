#include "../stage.h"

TEST(BitmapBits, RowsArePaddedToTwoBytes) {
    const struct {
        UINT bits;
        std::vector<BYTE> bytes;
    } rows[] = {
        {1, {0xA0, 0, 0x40, 0}},
        {24, {1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 11, 12, 13, 14, 15, 16, 17, 18, 19, 0}},
        {32, {1, 2, 3, 0, 4, 5, 6, 0, 7, 8, 9, 0, 11, 12, 13, 0, 14, 15, 16, 0, 17, 18, 19, 0}},
    };
    for (const auto& row : rows) {
        const HBITMAP bitmap = CreateBitmap(3, 2, 1, row.bits, row.bytes.data());
        const LONG size = static_cast<LONG>(row.bytes.size());
        BITMAP record{};
        GetObjectA(bitmap, sizeof record, &record);
        EXPECT_EQ(record.bmBitsPixel, row.bits);
        EXPECT_EQ(record.bmWidthBytes * 2, size) << row.bits;

        std::vector<BYTE> told(row.bytes.size(), 0xEE);
        EXPECT_EQ(GetBitmapBits(bitmap, size + 10, told.data()), size) << row.bits;
        EXPECT_EQ(told, row.bytes) << row.bits;
        EXPECT_EQ(GetBitmapBits(bitmap, 0, nullptr), size) << row.bits;
        DeleteObject(bitmap);
    }
}

TEST(BitmapBits, AShorterBufferTakesWhatItHolds) {
    const BYTE bytes[] = {1, 2, 3, 0, 4, 5, 6, 0};
    const HBITMAP bitmap = CreateBitmap(1, 2, 1, 24, bytes);
    std::vector<BYTE> told(8, 0xEE);

    EXPECT_EQ(GetBitmapBits(bitmap, 5, told.data()), 5);
    EXPECT_EQ(told, (std::vector<BYTE>{1, 2, 3, 0, 4, 0xEE, 0xEE, 0xEE}));
    EXPECT_EQ(GetBitmapBits(bitmap, -1, told.data()), 0);
    DeleteObject(bitmap);
    EXPECT_EQ(GetBitmapBits(bitmap, 5, told.data()), 0);
}

TEST(BitmapBits, ACompatibleBitmapHasAsManyBits) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HBITMAP threeBytes = CreateBitmap(2, 2, 1, 24, nullptr);
    const HGDIOBJ before = SelectObject(dc, threeBytes);
    const HBITMAP like = CreateCompatibleBitmap(dc, 5, 1);
    SelectObject(dc, before);

    EXPECT_EQ(GetBitmapBits(like, 0, nullptr), 16);
    DeleteObject(like);
    DeleteObject(threeBytes);
    DeleteDC(dc);
}
