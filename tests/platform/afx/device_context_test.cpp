#include "platform/counts.h"
#include "platform/faults.h"

#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Green = RGB(0, 255, 0);
constexpr COLORREF Black = RGB(0, 0, 0);

// A memory context with an 8 by 8 bitmap, black.
class DeviceContext : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(m_dc.CreateCompatibleDC(nullptr));
        ASSERT_TRUE(m_bitmap.CreateBitmap(8, 8, 1, 32, nullptr));
        m_pOld = m_dc.SelectObject(&m_bitmap);
    }
    void TearDown() override { m_dc.SelectObject(m_pOld); }

    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_pOld = nullptr;
};

} // namespace

TEST_F(DeviceContext, SelectingAnswersTheObjectBefore) {
    CPen red(PS_SOLID, 1, Red);
    CPen green(PS_SOLID, 1, Green);
    CPen* const pStock = m_dc.SelectObject(&red);

    ASSERT_NE(pStock, nullptr);
    EXPECT_EQ(pStock->m_hObject, ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(m_dc.SelectObject(&green), &red);
    EXPECT_EQ(m_dc.SelectObject(pStock), &green);
    EXPECT_EQ(m_dc.SelectObject(static_cast<CPen*>(nullptr)), nullptr);
}

TEST_F(DeviceContext, SolidFillLeavesItsColorAsBackground) {
    m_dc.FillSolidRect(CRect(1, 1, 3, 3), Green);

    EXPECT_EQ(m_dc.GetPixel(2, 2), Green);
    EXPECT_EQ(m_dc.GetPixel(3, 2), Black);
    EXPECT_EQ(m_dc.GetBkColor(), Green);
}

TEST_F(DeviceContext, HandleLeadsToItsObject) {
    EXPECT_EQ(CDC::FromHandle(m_dc.m_hDC), &m_dc);
    EXPECT_EQ(CBitmap::FromHandle(m_bitmap), &m_bitmap);
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
}

TEST(GdiObject, TemporaryObjectsGoWithoutTheirHandles) {
    const HPEN hPen = ::CreatePen(PS_SOLID, 1, Red);
    CPen* const pTemporary = CPen::FromHandle(hPen);
    EXPECT_EQ(pTemporary->m_hObject, hPen);
    EXPECT_EQ(CPen::FromHandle(hPen), pTemporary);

    CGdiObject::DeleteTempMap();

    EXPECT_TRUE(::DeleteObject(hPen));
}

TEST(GdiObject, DestructorDeletesAndDetachKeeps) {
    const unsigned nBefore = platform::CountLive().gdiObjects;
    HGDIOBJ hKept = nullptr;
    {
        const CBrush brush(Red);
        CPen pen(PS_SOLID, 1, Red);
        EXPECT_EQ(platform::CountLive().gdiObjects, nBefore + 2);
        hKept = pen.Detach();
    }
    EXPECT_EQ(platform::CountLive().gdiObjects, nBefore + 1);
    ::DeleteObject(hKept);
}

TEST(ClientContext, GivesItselfBackAndFailsQuietly) {
    CWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    const unsigned nBefore = platform::CountLive().deviceContexts;
    {
        CClientDC dc(&wnd);
        EXPECT_EQ(platform::CountLive().deviceContexts, nBefore + 1);
    }
    EXPECT_EQ(wnd.ReleaseDC(wnd.GetDC()), 1);
    EXPECT_EQ(platform::CountLive().deviceContexts, nBefore);

    platform::ArmFault("display-context", true, 0);
    CClientDC dc(&wnd);
    platform::ClearFaults();
    EXPECT_EQ(dc.GetSafeHdc(), nullptr);
    EXPECT_FALSE(dc.LineTo(1, 1));
}
