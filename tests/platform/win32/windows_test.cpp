#include "stage.h"

#include "platform/counts.h"
#include "platform/faults.h"

class Windows : public WindowStage {};

TEST_F(Windows, CreationSendsNcCreateThenCreateAndEachMayRefuse) {
    Log(WM_NCCREATE, "nccreate");
    Log(WM_CREATE, "create");
    Log(WM_SIZE, "size");
    Log(WM_DESTROY, "destroy");
    Log(WM_NCDESTROY, "gone");
    On("B", WM_NCCREATE, [](HWND, WPARAM, LPARAM) { return LRESULT{0}; });
    On("C", WM_CREATE, [](HWND, WPARAM, LPARAM) { return LRESULT{-1}; });

    EXPECT_NE(Top("A"), nullptr);
    EXPECT_EQ(TakeLog(), "A:nccreate A:create A:size");
    EXPECT_EQ(Top("B"), nullptr);
    EXPECT_EQ(TakeLog(), "B:nccreate B:gone");
    EXPECT_EQ(Top("C"), nullptr);
    EXPECT_EQ(TakeLog(), "C:nccreate C:create C:destroy C:gone");
    platform::ArmFault("window", true, 0);
    EXPECT_EQ(Top("D"), nullptr);
    EXPECT_EQ(platform::CountLive().windows, 1U);
}

TEST_F(Windows, ChildrenAreGoneBeforeTheParentIs) {
    const HWND top = Top("A");
    Child("C", Child("B", top, 0, 0, 10, 10), 0, 0, 5, 5);
    Log(WM_DESTROY, "destroy");
    Log(WM_NCDESTROY, "gone");

    DestroyWindow(top);

    EXPECT_EQ(TakeLog(), "A:destroy B:destroy C:destroy C:gone B:gone A:gone");
}

TEST_F(Windows, DestroyedInItsOwnHandlerTheDispatchReturns) {
    const HWND child = Child("B", Top("A"), 0, 0, 10, 10);
    On("B", WM_KEYDOWN, [](HWND window, WPARAM, LPARAM) { return LRESULT{DestroyWindow(window) + 6}; });
    const MSG message = {child, WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};

    EXPECT_EQ(DispatchMessageA(&message), 7);

    EXPECT_FALSE(IsWindow(child));
}

TEST_F(Windows, ChildMayDestroyItsParentButNotItselfWhileItIsDestroyed) {
    const HWND top = Top("A");
    const HWND child = Child("B", top, 0, 0, 10, 10);
    On("B", WM_DESTROY, [top](HWND window, WPARAM, LPARAM) {
        EXPECT_FALSE(DestroyWindow(window));
        return LRESULT{DestroyWindow(top)};
    });

    EXPECT_TRUE(DestroyWindow(child));

    EXPECT_FALSE(IsWindow(top));
    EXPECT_EQ(platform::CountLive().windows, 0U);
}

TEST_F(Windows, QueuedMessagesGoWithTheWindow) {
    const HWND top = Top("A");
    const HWND child = Child("B", top, 0, 0, 10, 10);
    Log(WM_USER, "user");
    for (const HWND window : {child, top}) {
        PostMessageA(window, WM_USER, 0, 0);
    }

    DestroyWindow(child);
    Pump();

    EXPECT_EQ(TakeLog(), "A:user");
}

TEST_F(Windows, OwnedPopUpGoesWithItsOwner) {
    const HWND owner = Top("A");
    const HWND owned =
        CreateWindowExA(0, "StageWindow", "", WS_POPUP, 0, 0, 5, 5, owner, nullptr, nullptr, nullptr);

    EXPECT_EQ(GetParent(owned), owner);
    DestroyWindow(owner);

    EXPECT_FALSE(IsWindow(owned));
}

TEST_F(Windows, CoordinatesAddUpAlongTheParents) {
    const HWND inner = Child("C", Child("B", Top("A"), 7, 8, 20, 20), 1, 2, 5, 5);
    POINT point = {10, 20};
    RECT rect;

    ClientToScreen(inner, &point);
    GetWindowRect(inner, &rect);

    EXPECT_EQ(point.x, 100 + 7 + 1 + 10);
    EXPECT_EQ(point.y, 50 + 8 + 2 + 20);
    EXPECT_EQ(rect.left, 108);
    EXPECT_EQ(rect.bottom, 65);
}

