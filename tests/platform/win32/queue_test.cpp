#include "stage.h"

#include "platform/input.h"

class Queue : public WindowStage {
  protected:
    /// The wParam of the next message that is found and left; -1 for none.
    static int Looked(HWND window, UINT first, UINT last) {
        MSG message;
        return PeekMessageA(&message, window, first, last, PM_NOREMOVE) ? static_cast<int>(message.wParam)
                                                                        : -1;
    }
};

TEST_F(Queue, PostedMovesAreNotMerged) {
    const HWND top = Top("A");
    Pump();
    for (int x = 0; x < 3; ++x) {
        PostMessageA(top, WM_MOUSEMOVE, 0, MAKELPARAM(x, 0));
    }

    EXPECT_EQ(platform::QueuedMessages(), 3U);
    EXPECT_EQ(Pump(), 3);
}

TEST_F(Queue, PaintComesBehindPostedAndBeforeTimers) {
    const HWND top = Top("A");
    SetTimer(top, 1, 50, nullptr);
    m_clock.Advance(50);
    PostMessageA(top, WM_USER, 0, 0);
    Log(WM_PAINT, "paint");
    Log(WM_TIMER, "timer");
    Log(WM_USER, "user");

    Pump();

    EXPECT_EQ(TakeLog(), "A:user A:paint A:timer");
}

TEST_F(Queue, FiltersTakeAWindowWithItsChildrenAndARangeWithItsEnds) {
    const HWND top = Top("A");
    const HWND child = Child("B", top, 0, 0, 5, 5);
    const HWND other = Top("C");
    PostMessageA(child, WM_USER + 1, 1, 0);
    PostMessageA(top, WM_USER + 3, 3, 0);

    EXPECT_EQ(Looked(top, WM_USER + 2, WM_USER + 3), 3);
    EXPECT_EQ(Looked(top, WM_USER, WM_USER + 1), 1);
    EXPECT_EQ(Looked(nullptr, WM_USER, WM_USER + 9), 1);
    EXPECT_EQ(Looked(top, WM_USER + 4, WM_USER + 9), -1);
    EXPECT_EQ(Looked(other, WM_USER, WM_USER + 9), -1);
    EXPECT_EQ(platform::QueuedMessages(), 2U);
}

TEST_F(Queue, QuitComesWhenThePostedOnesAreTakenAndNothingToGetEndsTheLoop) {
    const HWND top = Top("A");
    PostQuitMessage(9);
    PostMessageA(top, WM_USER, 0, 0);
    MSG message;

    EXPECT_EQ(GetMessageA(&message, top, WM_USER, WM_USER), 1);
    EXPECT_EQ(GetMessageA(&message, nullptr, 0, 0), 0);
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 9U);
    Pump();
    EXPECT_EQ(GetMessageA(&message, nullptr, 0, 0), 0);
    EXPECT_EQ(message.message, static_cast<UINT>(WM_NULL));
}

TEST_F(Queue, MessagesCarryTheTimeAndPointerOfTheirPosting) {
    const HWND top = Top("A");
    Pump();
    m_clock.Advance(30);
    platform::SetPointer({11, 12});
    PostMessageA(top, WM_USER, 0, 0);
    m_clock.Advance(40);
    platform::SetPointer({0, 0});
    MSG message;

    GetMessageA(&message, nullptr, 0, 0);

    EXPECT_EQ(message.time, 30U);
    EXPECT_EQ(message.pt.y, 12);
    EXPECT_EQ(GetMessageTime(), 30);
    EXPECT_EQ(GetMessagePos(), 0x000C000BU);
}

struct Key {
    WPARAM key;
    bool shift;
    bool control;
    int character; // -1 for none.
};

TEST_F(Queue, CharactersComeFromTheKeyAndWhatIsHeld) {
    const HWND top = Top("A");
    for (const Key& row :
         {Key{'A', false, false, 'a'}, Key{'A', true, false, 'A'}, Key{'C', false, true, 3},
          Key{VK_RETURN, false, false, 13}, Key{VK_ESCAPE, false, false, 27}, Key{VK_TAB, false, false, 9},
          Key{VK_BACK, false, false, 8}, Key{'7', false, false, '7'}, Key{VK_LEFT, false, false, -1},
          Key{VK_DELETE, false, false, -1}}) {
        platform::SetSyncKey(VK_SHIFT, row.shift);
        platform::SetSyncKey(VK_CONTROL, row.control);
        const MSG down = {top, WM_KEYDOWN, row.key, 0, 0, {}};

        EXPECT_TRUE(TranslateMessage(&down));

        EXPECT_EQ(Looked(top, WM_CHAR, WM_CHAR), row.character) << row.key;
        MSG taken;
        PeekMessageA(&taken, top, WM_CHAR, WM_CHAR, PM_REMOVE);
    }
}

TEST_F(Queue, CharacterOvertakesWhatWasPostedLater) {
    const HWND top = Top("A");
    Pump();
    platform::PostKey(top, WM_KEYDOWN, 'X', 0);
    PostMessageA(top, WM_USER, 0, 0);
    Log(WM_KEYDOWN, "down");
    Log(WM_CHAR, "char");
    Log(WM_USER, "user");

    Pump();

    EXPECT_EQ(TakeLog(), "A:down A:char A:user");
}
