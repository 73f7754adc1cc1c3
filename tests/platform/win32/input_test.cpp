#include "platform/input.h"

#include "stage.h"

class KeyStates : public WindowStage {};

TEST_F(KeyStates, AsyncChangesAtPostingSyncWhenTaken) {
    const HWND top = Top("A");
    Pump();

    platform::PostKey(top, WM_KEYDOWN, VK_CONTROL, 0);
    EXPECT_LT(GetAsyncKeyState(VK_CONTROL), 0);
    EXPECT_EQ(GetKeyState(VK_CONTROL), 0);
    MSG message;
    PeekMessageA(&message, top, 0, 0, PM_NOREMOVE);
    EXPECT_EQ(GetKeyState(VK_CONTROL), 0);
    PeekMessageA(&message, top, 0, 0, PM_REMOVE);

    EXPECT_LT(GetKeyState(VK_CONTROL), 0);
}

TEST_F(KeyStates, KeyUpPostedEarlyIsSeenBySyncStateInItsTurn) {
    const HWND top = Top("A");
    Pump();
    std::vector<bool> held;
    On("A", WM_USER, [&held](HWND, WPARAM, LPARAM) {
        held.push_back(GetKeyState(VK_LEFT) < 0);
        held.push_back(GetAsyncKeyState(VK_LEFT) < 0);
        return LRESULT{0};
    });
    platform::PostKey(top, WM_KEYDOWN, VK_LEFT, 0);
    PostMessageA(top, WM_USER, 0, 0);
    platform::PostKey(top, WM_KEYUP, VK_LEFT, 0);

    Pump();

    EXPECT_EQ(held, (std::vector<bool>{true, false}));
    EXPECT_EQ(GetKeyState(VK_LEFT), 0);
}

TEST_F(KeyStates, ForNoWindowOrNoKeyNothingChanges) {
    const HWND top = Top("A");
    DestroyWindow(top);

    EXPECT_FALSE(platform::PostKey(top, WM_KEYDOWN, VK_UP, 0));
    platform::SetAsyncKey(256, true);
    platform::SetSyncKey(-1, true);

    EXPECT_EQ(GetAsyncKeyState(VK_UP), 0);
    EXPECT_EQ(GetAsyncKeyState(256), 0);
    EXPECT_EQ(GetKeyState(-1), 0);
}

TEST(Cursors, SystemCursorsAreSharedAndKnowTheirIds) {
    const HCURSOR wait = LoadCursorA(nullptr, IDC_WAIT);

    EXPECT_EQ(LoadCursorA(nullptr, IDC_WAIT), wait);
    EXPECT_EQ(platform::CursorId(wait), 32514U);
    EXPECT_EQ(platform::CursorId(LoadCursorA(nullptr, IDC_SIZEALL)), 32646U);
    EXPECT_EQ(LoadCursorA(nullptr, MAKEINTRESOURCEA(7)), nullptr);
    EXPECT_EQ(platform::CursorId(nullptr), 0U);
}
