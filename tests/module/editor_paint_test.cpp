// What painting an in-place editor shows: lines, selection and border, pixel by pixel.
#include <algorithm>
#include <cstddef>
#include <ostream>

#include "editor_binding.h"
#include "editor_look.h"

namespace {

constexpr CPoint Anchor(300, 100);
constexpr COLORREF BasePixel = 0x505050;

// Their glyphs keep to their own advances, so that drawing a line in pieces overlaps nothing.
const TextLook ThreeLines = {.lines = {"Hanohd", "", "nHo"}, .px = 24};

struct Ends {
    int nLine1, nIndex1, nLine2, nIndex2;
};

void PrintTo(const Ends& ends, std::ostream* pOut) {
    *pOut << '(' << ends.nLine1 << ',' << ends.nIndex1 << ")-(" << ends.nLine2 << ',' << ends.nIndex2 << ')';
}

bool IsOnEdge(const CRect& rect, int x, int y) {
    const bool bInside = x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
    return bInside && (x == rect.left || x == rect.right - 1 || y == rect.top || y == rect.bottom - 1);
}

class EditorPaint : public ::testing::Test {
  protected:
    /// The pixels that differ from the picture, those of the dotted border apart.
    CRect Faults(const CTextPicture& picture, const Pixels& shown) {
        Pixels wanted = picture.View();
        const CRect rcWindow = stage.WindowRect();
        for (int n = 0; n < ViewWidth * ViewHeight; ++n) {
            const auto i = static_cast<std::size_t>(n);
            if (IsOnEdge(rcWindow, n % ViewWidth, n / ViewWidth) && shown[i] == 0) {
                wanted[i] = 0;
            }
        }
        return DifferenceOf(wanted, shown);
    }

    /// Inverts what a selection covers: across a line break half a blank more at that end.
    void InvertSelection(CTextPicture& picture, const TextLook& look, const Ends& ends) {
        const int nHalf = picture.Blank() / 2;
        for (int n = ends.nLine1; n <= ends.nLine2; ++n) {
            const std::string& line = look.lines[static_cast<std::size_t>(n)];
            const CRect rcLine = picture.Line(n);
            CRect rect = rcLine;
            rect.left =
                n == ends.nLine1 ? rcLine.left + picture.Extent(line, ends.nIndex1 + 1) : rcLine.left - nHalf;
            rect.right = n == ends.nLine2 ? rcLine.left + picture.Extent(line, ends.nIndex2 + 1)
                                          : rcLine.right + nHalf;
            picture.Invert(rect);
        }
    }

