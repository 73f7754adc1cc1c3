#include "stage.h"

class Focus : public WindowStage {
  protected:
    Focus() {
        Log(WM_SETFOCUS, "set");
        Log(WM_KILLFOCUS, "kill");
        Log(WM_CAPTURECHANGED, "lost");
    }
};

TEST_F(Focus, LoserHearsBeforeWinnerAndOnlyOfChanges) {
    const HWND a = Top("A");
    const HWND b = Child("B", a, 0, 0, 5, 5);

    EXPECT_EQ(SetFocus(a), nullptr);
    EXPECT_EQ(SetFocus(b), a);
    EXPECT_EQ(SetFocus(b), b);

    EXPECT_EQ(TakeLog(), "A:set A:kill B:set");
    EXPECT_EQ(GetFocus(), b);
}

TEST_F(Focus, ParentGetsItWhenTheHolderGoesOrHides) {
    const HWND a = Top("A");
    const HWND b = Child("B", a, 0, 0, 5, 5);
    const HWND c = Child("C", a, 0, 0, 5, 5);
    SetFocus(b);
    TakeLog();

    DestroyWindow(b);
    EXPECT_EQ(TakeLog(), "B:kill A:set");
    SetFocus(c);
    ShowWindow(c, SW_HIDE);

    EXPECT_EQ(GetFocus(), a);
}

TEST_F(Focus, LoserMayPassItOnElsewhere) {
    const HWND a = Top("A");
    const HWND b = Top("B");
    const HWND c = Top("C");
    SetFocus(a);
    On("A", WM_KILLFOCUS, [c](HWND, WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(SetFocus(c)); });
    TakeLog();

    SetFocus(b);

    EXPECT_EQ(GetFocus(), c);
    EXPECT_EQ(TakeLog(), "A:kill B:kill C:set");
}

TEST_F(Focus, CaptureTellsTheLoserWhoTookItAndEndsByReleaseOrWithItsHolder) {
    const HWND a = Top("A");
    const HWND b = Top("B");
    HWND winner = nullptr;
    On("A", WM_CAPTURECHANGED, [&winner](HWND, WPARAM, LPARAM lParam) {
        winner = reinterpret_cast<HWND>(lParam);
        return LRESULT{0};
    });
    SetCapture(a);

    EXPECT_EQ(SetCapture(b), a);
    EXPECT_EQ(winner, b);
    EXPECT_TRUE(ReleaseCapture());
    EXPECT_TRUE(ReleaseCapture());
    EXPECT_EQ(TakeLog(), "A:lost B:lost");
    SetCapture(b);
    DestroyWindow(b);

    EXPECT_EQ(GetCapture(), nullptr);
}
