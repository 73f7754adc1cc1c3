// Resizing texts, which means their fonts: by handle, to a rectangle, and back by undo.
#include <array>
#include <memory>

#include "host/panels.h"
#include "platform/faults.h"
#include "text_help.h"
#include "tools/object_tool.h"

namespace {

constexpr CPoint Origin(100, 100);

/// Text T of 16 pixels at (100, 100) with the select tool.
class TextResize : public testing::Test {
  protected:
    TextResize() {
        m_stage.AddText("T", "Hello", Origin.x, Origin.y);
        m_rcOld = m_stage.Rect("T");
        m_stage.Select({"T"});
        m_stage.Forget();
    }
    /// The text that a handle's drag to that many times width and height gives; null for none.
    std::unique_ptr<CTextNode> Resized(int nTimesX, int nTimesY, int nHandle) {
        RECT rect = {Origin.x, Origin.y, Origin.x + nTimesX * m_rcOld.Width(),
                     Origin.y + nTimesY * m_rcOld.Height()};
        auto* pTool = static_cast<CObjectTool*>(m_stage.CurrentTool());
        return std::unique_ptr<CTextNode>(pTool->ResizeTextNode(m_stage.Node("T"), &rect, nHandle));
    }
    static CRect RectOf(CTextNode& text) {
        CRect rect;
        text.GetBoundRect(&rect);
        return rect;
    }
    /// Matches the selected text's size with that of a picture that many times as wide and high.
    void MatchPicture(int nTimesX, int nTimesY) {
        m_stage.AddPicture("P", RGB(255, 0, 0), 300, 300, nTimesX * m_rcOld.Width(),
                           nTimesY * m_rcOld.Height());
        m_stage.Select({"T", "P"});
        m_stage.Main().m_fnSameSize();
    }