TEST_F(Windows, ElderOfTwoOverlappingChildrenIsOnTop) {
    const HWND top = Top("A");
    const HWND elder = Child("B", top, 0, 0, 10, 10);
    const HWND younger = Child("C", top, 5, 0, 10, 10);

    EXPECT_EQ(ChildWindowFromPoint(top, {7, 3}), elder);
    ShowWindow(elder, SW_HIDE);
    EXPECT_EQ(ChildWindowFromPoint(top, {7, 3}), younger);
    EXPECT_EQ(ChildWindowFromPoint(top, {30, 20}), top);
    EXPECT_EQ(ChildWindowFromPoint(top, {40, 20}), nullptr);
    ShowWindow(elder, SW_SHOW);
    SetWindowPos(younger, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_EQ(ChildWindowFromPoint(top, {7, 3}), younger);
}

TEST_F(Windows, MovingSendsMoveAndSizingSize) {
    const HWND top = Top("A", 40, 30);
    Log(WM_MOVE, "move");
    Log(WM_SIZE, "size");

    MoveWindow(top, 0, 0, 40, 30, TRUE);
    EXPECT_EQ(TakeLog(), "A:move");
    MoveWindow(top, 0, 0, 50, 30, TRUE);
    EXPECT_EQ(TakeLog(), "A:size");
    MoveWindow(top, 0, 0, 50, 30, TRUE);
    EXPECT_EQ(TakeLog(), "");
}

TEST_F(Windows, ClassCursorIsOneForAllWindowsOfTheClass) {
    const HWND a = Top("A");
    const HWND b = Top("B");
    const HCURSOR arrow = LoadCursorA(nullptr, IDC_ARROW);

    EXPECT_EQ(SetClassLongA(a, GCL_HCURSOR, static_cast<LONG>(reinterpret_cast<LONG_PTR>(arrow))), 0U);

    EXPECT_EQ(GetClassLongPtrA(b, GCL_HCURSOR), reinterpret_cast<ULONG_PTR>(arrow));
    SendMessageA(b, WM_SETCURSOR, reinterpret_cast<WPARAM>(b), HTCLIENT);
    EXPECT_EQ(GetCursor(), arrow);
}

TEST_F(Windows, ClassWithWindowsCannotGoAndItsNameIsTakenOnce) {
    const HWND top = Top("A");
    WNDCLASSA again = {};
    EXPECT_TRUE(GetClassInfoA(nullptr, "stagewindow", &again));

    EXPECT_EQ(RegisterClassA(&again), 0);
    EXPECT_EQ(GetLastError(), ERROR_CLASS_ALREADY_EXISTS);
    EXPECT_FALSE(UnregisterClassA("STAGEWINDOW", nullptr));
    EXPECT_EQ(GetLastError(), ERROR_CLASS_HAS_WINDOWS);

    DestroyWindow(top);
    EXPECT_TRUE(UnregisterClassA("STAGEWINDOW", nullptr));
    EXPECT_EQ(Top("B"), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_CANNOT_FIND_WND_CLASS);
}

TEST_F(Windows, StaleAndForeignHandlesFail) {
    const HWND stale = Top("A");
    DestroyWindow(stale);
    const HWND reused = Top("B");
    const HWND foreign = reinterpret_cast<HWND>(GetStockObject(BLACK_PEN));
    RECT rect = {1, 2, 3, 4};

    for (HWND bad : {stale, foreign, HWND{}, reinterpret_cast<HWND>(&rect)}) {
        EXPECT_FALSE(GetClientRect(bad, &rect));
        EXPECT_EQ(SendMessageA(bad, WM_USER, 0, 0), 0);
        EXPECT_FALSE(DestroyWindow(bad));
        EXPECT_FALSE(InvalidateRect(bad, nullptr, TRUE));
        EXPECT_EQ(GetLastError(), ERROR_INVALID_WINDOW_HANDLE);
    }
    EXPECT_EQ(rect.left, 1);
    EXPECT_TRUE(IsWindow(reused));
}

TEST_F(Windows, ExtremePlacesAreBroughtWithinLimits) {
    const HWND top = Top("A");
    const HWND child = Child("B", top, INT32_MAX, INT32_MIN, INT32_MAX, -5);
    RECT rect;

    EXPECT_TRUE(GetClientRect(child, &rect));

    EXPECT_EQ(rect.right, 32767);
    EXPECT_EQ(rect.bottom, 0);
}
