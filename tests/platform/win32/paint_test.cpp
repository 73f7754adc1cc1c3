#include "stage.h"

#include "platform/counts.h"
#include "platform/faults.h"
#include "platform/observer.h"
#include "platform/surface.h"

class Painting : public WindowStage {
  protected:
    Painting() { Log(WM_PAINT, "paint"); }

    /// The window and its children with nothing left to paint.
    HWND Quiet(HWND top) {
        Pump();
        TakeLog();
        return top;
    }
    static RECT Update(HWND window) {
        RECT rect;
        GetUpdateRect(window, &rect, FALSE);
        return rect;
    }
    static std::string Text(const RECT& r) {
        std::string text;
        for (const LONG edge : {r.left, r.top, r.right, r.bottom}) {
            text += (text.empty() ? "" : ",") + std::to_string(edge);
        }
        return text;
    }
    static DWORD PixelAt(HWND top, int x, int y) {
        platform::Surface surface = {};
        return platform::LockSurface(top, &surface) ? surface.pixels[y * surface.stride + x] : 0xFFFFFFFF;
    }
};

TEST_F(Painting, UpdateAreaIsABoundingRectangleThatShrinksBySides) {
    const HWND top = Quiet(Top("A"));
    const RECT a = {1, 2, 3, 4};
    const RECT b = {10, 1, 99, 3};
    const RECT left = {0, 0, 10, 30};
    const RECT middle = {20, 2, 25, 3};

    InvalidateRect(top, &a, FALSE);
    InvalidateRect(top, &b, FALSE);
    EXPECT_EQ(Text(Update(top)), "1,1,40,4");
    ValidateRect(top, &left);
    ValidateRect(top, &middle);
    EXPECT_EQ(Text(Update(top)), "10,1,40,4");
    ValidateRect(top, nullptr);

    EXPECT_EQ(Pump(), 0);
}

TEST_F(Painting, InvalidatingAParentReachesItsChildrenButNotTheOtherWay) {
    const HWND top = Top("A");
    const HWND child = Child("B", top, 10, 10, 10, 10);
    const HWND apart = Child("C", top, 35, 10, 10, 10);
    Quiet(top);
    const RECT area = {0, 0, 15, 12};

    InvalidateRect(apart, nullptr, FALSE);
    EXPECT_EQ(Text(Update(top)), "0,0,0,0");
    InvalidateRect(top, &area, FALSE);

    EXPECT_EQ(Text(Update(child)), "0,0,5,2");
    EXPECT_EQ(Text(Update(apart)), "0,0,5,10");
}

TEST_F(Painting, ParentsPaintBeforeChildrenAndOnceWhereThereIsSomething) {
    const HWND top = Top("A");
    const HWND child = Child("B", top, 0, 0, 10, 10);
    Quiet(top);

    InvalidateRect(top, nullptr, FALSE);
    Pump();
    EXPECT_EQ(TakeLog(), "A:paint B:paint");
    EXPECT_EQ(Pump(), 0);
    InvalidateRect(child, nullptr, FALSE);
    UpdateWindow(top);

    EXPECT_EQ(TakeLog(), "B:paint");
}

TEST_F(Painting, UpdateSurvivesAWindowThatGoesWhilePaintingAndLeavesHiddenOnesOut) {
    const HWND top = Top("A");
    Child("B", top, 0, 0, 10, 10);
    Child("C", top, 20, 0, 10, 10);
    const HWND hidden = Child("D", top, 0, 0, 10, 10);
    Child("E", hidden, 0, 0, 10, 10);
    ShowWindow(hidden, SW_HIDE);
    Quiet(top);
    On("C", WM_PAINT, [](HWND window, WPARAM, LPARAM) { return LRESULT{DestroyWindow(window)}; });
    InvalidateRect(hidden, nullptr, TRUE);
    InvalidateRect(top, nullptr, FALSE);

    UpdateWindow(top);

    EXPECT_EQ(TakeLog(), "A:paint C:paint B:paint");
}

TEST_F(Painting, BeginPaintEmptiesTheUpdateAreaAndClips) {
    const HWND top = Quiet(Top("A"));
    const RECT area = {5, 5, 8, 8};
    InvalidateRect(top, &area, FALSE);
    PAINTSTRUCT paint;

    const HDC dc = BeginPaint(top, &paint);
    PatBlt(dc, 0, 0, 40, 30, WHITENESS);
    EXPECT_FALSE(GetUpdateRect(top, nullptr, FALSE));
    EXPECT_TRUE(EndPaint(top, &paint));

    EXPECT_EQ(Text(paint.rcPaint), "5,5,8,8");
    EXPECT_EQ(PixelAt(top, 5, 5), 0xFFFFFFU);
    EXPECT_EQ(PixelAt(top, 8, 7), 0U);
    EXPECT_EQ(PixelAt(top, 4, 5), 0U);
}

