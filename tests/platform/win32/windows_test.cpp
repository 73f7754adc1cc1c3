#include "stage.h"

#include "platform/counts.h"
#include "platform/faults.h"

class Windows : public WindowStage {};

TEST_F(Windows, CreationSendsNcCreateThenCreate) {
    Log(WM_NCCREATE, "nccreate");
    Log(WM_CREATE, "create");
    Log(WM_SIZE, "size");

    Top("A");

    EXPECT_EQ(TakeLog(), "A:nccreate A:create A:size");
}

TEST_F(Windows, RefusedNcCreateLeavesNoWindow) {
    Log(WM_NCDESTROY, "ncdestroy");
    On("A", WM_NCCREATE, [](HWND, WPARAM, LPARAM) { return LRESULT{0}; });

    EXPECT_EQ(Top("A"), nullptr);

    EXPECT_EQ(TakeLog(), "A:ncdestroy");
    EXPECT_EQ(platform::CountLive().windows, 0U);
}

TEST_F(Windows, CreateAnsweringMinusOneDestroysTheWindow) {
    Log(WM_DESTROY, "destroy");
    On("A", WM_CREATE, [](HWND, WPARAM, LPARAM) { return LRESULT{-1}; });

    EXPECT_EQ(Top("A"), nullptr);

    EXPECT_EQ(TakeLog(), "A:destroy");
    EXPECT_EQ(platform::CountLive().windows, 0U);
}

TEST_F(Windows, ArmedFaultFailsTheCreation) {
    platform::ArmFault("window", true, 1);

    const HWND first = Top("A");
    const HWND second = Top("B");
    const HWND third = Top("C");

    EXPECT_NE(first, nullptr);
    EXPECT_EQ(second, nullptr);
    EXPECT_NE(third, nullptr);
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
    const HWND top = Top("A");
    const HWND child = Child("B", top, 0, 0, 10, 10);
    On("B", WM_KEYDOWN, [](HWND window, WPARAM, LPARAM) {
        DestroyWindow(window);
        return LRESULT{7};
    });
    const MSG message = {child, WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};

    EXPECT_EQ(DispatchMessageA(&message), 7);

    EXPECT_FALSE(IsWindow(child));
    EXPECT_TRUE(IsWindow(top));
}

TEST_F(Windows, ChildMayDestroyItsParentWhileItIsDestroyed) {
    const HWND top = Top("A");
    const HWND child = Child("B", top, 0, 0, 10, 10);
    On("B", WM_DESTROY, [top](HWND, WPARAM, LPARAM) { return LRESULT{DestroyWindow(top)}; });

    EXPECT_TRUE(DestroyWindow(child));

    EXPECT_FALSE(IsWindow(top));
    EXPECT_EQ(platform::CountLive().windows, 0U);
}

TEST_F(Windows, DestroyingTwiceFromWithinFails) {
    const HWND top = Top("A");
    BOOL inner = TRUE;
    On("A", WM_DESTROY, [&inner](HWND window, WPARAM, LPARAM) {
        inner = DestroyWindow(window);
        return LRESULT{0};
    });

    EXPECT_TRUE(DestroyWindow(top));

    EXPECT_FALSE(inner);
}

TEST_F(Windows, QueuedMessagesGoWithTheWindow) {
    const HWND top = Top("A");
    const HWND child = Child("B", top, 0, 0, 10, 10);
    Pump();
    PostMessageA(child, WM_USER, 0, 0);
    PostMessageA(top, WM_USER, 0, 0);

    DestroyWindow(child);

    MSG message;
    EXPECT_TRUE(PeekMessageA(&message, nullptr, WM_USER, WM_USER, PM_REMOVE));
    EXPECT_EQ(message.hwnd, top);
    EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_USER, WM_USER, PM_REMOVE));
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
    ScreenToClient(inner, &point);
    EXPECT_EQ(point.x, 10);
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

TEST_F(Windows, ShownChildOfAHiddenParentIsNotVisible) {
    const HWND top = Top("A");
    const HWND child = Child("B", top, 0, 0, 10, 10);

    EXPECT_TRUE(IsWindowVisible(child));
    EXPECT_TRUE(ShowWindow(top, SW_HIDE));
    EXPECT_FALSE(IsWindowVisible(child));
    EXPECT_FALSE(ShowWindow(top, SW_SHOW));
    EXPECT_TRUE(IsWindowVisible(child));
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

TEST_F(Windows, SubclassingPutsAProcedureBefore) {
    const HWND top = Top("A");
    static WNDPROC before = nullptr;
    const WNDPROC doubling = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
        return 2 * CallWindowProcA(before, window, message, wParam, lParam);
    };
    On("A", WM_USER, [](HWND, WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam) + 1; });

    before =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrA(top, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(doubling)));
    EXPECT_EQ(SendMessageA(top, WM_USER, 4, 0), 10);

    SetWindowLongPtrA(top, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(before));
    EXPECT_EQ(SendMessageA(top, WM_USER, 4, 0), 5);
}

TEST_F(Windows, UserDataAndIdAreKept) {
    const HWND top = Top("A");

    EXPECT_EQ(SetWindowLongPtrA(top, GWLP_USERDATA, 77), 0);
    EXPECT_EQ(SetWindowLongA(top, GWL_ID, 5), 0);

    EXPECT_EQ(GetWindowLongPtrA(top, GWLP_USERDATA), 77);
    EXPECT_EQ(GetDlgCtrlID(top), 5);
    EXPECT_EQ(GetWindowLongA(top, GWL_WNDPROC), 0);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_INDEX);
}

TEST_F(Windows, ClassWithWindowsCannotGo) {
    const HWND top = Top("A");

    EXPECT_FALSE(UnregisterClassA("STAGEWINDOW", nullptr));
    EXPECT_EQ(GetLastError(), ERROR_CLASS_HAS_WINDOWS);

    DestroyWindow(top);
    EXPECT_TRUE(UnregisterClassA("STAGEWINDOW", nullptr));
    EXPECT_EQ(Top("B"), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_CANNOT_FIND_WND_CLASS);
}

TEST_F(Windows, ClassNameIsTakenOnce) {
    WNDCLASSA again = {};
    EXPECT_TRUE(GetClassInfoA(nullptr, "stagewindow", &again));

    EXPECT_EQ(RegisterClassA(&again), 0);

    EXPECT_EQ(GetLastError(), ERROR_CLASS_ALREADY_EXISTS);
}

TEST_F(Windows, StaleAndForeignHandlesFail) {
    const HWND stale = Top("A");
    DestroyWindow(stale);
    const HWND reused = Top("B");
    const HWND foreign = reinterpret_cast<HWND>(GetStockObject(BLACK_PEN));
    RECT rect = {1, 2, 3, 4};

    for (HWND bad : {stale, foreign, HWND{}, reinterpret_cast<HWND>(&rect)}) {
        EXPECT_FALSE(IsWindow(bad));
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