    CEditorStage stage;
};

TEST_F(EditorPaint, LinesStandByAlignmentInTheirFontAndColor) {
    const TextLook looks[] = {
        {.lines = {"Hano", "", "nHoddddd"}, .align = 0},
        {.lines = {"Hano", "", "nHoddddd"}, .align = 1},
        {.lines = {"Hano", "", "nHoddddd"}, .align = 2, .color = RGB(255, 0, 0)},
        {.lines = {"m", "mmm"}, .px = 17, .style = 1},
        {.lines = {"m", "mmm"}, .px = 40, .style = 6, .color = RGB(0, 0, 255)},
    };
    for (const TextLook& look : looks) {
        stage.Open(look, Anchor);

        const CTextPicture picture(look, Anchor);

        const CRect rcArea = picture.Area();
        EXPECT_EQ(stage.WindowRect(), CRect(rcArea.left - picture.Blank(), rcArea.top - 1,
                                            rcArea.right + picture.Blank() + 1, rcArea.bottom + 2));
        EXPECT_EQ(Faults(picture, stage.Now()), CRect(0, 0, 0, 0)) << look.px << ' ' << look.align;
    }
}

TEST_F(EditorPaint, SelectionIsInvertedAndStripsGoOnAcrossLineBreaks) {
    const Ends selections[] = {
        {0, -1, 0, 5}, {0, 0, 0, 3},  {0, -1, 0, 0}, {2, 1, 2, 2},   {0, 2, 1, -1}, {0, 5, 1, -1},
        {1, -1, 2, 0}, {1, -1, 2, 2}, {0, 3, 2, 1},  {0, -1, 2, -1}, {0, -1, 2, 2},
    };
    for (const int nAlign : {0, 1, 2}) {
        TextLook look = ThreeLines;
        look.align = nAlign;
        stage.Open(look, Anchor);
        for (const Ends& ends : selections) {
            stage.SelectText(ends.nLine1, ends.nIndex1, ends.nLine2, ends.nIndex2);

            CTextPicture picture(look, Anchor);
            InvertSelection(picture, look, ends);

            EXPECT_EQ(Faults(picture, stage.Now()), CRect(0, 0, 0, 0))
                << nAlign << ' ' << ::testing::PrintToString(ends);
        }
    }
}

TEST_F(EditorPaint, BorderIsDottedAlongTheWindowsEdge) {
    const TextLook look = {.lines = {"          "}, .px = 40};
    stage.Open(look, Anchor);
    const Pixels shown = stage.Now();
    const CRect rect = stage.WindowRect();
    const auto at = [&](int x, int y) { return shown[static_cast<std::size_t>(y * ViewWidth + x)]; };

    int dots[4] = {};
    int holes[4] = {};
    for (int x = rect.left; x < rect.right; ++x) {
        (at(x, rect.top) == 0 ? dots : holes)[0]++;
        (at(x, rect.bottom - 1) == 0 ? dots : holes)[1]++;
    }
    for (int y = rect.top; y < rect.bottom; ++y) {
        (at(rect.left, y) == 0 ? dots : holes)[2]++;
        (at(rect.right - 1, y) == 0 ? dots : holes)[3]++;
    }

    // Dots and holes are equally long, three pixels each, so a side has about as many of each.
    for (int nSide = 0; nSide < 4; ++nSide) {
        EXPECT_NEAR(dots[nSide], holes[nSide], 6) << nSide;
    }
    EXPECT_EQ(Faults(CTextPicture(look, Anchor), shown), CRect(0, 0, 0, 0));
    EXPECT_EQ(at(rect.left - 1, rect.top - 1), BasePixel);
}

TEST_F(EditorPaint, ColorAndFontShowAtOnce) {
    TextLook look = ThreeLines;
    stage.Open(look, Anchor);
    CInplaceEditor& editor = *stage.Editor();

    look.color = RGB(16, 200, 16);
    (editor.*stage.Calls().m_fnSetFontColor)(look.color);
    EXPECT_EQ(Faults(CTextPicture(look, Anchor), stage.Now()), CRect(0, 0, 0, 0));

    // Smaller: the former rectangle is repainted too.
    look.px = 12;
    look.style = 1;
    (editor.*stage.Calls().m_fnSetFontSizeInPixel)(look.px);
    (editor.*stage.Calls().m_fnSetFontStyle)(look.style);
    EXPECT_EQ(Faults(CTextPicture(look, Anchor), stage.Now()), CRect(0, 0, 0, 0));
}

TEST_F(EditorPaint, ReplacedWithoutRedrawNothingStaysInverted) {
    stage.Open({.lines = {"     ", "   "}, .px = 24}, Anchor);
    stage.SelectText(0, 1, 1, 0);
    CString strBlank(" ");
    (stage.Editor()->*stage.Calls().m_fnReplaceSelectRange)(strBlank, 0);
    const Pixels shown = stage.Now();
    EXPECT_EQ(DifferenceOf(shown, stage.Afresh()), CRect(0, 0, 0, 0));
}

TEST_F(EditorPaint, ColorOfAHiddenEditorPaintsNothing) {
    stage.NewEditor(Anchor, "Hanohd", Show::Later);
    CClientDC dc(stage.Desk().View());
    dc.SetPixel(Anchor.x, Anchor.y, RGB(1, 2, 3));
    (stage.Editor()->*stage.Calls().m_fnSetFontColor)(RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(Anchor.x, Anchor.y), RGB(1, 2, 3));
}

TEST_F(EditorPaint, NothingIsLeftOfAnEditorThatGoes) {
    stage.Open(ThreeLines, Anchor);
    stage.SelectText(0, 0, 2, 1);

    stage.DestroyEditor();

    const Pixels shown = stage.View();
    EXPECT_EQ(static_cast<std::size_t>(std::count(shown.begin(), shown.end(), BasePixel)), shown.size());
}

} // namespace
