// Nothing jumps at commit: the object's glyphs lie where the editor showed them.
#include <algorithm>

#include "editor_look.h"
#include "text_help.h"

namespace {

constexpr int Bright = 0xC0; ///< above the ground and the caret over it
/// A unit of the page for halves that are cut, and one because a font of twice the size is no exact double.
constexpr int MostAtZoom2 = 4;

/// Bounds of what is white in the view, client pixels.
CRect WhiteArea(const Pixels& pixels) {
    CRect rect(ViewWidth, ViewHeight, 0, 0);
    for (int n = 0; n < ViewWidth * ViewHeight; ++n) {
        const COLORREF cr = pixels[static_cast<std::size_t>(n)];
        if (GetRValue(cr) > Bright && GetGValue(cr) > Bright && GetBValue(cr) > Bright) {
            rect.left = std::min<LONG>(rect.left, n % ViewWidth);
            rect.right = std::max<LONG>(rect.right, n % ViewWidth + 1);
            rect.top = std::min<LONG>(rect.top, n / ViewWidth);
            rect.bottom = std::max<LONG>(rect.bottom, n / ViewWidth + 1);
        }
    }
    return rect;
}

/// The lowest white row of each line, in a view as wide as ever.
std::vector<int> LineEnds(const Pixels& pixels) {
    std::vector<int> ends;
    for (std::size_t n = 0; n < pixels.size(); ++n) {
        const int nRow = static_cast<int>(n) / ViewWidth;
        if (GetBValue(pixels[n]) > Bright) {
            const bool bNext = !ends.empty() && nRow <= ends.back() + 1;
            bNext ? ends.back() = nRow : ends.emplace_back(nRow);
        }
    }
    return ends;
}

class TextPixels : public testing::TestWithParam<std::tuple<double, int>> {
  protected:
    TextPixels() {
        const auto [dZoom, nAlignment] = GetParam();
        m_stage.NewPage(static_cast<int>(ViewWidth / dZoom), static_cast<int>(ViewHeight / dZoom), dZoom);
        m_stage.SetBaseColor(RGB(0x50, 0x50, 0x50));
        m_stage.Desk().Panels().nAlignment = nAlignment;
        m_stage.Desk().Panels().nFontPoints = 30;
    }
    void ExpectNoJump() {
        const CRect rcEditor = WhiteArea(m_stage.View());
        m_stage.EndEditor();
        m_stage.Ops().DeselectAll(1);
        const CRect rcPage = WhiteArea(m_stage.View());
        const int nMost = std::get<0>(GetParam()) == 1.0 ? 1 : MostAtZoom2;
        EXPECT_GT(rcEditor.Width(), 40);
        EXPECT_LE(std::abs(rcPage.left - rcEditor.left), nMost) << rcEditor << rcPage;
        EXPECT_LE(std::abs(rcPage.right - rcEditor.right), nMost) << rcEditor << rcPage;
        EXPECT_LE(std::abs(rcPage.top - rcEditor.top), nMost) << rcEditor << rcPage;
        EXPECT_LE(std::abs(rcPage.bottom - rcEditor.bottom), nMost) << rcEditor << rcPage;
    }
    CTextStage m_stage;
};

TEST_P(TextPixels, NewTextStaysWhereTheEditorShowedIt) {
    m_stage.WriteAt({300, 200}, "Hg\nHHgH");
    ExpectNoJump();
}

TEST_P(TextPixels, EditedTextStaysWhereTheEditorShowedIt) {
    m_stage.AddText("T", "Hg\nHHgH", 100, 100,
                    {.pixels = 40, .alignment = std::get<1>(GetParam()), .style = 1});
    m_stage.Edit("T");
    ExpectNoJump();
}

TEST(TextLines, TenOfTwelvePointsStayWithinAPixelDownwards) {
    for (const double dZoom : {1.5, 2.0, 3.0}) {
        CTextStage stage;
        stage.NewPage(static_cast<int>(ViewWidth / dZoom), static_cast<int>(600 / dZoom), dZoom);
        stage.SetBaseColor(RGB(0x50, 0x50, 0x50));
        stage.WriteAt({360, 36}, "H\nH\nH\nH\nH\nH\nH\nH\nH\nH");
        const std::vector<int> shown = LineEnds(stage.View());
        stage.EndEditor();
        stage.Ops().DeselectAll(1);
        const std::vector<int> committed = LineEnds(stage.View());

        ASSERT_TRUE(shown.size() == 10 && committed.size() == 10);
        for (std::size_t i = 0; i < 10; ++i) {
            EXPECT_NEAR(committed[i], shown[i], 1) << dZoom << ' ' << i;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(ZoomAndAlignment, TextPixels,
                         testing::Combine(testing::Values(1.0, 2.0), testing::Values(0, 1, 2)));

} // namespace
