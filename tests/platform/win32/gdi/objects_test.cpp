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

TEST_F(Objects, SelectedOnesCannotBeDeletedUntilTheyOrTheirContextGo) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HPEN pen = CreatePen(PS_SOLID, 1, Black);
    const HBITMAP bitmap = CreateBitmap(2, 2, 1, 32, nullptr);
    SelectObject(dc, bitmap);
    EXPECT_EQ(platform::CountLive().gdiObjects, m_before.gdiObjects + 2);
    EXPECT_EQ(platform::CountLive().deviceContexts, m_before.deviceContexts + 1);

    const HGDIOBJ before = SelectObject(dc, pen);
    EXPECT_EQ(before, GetStockObject(BLACK_PEN));
    EXPECT_FALSE(DeleteObject(pen));
    EXPECT_EQ(SelectObject(dc, before), pen);

    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_FALSE(DeleteObject(pen));
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

    LOGBRUSH record;
    EXPECT_EQ(GetObjectA(GetStockObject(WHITE_BRUSH), sizeof record, &record),
              static_cast<int>(sizeof record));
    EXPECT_EQ(record.lbColor, White);
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
    EXPECT_EQ(GetObjectA(stale, 4, nullptr), 0);

    DeleteDC(dc);
    EXPECT_FALSE(DeleteDC(dc));
    EXPECT_FALSE(LineTo(dc, 1, 1));
}

TEST_F(Objects, BitmapOfANewMemoryContextIsOneBit) {
    const HDC memory = CreateCompatibleDC(nullptr);
    const HDC screen = GetDC(nullptr);
    const std::tuple<HDC, WORD, LONG> rows[] = {{memory, 1, 4}, {screen, 32, 68}};
    for (const auto& [dc, bits, rowBytes] : rows) {
        const HBITMAP bitmap = CreateCompatibleBitmap(dc, 17, 2);
        BITMAP record;
        GetObjectA(bitmap, sizeof record, &record);
        EXPECT_EQ(record.bmBitsPixel, bits);
        EXPECT_EQ(record.bmWidthBytes, rowBytes);
        DeleteObject(bitmap);
    }
    DeleteDC(memory);
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
