#include <afxwin.h>

#include <gtest/gtest.h>

TEST(Font, PointSizeIsTenthsAtTheResolution) {
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, "Arial"));

    LOGFONT description{};
    EXPECT_EQ(font.GetLogFont(&description), static_cast<int>(sizeof(LOGFONT)));
    EXPECT_EQ(description.lfHeight, -16);
    EXPECT_EQ(description.lfCharSet, DEFAULT_CHARSET);
    EXPECT_STREQ(description.lfFaceName, "Arial");
}

TEST(Font, MeasuresInAnInformationContextUntilTheStateComesBack) {
    CDC dc;
    ASSERT_TRUE(dc.CreateIC("DISPLAY", nullptr, nullptr, nullptr));
    CFont font;
    ASSERT_TRUE(
        font.CreateFont(-16, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial"));
    const int nSaved = dc.SaveDC();
    CFont* const pStock = dc.SelectObject(&font);
    EXPECT_EQ(pStock->m_hObject, ::GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(dc.GetTextExtent(CString("Ai")), CSize(15, 18));
    EXPECT_FALSE(::DeleteObject(font));

    EXPECT_TRUE(dc.RestoreDC(nSaved));
    EXPECT_TRUE(font.DeleteObject());
    EXPECT_EQ(CDC().GetTextExtent("A", 1), CSize(0, 0));
}
