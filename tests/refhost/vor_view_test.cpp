#include <gtest/gtest.h>

#include <climits>
#include <cmath>

#include "host/vor_view.h"
#include "image/view_host.h"
#include "platform/surface.h"
#include "refhost_help.h"
#include "trace/trace.h"

using namespace refhost_help;

namespace {

class CTestDC {
  public:
    explicit CTestDC(HBITMAP hBitmap)
        : m_hDC(CreateCompatibleDC(nullptr)), m_hFormer(SelectObject(m_hDC, hBitmap)) {}
    ~CTestDC() {
        SelectObject(m_hDC, m_hFormer);
        DeleteDC(m_hDC);
    }
    HDC Get() const { return m_hDC; }

  private:
    HDC m_hDC;
    HGDIOBJ m_hFormer;
};

COLORREF PixelOf(HBITMAP hBitmap, int x, int y) {
    const CTestDC dc(hBitmap);
    return GetPixel(dc.Get(), x, y);
}

class VorView : public ::testing::Test {
  protected:
    VorView() {
        doc.AddView(&view);
        CViewHost::SetAll(view, 8, 6, 1.0, CPoint(0, 0));
    }
    ~VorView() override { doc.RemoveView(&view); }

    DWORD Cached(int x, int y) {
        DWORD pixel = 0xDEADBEEF;
        CViewHost::CachePixel(view, x, y, pixel);
        return pixel;
    }
    CPoint ToClient(int x, int y) {
        CPoint point;
        view.DocPointToView(CPoint(x, y), point);
        return point;
    }
    CPoint ToDoc(int x, int y) {
        CPoint point;
        view.ViewPointToDoc(CPoint(x, y), point);
        return point;
    }
    void Flush(CRect rect) { view.m_fnFlushCacheRect(rect); }
    CImgNode* Hit(int x, int y) {
        CPoint point(x, y);
        return view.m_fnNodeUnderPt(point);
    }
    CImgNode* Outline(int x, int y) {
        CPoint point(x, y);
        return view.m_fnSelectedNodeBoundaryUnderPt(point);
    }

    CVorDoc doc{8, 6};
    CVorView view;
};

} // namespace

TEST_F(VorView, ConversionsRoundHalvesAwayFromZeroAfterTheScroll) {
    CViewHost::SetAll(view, 8, 6, 1.5, CPoint(10, 0));

    EXPECT_EQ(CPoint(2, 2), ToClient(11, 1));   // 1.5 and 1.5
    EXPECT_EQ(CPoint(-2, -2), ToClient(9, -1)); // -1.5 and -1.5
    EXPECT_EQ(CPoint(3, 5), ToClient(12, 3));   // 3 and 4.5
    EXPECT_EQ(CPoint(11, 1), ToDoc(1, 1));      // 0.67
    EXPECT_EQ(CPoint(9, -1), ToDoc(-1, -2));    // -0.67 and -1.33

    CViewHost::SetZoom(view, 2.0);
    EXPECT_EQ(CPoint(11, 1), ToDoc(1, 1));   // 0.5
    EXPECT_EQ(CPoint(9, -1), ToDoc(-1, -1)); // -0.5
}

TEST_F(VorView, ConversionsStopAtTheLimitsOf32BitsAndABadZoomIsRefused) {
    CViewHost::SetAll(view, 8, 6, 4.0, CPoint(0, 0));
    EXPECT_EQ(CPoint(INT_MAX, INT_MIN), ToClient(1000000000, -1000000000));
    CViewHost::SetAll(view, 8, 6, 1.0, CPoint(INT_MIN, INT_MAX));
    EXPECT_EQ(CPoint(INT_MAX, INT_MIN), ToClient(5, -5));

    for (const double dZoom : {0.0, -1.0, HUGE_VAL}) {
        EXPECT_FALSE(CViewHost::SetZoom(view, dZoom));
    }
}

TEST_F(VorView, ARectangleConvertsByItsCorners) {
    CViewHost::SetAll(view, 8, 6, 0.5, CPoint(0, 0));
    CRect rect;

    view.DocRectToView(CRect(1, 1, 4, 6), rect);
    EXPECT_EQ(CRect(1, 1, 2, 3), rect);
    view.ViewRectToDoc(CRect(1, 2, 3, 4), rect);
    EXPECT_EQ(CRect(2, 4, 6, 8), rect);
}

TEST_F(VorView, AFlushShowsTheDocumentInItsRectangleOnly) {
    AddPicture(doc, Solid(0xFF0000, 8, 6), 0, 0, 0);
    EXPECT_EQ(0x505050u, Cached(2, 2));

    Flush(CRect(2, 2, 4, 3));

    EXPECT_EQ(0xFF0000u, Cached(2, 2));
    EXPECT_EQ(0xFF0000u, Cached(3, 2));
    EXPECT_EQ(0x505050u, Cached(4, 2));
    EXPECT_EQ(0x505050u, Cached(2, 3));
}

TEST_F(VorView, ACacheCopyIsClippedAndThereIsNoneOfNothing) {
    AddPicture(doc, Image(2, 1, {0x112233, 0x445566}), 0, 6, 0);
    Flush(CRect(-100, -100, 100, 100));
    CRect rect(6, -2, 20, 1);
    CRect outside(8, 0, 20, 6);

    const HBITMAP hBitmap = view.m_fnGetDisplayCache(rect);

    ASSERT_NE(nullptr, hBitmap);
    BITMAP bitmap;
    GetObjectA(hBitmap, sizeof bitmap, &bitmap);
    EXPECT_EQ(CSize(2, 1), CSize(bitmap.bmWidth, bitmap.bmHeight));
    EXPECT_EQ(RGB(0x44, 0x55, 0x66), PixelOf(hBitmap, 1, 0));
    DeleteObject(hBitmap);
    EXPECT_EQ(nullptr, view.m_fnGetDisplayCache(outside));
    const CFaultScope fault("bitmap");
    EXPECT_EQ(nullptr, view.m_fnGetDisplayCache(rect));
}

