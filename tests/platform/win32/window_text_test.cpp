#include "stage.h"

TEST(WindowText, TitleStartsAsTheNameAndIsReadWhole) {
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = &DefWindowProcA;
    windowClass.lpszClassName = "titled";
    RegisterClassA(&windowClass);
    const HWND window =
        CreateWindowExA(0, "titled", "first", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    char text[8] = "???????";

    EXPECT_EQ(GetWindowTextLengthA(window), 5);
    EXPECT_EQ(GetWindowTextA(window, text, sizeof text), 5);
    EXPECT_STREQ(text, "first");
    EXPECT_TRUE(SetWindowTextA(window, "second one"));
    EXPECT_EQ(GetWindowTextA(window, text, sizeof text), 7);
    EXPECT_STREQ(text, "second ");
    EXPECT_TRUE(SetWindowTextA(window, nullptr));
    EXPECT_EQ(GetWindowTextLengthA(window), 0);

    DestroyWindow(window);
    EXPECT_FALSE(SetWindowTextA(window, "x"));
    UnregisterClassA("titled", nullptr);
}
