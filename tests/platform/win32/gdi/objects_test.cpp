#include "../stage.h"

#include "platform/counts.h"
#include "platform/faults.h"

class Objects : public testing::Test {
  protected:
    Objects() : m_before(platform::CountLive()) {}
    ~Objects() override {
        platform::ClearFaults();
        EXPECT_EQ(platform::CountLive().gdiObjects, m_before.gdiObjects);
        EXPECT_EQ(platform::CountLive().deviceContexts, m_before.deviceContexts);
    }

    platform::LiveCounts m_before;
};

TEST_F(Objects, CountsRiseAndFall) {
    const HPEN pen = CreatePen(PS_SOLID, 1, Black);
    const HDC dc = CreateCompatibleDC(nullptr);
    GetStockObject(WHITE_BRUSH);
    GetSysColorBrush(COLOR_BTNFACE);

    EXPECT_EQ(platform::CountLive().gdiObjects, m_before.gdiObjects + 1);
    EXPECT_EQ(platform::CountLive().deviceContexts, m_before.deviceContexts + 1);
    DeleteObject(pen);
    DeleteDC(dc);
}

TEST_F(Objects, SelectedOnesCannotBeDeleted) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HPEN pen = CreatePen(PS_SOLID, 1, Black);

    const HGDIOBJ before = SelectObject(dc, pen);
    EXPECT_EQ(before, GetStockObject(BLACK_PEN));
    EXPECT_FALSE(DeleteObject(pen));
    EXPECT_EQ(SelectObject(dc, before), pen);

    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_FALSE(DeleteObject(pen));
    DeleteDC(dc);
}

TEST_F(Objects, ContextThatGoesSetsItsObjectsFree) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateBitmap(2, 2, 1, 32, nullptr);
    SelectObject(dc, bitmap);

    DeleteDC(dc);

    EXPECT_TRUE(DeleteObject(bitmap));
}

TEST_F(Objects, BitmapIsInOneMemoryContextAtATime) {
    const HDC a = CreateCompatibleDC(nullptr);
    const HDC b = CreateCompatibleDC(nullptr);
    const HDC screen = GetDC(nullptr);
    const HBITMAP bitmap = CreateBitmap(2, 2, 1, 32, nullptr);

    const HGDIOBJ before = SelectObject(a, bitmap);
    EXPECT_EQ(SelectObject(b, bitmap), nullptr);
    EXPECT_EQ(SelectObject(screen, bitmap), nullptr);
    SelectObject(a, before);
    EXPECT_EQ(SelectObject(b, bitmap), before);

    DeleteDC(a);
    DeleteDC(b);
    EXPECT_EQ(ReleaseDC(nullptr, screen), 1);
    DeleteObject(bitmap);
}

TEST_F(Objects, StockObjectsOutliveTheirDeletion) {
    const HGDIOBJ white = GetStockObject(WHITE_BRUSH);

    EXPECT_TRUE(DeleteObject(white));

    EXPECT_EQ(GetStockObject(WHITE_BRUSH), white);
    LOGBRUSH record;
    EXPECT_EQ(GetObjectA(white, sizeof record, &record), static_cast<int>(sizeof record));
    EXPECT_EQ(record.lbColor, White);
    EXPECT_EQ(GetStockObject(99), nullptr);
}

TEST_F(Objects, ForeignAndStaleHandlesFail) {
    const HPEN stale = CreatePen(PS_SOLID, 1, Black);
    DeleteObject(stale);
    const HDC dc = CreateCompatibleDC(nullptr);

    EXPECT_EQ(SelectObject(dc, stale), nullptr);
    EXPECT_EQ(SelectObject(dc, dc), nullptr);
    EXPECT_EQ(SelectObject(reinterpret_cast<HDC>(GetStockObject(BLACK_PEN)), GetStockObject(BLACK_PEN)),
              nullptr);
    EXPECT_FALSE(DeleteObject(dc));
    EXPECT_FALSE(DeleteDC(reinterpret_cast<HDC>(stale)));
    EXPECT_EQ(GetObjectA(stale, 4, nullptr), 0);

    DeleteDC(dc);
    EXPECT_FALSE(DeleteDC(dc));
    EXPECT_FALSE(LineTo(dc, 1, 1));
    EXPECT_EQ(GetBkColor(dc), CLR_INVALID);
}

TEST_F(Objects, BitmapOfANewMemoryContextIsOneBit) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HDC screen = GetDC(nullptr);
    const HBITMAP likeMemory = CreateCompatibleBitmap(dc, 17, 2);
    const HBITMAP likeScreen = CreateCompatibleBitmap(screen, 17, 2);
    BITMAP record;

    GetObjectA(likeMemory, sizeof record, &record);
    EXPECT_EQ(record.bmBitsPixel, 1);
    EXPECT_EQ(record.bmWidthBytes, 4);
    GetObjectA(likeScreen, sizeof record, &record);
    EXPECT_EQ(record.bmBitsPixel, 32);
    EXPECT_EQ(record.bmWidthBytes, 68);
    EXPECT_EQ(record.bmBits, nullptr);

    DeleteObject(likeMemory);
    DeleteObject(likeScreen);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
}

TEST_F(Objects, BottomUpSectionHasItsLowestRowFirst) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), 2, 3, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP section = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HDC dc = CreateCompatibleDC(nullptr);
    SelectObject(dc, section);

    SetPixel(dc, 1, 2, Red);

    EXPECT_EQ(static_cast<DWORD*>(bits)[1], 0xFF0000U);
    DeleteDC(dc);
    DeleteObject(section);
}

TEST_F(Objects, UnknownFormatsAndSizesAreRefused) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), 2, -2, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;

    EXPECT_EQ(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0), nullptr);
    EXPECT_EQ(CreateBitmap(2, 2, 1, 8, nullptr), nullptr);
    EXPECT_EQ(CreateBitmap(100000, 2, 1, 32, nullptr), nullptr);
    EXPECT_EQ(CreateBitmap(-1, 2, 1, 32, nullptr), nullptr);
    EXPECT_EQ(CreatePen(99, 1, Black), nullptr);
    EXPECT_EQ(SetROP2(nullptr, R2_COPYPEN), 0);
}

TEST_F(Objects, ArmedFaultsFailContextsAndBitmaps) {
    platform::ArmFault("device-context", true, 0);
    platform::ArmFault("bitmap", true, 1);

    EXPECT_EQ(CreateCompatibleDC(nullptr), nullptr);
    const HBITMAP first = CreateBitmap(2, 2, 1, 32, nullptr);
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(CreateBitmap(2, 2, 1, 32, nullptr), nullptr);

    DeleteObject(first);
}