TEST_F(VorView, MarksDrawnOnACopyComeBackIntoTheCache) {
    CRect rect(0, 0, 3, 2);
    const HBITMAP hBitmap = view.m_fnGetDisplayCache(rect);
    {
        const CTestDC dc(hBitmap);
        SetPixel(dc.Get(), 1, 1, RGB(1, 2, 3));
    }

    CPoint place(6, 4);
    view.m_fnUpdateDisplayCache(place, hBitmap);
    CPoint beyond(100, -100);
    view.m_fnUpdateDisplayCache(beyond, hBitmap);
    view.m_fnUpdateDisplayCache(place, nullptr);

    EXPECT_EQ(0x010203u, Cached(7, 5));
    EXPECT_EQ(0x505050u, Cached(6, 4));
    DeleteObject(hBitmap);
}

TEST_F(VorView, TheTopmostNodeWhoseMaskHoldsThePointIsHit) {
    CImgNode* pBack = AddBox(doc, CRect(0, 0, 4, 4));
    CImgNode* pFront = AddPicture(doc, Solid(0, 2, 1), Mask(2, 1, {255, 0}), 0, 0);

    EXPECT_EQ(pFront, Hit(0, 0));
    EXPECT_EQ(pBack, Hit(1, 0));
    EXPECT_EQ(nullptr, Hit(5, 0));
    CViewHost::SetAll(view, 8, 6, 2.0, CPoint(-1, -1));
    EXPECT_EQ(pFront, Hit(2, 2));
    EXPECT_EQ(nullptr, Hit(9, 2)); // 4.5 rounds to 5, and 5 - 1 is outside
}

TEST_F(VorView, TheFirstSelectedOutlineWithItsEdgeIsFound) {
    CImgNode* pBack = AddBox(doc, CRect(1, 1, 4, 4));
    CImgNode* pFront = AddBox(doc, CRect(1, 1, 4, 4));
    doc.GetActList()->AddTail(pBack);
    doc.GetActList()->AddTail(pFront);

    EXPECT_EQ(pBack, Outline(4, 4));
    EXPECT_EQ(nullptr, Outline(5, 4));
    doc.GetActList()->RemoveHead();
    EXPECT_EQ(pFront, Outline(1, 1));
}

TEST_F(VorView, ResizeZoomAndScrollRecomposeAndThenTellTheHost) {
    AddPicture(doc, Solid(0xFF0000, 2, 2), 0, 0, 0);
    int nCalls = 0;
    DWORD pixelThen = 0;
    CViewHost::SetRecomposedHook(view, [&](CVorView&) {
        ++nCalls;
        pixelThen = Cached(0, 0);
    });

    EXPECT_TRUE(CViewHost::SetClientSize(view, 20, 10));
    EXPECT_EQ(CSize(20, 10), CViewHost::ClientSize(view));
    EXPECT_EQ(0xFF0000u, pixelThen);
    CViewHost::SetScroll(view, CPoint(1, 1));
    CViewHost::SetZoom(view, 3.0);
    EXPECT_EQ(3, nCalls);
    EXPECT_EQ(0xFF0000u, Cached(2, 2));
    EXPECT_EQ(0x505050u, Cached(3, 3));
}

TEST_F(VorView, AViewWithoutACacheShowsNothingAndSurvives) {
    {
        const CFaultScope fault("bitmap");
        EXPECT_FALSE(CViewHost::SetClientSize(view, 20, 10));
    }
    CRect rect(0, 0, 5, 5);
    CPoint point(0, 0);

    Flush(rect);
    view.m_fnUpdateDisplayCache(point, nullptr);

    EXPECT_EQ(nullptr, view.m_fnGetDisplayCache(rect));
    EXPECT_TRUE(CViewHost::SetClientSize(view, 20, 10));
    EXPECT_EQ(0x505050u, Cached(19, 9));
}

TEST(VorViewWindow, ShowsTheCacheOfItsSizeWhenRepaintedAndNotBefore) {
    CVorDoc doc(8, 6);
    CVorView* pView = new CVorView; // goes with its window
    CCreateContext context;
    context.m_pCurrentDoc = &doc;
    ASSERT_TRUE(pView->CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP | WS_VISIBLE, 0, 0, 8, 6, nullptr,
                                nullptr, &context));
    pView->MoveWindow(0, 0, 30, 20);
    EXPECT_EQ(CSize(30, 20), CViewHost::ClientSize(*pView));
    CRect rect;
    EXPECT_TRUE(CViewHost::SetClientSize(*pView, 12, 11));
    pView->GetClientRect(&rect);
    EXPECT_EQ(CRect(0, 0, 12, 11), rect);

    pView->UpdateWindow();
    platform::Surface surface;
    ASSERT_TRUE(platform::LockSurface(pView->m_hWnd, &surface));
    AddPicture(doc, Solid(0xFF0000, 2, 2), 0, 1, 1);
    rect = CRect(1, 1, 2, 2);
    pView->m_fnFlushCacheRect(rect);
    EXPECT_EQ(0x505050u, surface.pixels[surface.stride + 1]);
    pView->RepaintViewRect(rect, 1);

    EXPECT_EQ(0xFF0000u, surface.pixels[surface.stride + 1]);
    EXPECT_EQ(0x505050u, surface.pixels[surface.stride + 2]);
    pView->DestroyWindow();
}