TEST_F(Painting, EraseIsAskedForOnlyWhereItWasWantedAndUsesTheClassBrush) {
    const HWND top = Quiet(Top("A"));
    Log(WM_ERASEBKGND, "erase");
    SetClassLongPtrA(top, GCLP_HBRBACKGROUND, COLOR_WINDOW + 1);

    InvalidateRect(top, nullptr, FALSE);
    Pump();
    EXPECT_EQ(TakeLog(), "A:paint");
    InvalidateRect(top, nullptr, TRUE);
    Pump();

    EXPECT_EQ(TakeLog(), "A:paint A:erase");
    EXPECT_EQ(PixelAt(top, 39, 29), 0xFFFFFFU);
}

TEST_F(Painting, ChildDrawsIntoItsParentsPixelsWithinItsOwnArea) {
    const HWND top = Top("A");
    const HWND child = Child("B", top, 30, 20, 20, 4);
    const HDC dc = GetDC(child);

    PatBlt(dc, -50, -50, 100, 100, WHITENESS);
    EXPECT_EQ(ReleaseDC(child, dc), 1);

    EXPECT_EQ(PixelAt(top, 39, 23), 0xFFFFFFU);
    EXPECT_EQ(PixelAt(top, 29, 20), 0U);
    EXPECT_EQ(PixelAt(top, 30, 24), 0U);
}

struct Presented final : platform::IPresenter {
    void Present(HWND top, const RECT& dirty) override {
        window = top;
        area = dirty;
        ++times;
    }

    HWND window = nullptr;
    RECT area{};
    int times = 0;
};

TEST_F(Painting, PresenterHearsWhatWasDrawnInTopLevelPixels) {
    const HWND top = Quiet(Top("A"));
    const HWND child = Child("B", top, 10, 5, 20, 20);
    Quiet(top);
    Presented presented;
    platform::SetPresenter(&presented);
    const HDC dc = GetDC(child);

    SetPixel(dc, 1, 1, White);
    SetPixel(dc, 3, 2, White);
    EXPECT_EQ(presented.times, 0);
    ReleaseDC(child, dc);

    EXPECT_EQ(presented.times, 1);
    EXPECT_EQ(presented.window, top);
    EXPECT_EQ(Text(presented.area), "11,6,14,8");
}

struct Seen final : platform::IObserver {
    void OnInvalidate(HWND, const RECT* rect, BOOL) override { ++(rect ? parts : wholes); }
    void OnWaitCursor(int) override {}

    int parts = 0;
    int wholes = 0;
};

TEST_F(Painting, ObserverHearsOfCallsNotOfWhatTheyCause) {
    const HWND top = Top("A");
    Child("B", top, 0, 0, 10, 10);
    Quiet(top);
    Seen seen;
    platform::SetObserver(&seen);
    const RECT part = {0, 0, 5, 5};

    InvalidateRect(top, &part, FALSE);
    InvalidateRect(top, nullptr, FALSE);
    MoveWindow(top, 0, 0, 60, 60, TRUE);

    EXPECT_EQ(seen.parts, 1);
    EXPECT_EQ(seen.wholes, 1);
}

TEST_F(Painting, FailingPaintContextLeavesNothingToPaint) {
    const HWND top = Quiet(Top("A"));
    InvalidateRect(top, nullptr, FALSE);
    platform::ArmFault("display-context", false, 0);

    EXPECT_EQ(GetDC(top), nullptr);
    EXPECT_EQ(Pump(), 1);

    EXPECT_EQ(Pump(), 0);
    EXPECT_EQ(platform::CountLive().deviceContexts, 0U);
}

TEST_F(Painting, ContextFollowsAWindowThatGrowsAndDrawsNothingOnOneThatWent) {
    const HWND top = Quiet(Top("A"));
    const HDC dc = GetDC(top);
    SetPixel(dc, 39, 29, White);

    MoveWindow(top, 0, 0, 50, 50, FALSE);
    SetPixel(dc, 49, 49, White);
    EXPECT_EQ(PixelAt(top, 39, 29), 0xFFFFFFU);
    EXPECT_EQ(PixelAt(top, 49, 49), 0xFFFFFFU);
    DestroyWindow(top);

    EXPECT_EQ(SetPixel(dc, 0, 0, White), CLR_INVALID);
    EXPECT_EQ(ReleaseDC(top, dc), 1);
    EXPECT_EQ(ReleaseDC(top, dc), 0);
}
