#include "../stage.h"

#include "platform/counts.h"
#include "platform/faults.h"

namespace {

void Set(HDC dc, COLORREF color, UINT align, int x) {
    SetTextColor(dc, color);
    SetTextAlign(dc, align);
    SetViewportOrgEx(dc, x, 0, nullptr);
}

} // namespace

TEST(SavedStates, ComeBackWithAllThatWasSet) {
    const Picture picture(4, 4);
    Set(picture.Dc(), Red, TA_RIGHT, 3);
    IntersectClipRect(picture.Dc(), -3, 0, -1, 4);
    const HPEN pen = CreatePen(PS_SOLID, 1, Red);

    EXPECT_EQ(SaveDC(picture.Dc()), 1);
    Set(picture.Dc(), Black, TA_CENTER, 0);
    SelectClipRgn(picture.Dc(), nullptr);
    const HGDIOBJ before = SelectObject(picture.Dc(), pen);
    EXPECT_TRUE(RestoreDC(picture.Dc(), 1));

    RECT clip;
    GetClipBox(picture.Dc(), &clip);
    EXPECT_EQ(GetTextColor(picture.Dc()), Red);
    EXPECT_EQ(GetTextAlign(picture.Dc()), TA_RIGHT);
    EXPECT_EQ(clip.right, -1);
    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_EQ(SelectObject(picture.Dc(), before), before);
}

TEST(SavedStates, AreNumberedAndLaterOnesAreForgotten) {
    const Picture picture(4, 4);
    for (int i = 1; i <= 4; ++i) {
        SetTextColor(picture.Dc(), static_cast<COLORREF>(i));
        EXPECT_EQ(SaveDC(picture.Dc()), i);
    }
    for (const int missing : {0, 5, -5, INT32_MIN}) {
        EXPECT_FALSE(RestoreDC(picture.Dc(), missing)) << missing;
    }

    EXPECT_TRUE(RestoreDC(picture.Dc(), -2));
    EXPECT_EQ(GetTextColor(picture.Dc()), 3U);
    EXPECT_FALSE(RestoreDC(picture.Dc(), 3));
    EXPECT_TRUE(RestoreDC(picture.Dc(), 1));
    EXPECT_EQ(GetTextColor(picture.Dc()), 1U);
}

TEST(SavedStates, HoldTheirObjectsUntilTheContextGoes) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HPEN pen = CreatePen(PS_SOLID, 1, Red);
    SelectObject(dc, pen);
    SaveDC(dc);
    SelectObject(dc, GetStockObject(BLACK_PEN));

    EXPECT_FALSE(DeleteObject(pen));
    DeleteDC(dc);
    EXPECT_TRUE(DeleteObject(pen));
}

TEST(InformationContexts, MeasureAndTellTheResolution) {
    const auto before = platform::CountLive();
    const HDC dc = CreateICA("DISPLAY", nullptr, nullptr, nullptr);
    SIZE size{};
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSY), 96);
    EXPECT_TRUE(GetTextExtentPoint32A(dc, "a", 1, &size));
    EXPECT_TRUE(TextOutA(dc, 0, 0, "a", 1));
    EXPECT_TRUE(DeleteDC(dc));
    EXPECT_EQ(platform::CountLive().deviceContexts, before.deviceContexts);

    platform::ArmFault("display-context", true, 0);
    EXPECT_EQ(CreateICA("DISPLAY", nullptr, nullptr, nullptr), nullptr);
    platform::ClearFaults();
}