    CTextStage m_stage{"CSelectTool"};
    CRect m_rcOld;
};

enum Place { Start, Middle, End };
int PlaceOf(Place place, int nStart, int nLength) {
    return place == Start ? nStart : place == Middle ? nStart + nLength / 2 : nStart + nLength;
}

TEST_F(TextResize, ReferencePointOfTheHandleStaysPut) {
    constexpr std::array<std::array<Place, 2>, 8> Fixed = {{{End, End},
                                                            {End, Middle},
                                                            {End, Start},
                                                            {Middle, Start},
                                                            {Middle, End},
                                                            {Start, End},
                                                            {Start, Middle},
                                                            {Start, Start}}};
    for (int nHandle = 0; nHandle < 8; ++nHandle) {
        const std::unique_ptr<CTextNode> pNew = Resized(2, 2, nHandle);
        ASSERT_TRUE(pNew) << nHandle;
        EXPECT_EQ(pNew->m_nFontSize, 32) << nHandle;
        const CRect rcNew = RectOf(*pNew);
        EXPECT_EQ(rcNew.Size(), PictureSize({"Hello"}, 32)) << nHandle;
        const auto [across, down] = Fixed[static_cast<std::size_t>(nHandle)];
        EXPECT_EQ(PlaceOf(across, rcNew.left, rcNew.Width()), PlaceOf(across, 100, m_rcOld.Width()))
            << nHandle;
        EXPECT_EQ(PlaceOf(down, rcNew.top, rcNew.Height()), PlaceOf(down, 100, m_rcOld.Height())) << nHandle;
    }
    EXPECT_EQ(m_stage.PageNames(), Lines{"T"}) << "the new texts are the caller's";
}

// Three times as wide and twice as high: corners take the smaller scale, edges their own, a rectangle the
// greater.
TEST_F(TextResize, HandlesTakeTheSmallerScaleAndARectangleTheGreater) {
    constexpr std::array<int, 8> Pixels = {32, 48, 32, 32, 32, 32, 48, 32};
    for (int nHandle = 0; nHandle < 8; ++nHandle) {
        const std::unique_ptr<CTextNode> pNew = Resized(3, 2, nHandle);
        ASSERT_TRUE(pNew) << nHandle;
        EXPECT_EQ(pNew->m_nFontSize, Pixels[static_cast<std::size_t>(nHandle)]) << nHandle;
    }

    MatchPicture(3, 2);

    EXPECT_EQ(m_stage.Text("T").m_nFontSize, 48);
    EXPECT_EQ(m_stage.Rect("T"), CRect(Origin, PictureSize({"Hello"}, 48)));
}

// 48 pixels are 36 points; the panel lets 30 pass, which are 40 pixels.
TEST_F(TextResize, PanelMayChangeThePoints) {
    m_stage.Desk().Panels().nSizeSnap = 10;

    EXPECT_EQ(Resized(3, 3, 7)->m_nFontSize, 40);
    MatchPicture(3, 3);
    EXPECT_EQ(m_stage.Text("T").m_nFontSize, 40);
}

// 12 points are 16 pixels: what the panel rounds back to 12 points is the same text again.
TEST_F(TextResize, SameSizeIsACopyInPlaceAndARectangleChangesNothing) {
    m_stage.Desk().Panels().nSizeSnap = 12;
    const auto nId = m_stage.Node("T")->m_nId;

    const std::unique_ptr<CTextNode> pNew = Resized(1, 1, 0);
    ASSERT_TRUE(pNew);
    EXPECT_NE(pNew->m_nId, nId);
    EXPECT_EQ(RectOf(*pNew), m_rcOld);
    m_stage.AddPicture("P", 0, 300, 300, m_rcOld.Width() + 3, m_rcOld.Height());
    m_stage.Select({"T", "P"});
    m_stage.Main().m_fnSameSize();
    EXPECT_EQ(m_stage.Rect("T"), m_rcOld);
}

TEST_F(TextResize, NothingComesOfOtherNodesMissingPanelsAndFailures) {
    RECT rect = {0, 0, 400, 400};
    auto* pTool = static_cast<CObjectTool*>(m_stage.CurrentTool());
    EXPECT_EQ(pTool->ResizeTextNode(m_stage.Square("A", 10, 10), &rect, 7), nullptr);
    EXPECT_EQ(pTool->ResizeTextNode(nullptr, &rect, 7), nullptr);
    const Living before = CTextStage::CountLiving();
    for (const char* pszFault : {"text-engine", "display-values", "node", "window"}) {
        platform::ArmFault(pszFault, false, 0);
        EXPECT_FALSE(Resized(2, 2, 7)) << pszFault;
        platform::ClearFaults();
        EXPECT_EQ(CTextStage::CountLiving(), before) << pszFault;
    }
    m_stage.HideInterface<ITextAttributePanel>(kind::TextPage);
    EXPECT_FALSE(Resized(2, 2, 7));
    MatchPicture(3, 3);
    EXPECT_EQ(m_stage.Rect("T"), m_rcOld);
}

// From the right edge by its width: twice as wide. The left edge and the vertical middle stay.
TEST_F(TextResize, DragOfTheRightEdgeIsOneStepThatUndoTakesBack) {
    m_stage.RealShadow("T");
    const auto nId = m_stage.Node("T")->m_nId;
    const CPoint ptEdge(m_rcOld.right, 100 + m_rcOld.Height() / 2);

    m_stage.Drag(ptEdge, ptEdge + CSize(m_rcOld.Width(), 0));

    const CSize size = PictureSize({"Hello"}, 32);
    const CRect rcNew(CPoint(100, 100 + m_rcOld.Height() / 2 - size.cy / 2), size);
    EXPECT_EQ(m_stage.Rect("T"), rcNew);
    EXPECT_EQ(m_stage.Node("T")->m_nId, nId);
    EXPECT_EQ(m_stage.PageNames(), (Lines{"T", "T.shadow"}));
    EXPECT_EQ(m_stage.Node("T")->m_shadow.dSoftness, 2);
    EXPECT_EQ(m_stage.UndoClasses(), Lines{"CResizeChangedUndoEvent"});
    EXPECT_TRUE(m_stage.ShowsTruePicture());

    // The saved corner is that of the bounds with frame; the saved size is the font's.
    m_stage.Undo();
    EXPECT_EQ(m_stage.Text("T").m_nFontSize, 16);
    EXPECT_EQ(m_stage.Rect("T"), m_rcOld);
    EXPECT_EQ(m_stage.Node("T")->m_pShadowNode != nullptr, true);
    m_stage.Redo();
    EXPECT_EQ(m_stage.Rect("T"), rcNew);
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(TextResize, LookComesAlongByHandleAndByRectangle) {
    m_stage.AddText("T", "Hello", Origin.x, Origin.y, {.effect = TextEffect::Glow});
    m_stage.Text("T").m_fnUpdateBCAndT(10, 20, 30);
    m_rcOld = m_stage.Rect("T");

    const std::unique_ptr<CTextNode> pNew = Resized(2, 2, 7);
    EXPECT_EQ(CTextEffectState::KindOf(*pNew), TextEffect::Glow);
    EXPECT_EQ(pNew->m_nTransparency, 30);
    MatchPicture(3, 3);
    EXPECT_GT(m_stage.Text("T").m_nFontSize, 16);
    EXPECT_EQ(CTextEffectState::KindOf(m_stage.Text("T")), TextEffect::Glow);
    EXPECT_EQ(m_stage.Text("T").m_nBrightness, 10);
}

// It has the saved size already, so the saved corner is not applied either.
TEST_F(TextResize, UndoLeavesATextOfTheSavedSizeWhereItIs) {
    const CPoint ptCorner(m_rcOld.right, m_rcOld.bottom);
    m_stage.Drag(ptCorner, ptCorner + m_rcOld.Size());
    m_stage.UseTool("CTextTool");
    m_stage.Select({"T"});
    m_stage.SetTextSize(12);
    const CRect rcNow = m_stage.Rect("T");
    ASSERT_NE(rcNow, m_rcOld);

    m_stage.Undo();

    EXPECT_EQ(m_stage.Rect("T"), rcNow);
}

TEST_F(TextResize, FrameGrowsByTheTextsHeights) {
    CRect rcFrame = m_rcOld;
    rcFrame.InflateRect(10, 10);
    m_stage.Frame("T", rcFrame);
    const CPoint ptCorner(rcFrame.right, rcFrame.bottom);

    m_stage.Drag(ptCorner, ptCorner + rcFrame.Size());

    const CSize size = PictureSize({"Hello"}, 32);
    const double dScale = static_cast<double>(size.cy) / m_rcOld.Height();
    EXPECT_EQ(m_stage.Rect("T").Size(), size);
    EXPECT_EQ(m_stage.Rect("T.frame").Size(),
              CSize(static_cast<int>(rcFrame.Width() * dScale), static_cast<int>(rcFrame.Height() * dScale)));
    EXPECT_EQ(m_stage.Node("T.frame")->m_pOwner, m_stage.Node("T"));
    const CSize off = m_stage.Rect("T.frame").CenterPoint() - m_stage.Rect("T").CenterPoint();
    EXPECT_LE(std::max(std::abs(off.cx), std::abs(off.cy)), 1) << "halves are cut";
}

TEST_F(TextResize, TextToolTakesTheNewSizeOver) {
    m_stage.UseTool("CTextTool");
    m_stage.Select({"T"});
    m_stage.Forget();

    m_stage.Drag({m_rcOld.right, m_rcOld.bottom},
                 {m_rcOld.right + m_rcOld.Width(), m_rcOld.bottom + m_rcOld.Height()});

    const Lines told = m_stage.ToldOnBus();
    ASSERT_GE(told.size(), 3U);
    EXPECT_EQ(Lines(told.begin(), told.begin() + 3),
              (Lines{"text-page.5 24", "text-page.3 Arial 24 0 0 16777215 0 0", "area.3 1"}))
        << "before the selection's attributes are shown";
    m_stage.Select({});
    m_stage.DblClick({400, 50});
    EXPECT_EQ(m_stage.Editor()->m_fnGetFontSizeInPixel(), 32);
}

TEST_F(TextResize, FailedDragKeepsTextAndShadow) {
    m_stage.RealShadow("T");
    const Living before = CTextStage::CountLiving();
    platform::ArmFault("text-engine", false, 0);

    m_stage.Drag({m_rcOld.right, m_rcOld.bottom}, {m_rcOld.right + 100, m_rcOld.bottom + 100});

    platform::ClearFaults();
    EXPECT_EQ(m_stage.Rect("T"), m_rcOld);
    EXPECT_EQ(m_stage.PageNames(), (Lines{"T", "T.shadow"}));
    EXPECT_EQ(CTextStage::CountLiving(), before);
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

} // namespace
