#include "stage.h"

class Focus : public WindowStage {
  protected:
    Focus() {
        Log(WM_SETFOCUS, "set");
        Log(WM_KILLFOCUS, "kill");
        Log(WM_CAPTURECHANGED, "lost");
    }
};

TEST_F(Focus, LoserHearsBeforeWinner) {
    const HWND a = Top("A");
    const HWND b = Child("B", a, 0, 0, 5, 5);

    EXPECT_EQ(SetFocus(a), nullptr);
    EXPECT_EQ(SetFocus(b), a);

    EXPECT_EQ(TakeLog(), "A:set A:kill B:set");
    EXPECT_EQ(GetFocus(), b);
}

TEST_F(Focus, SettingItAgainSendsNothing) {
    const HWND a = Top("A");
    SetFocus(a);
    TakeLog();

    EXPECT_EQ(SetFocus(a), a);

    EXPECT_EQ(TakeLog(), "");
}

TEST_F(Focus, ParentGetsItWhenTheHolderGoes) {
    const HWND a = Top("A");
    const HWND b = Child("B", a, 0, 0, 5, 5);
    SetFocus(b);
    TakeLog();

    DestroyWindow(b);

    EXPECT_EQ(TakeLog(), "B:kill A:set");
    EXPECT_EQ(GetFocus(), a);
}

TEST_F(Focus, ParentGetsItWhenTheHolderHides) {
    const HWND a = Top("A");
    const HWND b = Child("B", a, 0, 0, 5, 5);
    SetFocus(b);

    ShowWindow(b, SW_HIDE);

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

TEST_F(Focus, CaptureTellsTheLoserWhoTookIt) {
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
    EXPECT_EQ(GetCapture(), b);
    EXPECT_EQ(TakeLog(), "A:lost");
}

TEST_F(Focus, ReleasingTellsTheHolderOnce) {
    SetCapture(Top("A"));

    EXPECT_TRUE(ReleaseCapture());
    EXPECT_TRUE(ReleaseCapture());

    EXPECT_EQ(TakeLog(), "A:lost");
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(Focus, CaptureEndsWithItsHolder) {
    const HWND a = Top("A");
    SetCapture(a);

    DestroyWindow(a);

    EXPECT_EQ(GetCapture(), nullptr);
}
