// The editing session: how it opens, every way it ends, and where the text goes then.
#include <array>
#include <functional>

#include "host/vor_view.h"
#include "platform/faults.h"
#include "text_help.h"

namespace {

const Lines Notified = {"redrawn.1 27", "tracker.3 1", "changed.1 27", "changed2.1 27 0"};

class TextCommit : public testing::Test {
  protected:
    /// The picture F, the text T over it, the picture B behind; texts T alone on a page of that zoom.
    void FillStack() {
        m_stage.Square("B", 300, 100);
        m_stage.AddText("T", "Hello", 100, 100);
        m_stage.Square("F", 200, 100);
    }
    /// The client rectangle in document units.
    CRect ToDocument(const CRect& rcClient) {
        CRect rcDoc;
        m_stage.Desk().View()->ViewRectToDoc(rcClient, rcDoc);
        return rcDoc;
    }
    CTextStage m_stage;
};

TEST_F(TextCommit, NewTextIsCentredOnTheEditorInFrontAndAloneSelected) {
    for (const double dZoom : {1.0, 2.0}) {
        m_stage.NewPage(static_cast<int>(720 / dZoom), static_cast<int>(480 / dZoom), dZoom);
        m_stage.Square("A", 10, 10);
        m_stage.Select({"A"});
        m_stage.WriteAt({300, 200}, "Hello\nyou");
        EXPECT_EQ(m_stage.Editor()->m_fnGetFontSizeInPixel(), 16 * dZoom);
        const CRect rcText = ToDocument(m_stage.EditorRect());
        m_stage.Forget();

        m_stage.EndEditor();

        ASSERT_EQ(m_stage.PageNames(), (Lines{"text#1", "A"})) << dZoom;
        EXPECT_EQ(m_stage.Text("text#1").m_nFontSize, 16) << "the size is that of zoom 1";
        const CSize size = PictureSize({"Hello", "you"}, 16);
        EXPECT_EQ(m_stage.Rect("text#1"), CRect(CPoint(rcText.Width() / 2 - size.cx / 2 + rcText.left,
                                                       rcText.Height() / 2 - size.cy / 2 + rcText.top),
                                                size))
            << dZoom;
        EXPECT_EQ(m_stage.Selection(), Lines{"text#1"});
        EXPECT_EQ(m_stage.Editor(), nullptr);
        const Lines told = m_stage.ToldOnBus();
        ASSERT_GE(told.size(), 4U);
        EXPECT_EQ(Lines(told.end() - 4, told.end()), Notified);
        EXPECT_EQ(m_stage.UndoClasses(), Lines{"CSelChangedUndoEvent"}) << "of the click alone";
        EXPECT_TRUE(m_stage.ShowsTruePicture());
    }
}

// The anchor of the editor is the point itself: the left end, the middle or the right end of the line.
TEST_F(TextCommit, NewTextGrowsFromThePointByAlignment) {
    for (const int nAlignment : {0, 1, 2}) {
        m_stage.NewPage(720, 480);
        m_stage.Desk().Panels().nAlignment = nAlignment;
        m_stage.WriteAt({300, 200}, "Hello");
        m_stage.EndEditor();

        const CRect rect = m_stage.Rect("text#1");
        const int nBlank = (PictureSize({" "}, 16).cx) / 3;
        const int nFree = rect.Width() - 2 * nBlank;
        const std::array<int, 3> Lefts = {300, 300 - nFree / 2, 300 - nFree};
        EXPECT_EQ(rect.left + nBlank, Lefts[static_cast<std::size_t>(nAlignment)]) << nAlignment;
        EXPECT_NEAR(rect.CenterPoint().y, 200, 1) << nAlignment;
    }
}

TEST_F(TextCommit, NewTextTakesThePanelsTransparencyAndShadow) {
    CPanelValues& values = m_stage.Desk().Panels();
    values.nTransparency = 40;
    values.bTextShadow = true;
    values.nShadowX = 5;
    values.nShadowY = -6;
    values.nShadowSoftness = 2;
    values.nShadowTransparency = 25;
    values.crShadow = RGB(1, 2, 3);

    m_stage.WriteAt({300, 200}, "Hello");
    m_stage.EndEditor();

    EXPECT_EQ(m_stage.PageNames(), (Lines{"text#1", "text#1.shadow"}));
    const CTextNode& text = m_stage.Text("text#1");
    EXPECT_EQ(text.m_nTransparency, 40);
    EXPECT_EQ(text.m_shadow.dOffsetX, 5);
    EXPECT_EQ(text.m_shadow.dOffsetY, -6);
    EXPECT_EQ(text.m_shadow.dSoftness, 2);
    EXPECT_EQ(text.m_shadow.nTransparency, 25);
    EXPECT_EQ(text.m_shadow.crColor, RGB(1, 2, 3));
}

TEST_F(TextCommit, TakesTheEditorsFaceStyleAndColourUnderAWaitCursor) {
    CPanelValues& values = m_stage.Desk().Panels();
    values.fontName = "Courier New";
    values.nStyle = 7;
    values.crText = RGB(1, 2, 3);
    m_stage.WriteAt({300, 200}, "Hello");
    const int nWaits = m_stage.WaitCursors();
    m_stage.EndEditor();

    const CTextNode& text = m_stage.Text("text#1");
    EXPECT_STREQ(text.m_strFontName, "Courier New");
    EXPECT_EQ(text.m_crText, RGB(1, 2, 3));
    EXPECT_EQ((std::array{text.m_nBold, text.m_nItalic, text.m_nUnderline}), (std::array{1, 1, 1}));
    EXPECT_EQ(m_stage.WaitCursors() - nWaits, 1);
}

// The view keeps 8 pixels of an object: from 8 on at the left edge, and up to 712 at the right one. A text at
// 715 lies beyond.
TEST_F(TextCommit, TextBeyondTheViewsEdgeIsBroughtBackToIt) {
    m_stage.Desk().Panels().nAlignment = 2;
    m_stage.WriteAt({1, 200}, "Hello");
    m_stage.EndEditor();
    EXPECT_EQ(m_stage.Rect("text#1").right, 8);

    const std::vector<std::function<void()>> works = {
        [&] { m_stage.Edit("T"), m_stage.EndEditor(); },
        [&] { m_stage.SetTextColor(RGB(1, 2, 3)); },
        [&] { m_stage.Main().m_fnRemoveTextEffect(m_stage.Rect("T").TopLeft()); },
        [&] { m_stage.Ops().CopyNodeLook(m_stage.Node("U"), m_stage.Node("T")); },
    };
    for (std::size_t n = 0; n < works.size(); ++n) {
        m_stage.NewPage(720, 480);
        m_stage.AddText("U", "Hello", 100, 100);
        m_stage.AddText("T", "Hello", 715, 100);
        m_stage.Select({"T"});
        works[n]();
        EXPECT_EQ(m_stage.Rect("T").left, 712) << n;
    }
}

TEST_F(TextCommit, EditedTextHoldsItsTopAndTheEdgeOfItsAlignment) {
    for (const double dZoom : {1.0, 2.0}) {
        for (const int nAlignment : {0, 1, 2}) {
            m_stage.NewPage(360, 240, dZoom);
            m_stage.AddText("T", "Hello", 100, 100, {.alignment = nAlignment});
            const CRect rcOld = m_stage.Rect("T");
            m_stage.Edit("T");
            m_stage.WriteInEditor("Hello, my friend\nand you");
            m_stage.EndEditor();

            const CSize size = PictureSize({"Hello, my friend", "and you"}, 16);
            const std::array<int, 3> Lefts = {100, 100 + rcOld.Width() / 2 - size.cx / 2,
                                              100 + rcOld.Width() - size.cx};
            EXPECT_EQ(m_stage.Rect("T"),
                      CRect(CPoint(Lefts[static_cast<std::size_t>(nAlignment)], 100), size))
                << nAlignment << " at zoom " << dZoom;
        }
    }
}

TEST_F(TextCommit, OpenedObjectIsOffThePageUnderAnEditorWithTheCaretAtTheClick) {
    m_stage.NewPage(360, 240, 2.0);
    m_stage.AddText("T", "iiiWWW", 100, 100);
    m_stage.RealShadow("T");
    const CRect rcText = m_stage.Rect("T");
    m_stage.Select({"T"});
    m_stage.Ops().HookNode(m_stage.Node("T"));

    EXPECT_EQ(m_stage.EditText("T", {2 * rcText.right, 2 * rcText.top}), 1);

    EXPECT_EQ(m_stage.PageNames(), Lines{});
    EXPECT_EQ(m_stage.Selection(), Lines{});
    EXPECT_EQ(m_stage.EditorLines(), Lines{"iiiWWW"});
    EXPECT_EQ(m_stage.Editor()->m_fnGetFontSizeInPixel(), 32);
    EXPECT_EQ(m_stage.Editor()->Caret().nIndex, 5) << "behind the last byte";
    const CSize off =
        m_stage.EditorRect().CenterPoint() - CPoint(rcText.left + rcText.right, rcText.top + rcText.bottom);
    EXPECT_LE(std::max(std::abs(off.cx), std::abs(off.cy)), 1);
    m_stage.EndEditor();
    m_stage.Edit("T");
    EXPECT_EQ(m_stage.Editor()->Caret().nIndex, -1) << "before the first byte";
    EXPECT_EQ(m_stage.Pixel(2 * rcText.left + 3, 2 * rcText.bottom + 6), RGB(0x50, 0x50, 0x50))
        << "the shadow has gone from the view as well";
}

struct WayRow {
    const char* pszName;
    std::function<void(CTextStage&)> end;
};

const std::vector<WayRow>& Ways() {
    static const std::vector<WayRow> rows = {
        {"press on the page",
         [](CTextStage& stage) {
             stage.Click({600, 400});
         }},
        {"focus lost", [](CTextStage& stage) { stage.FocusView(); }},
        {"right press",
         [](CTextStage& stage) {
             stage.RightPress({600, 400});
         }},
        {"tool left", [](CTextStage& stage) { stage.UseTool("CSelectTool"); }},
        {"no tool", [](CTextStage& stage) { stage.UseTool(""); }},
        {"end of input", [](CTextStage& stage) { stage.EndEditor(); }}};
    return rows;
}

TEST(TextCommitWays, EachCommitsOnce) {
    for (const WayRow& row : Ways()) {
        CTextStage stage;
        stage.AddText("T", "Hello", 100, 100);
        const CRect rcOld = stage.Rect("T");
        stage.Edit("T");
        stage.WriteInEditor("Hello you");
        stage.Forget();

        row.end(stage);

        EXPECT_EQ(stage.PageNames(), Lines{"T"}) << row.pszName;
        EXPECT_STREQ(stage.Text("T").m_strText, "Hello you") << row.pszName;
        EXPECT_EQ(stage.Rect("T").TopLeft(), rcOld.TopLeft()) << row.pszName;
        EXPECT_EQ(stage.Editor(), nullptr) << row.pszName;
        EXPECT_FALSE(stage.HasCapture()) << row.pszName;
        const Lines told = stage.ToldOnBus();
        EXPECT_EQ(std::count(told.begin(), told.end(), "redrawn.1 27"), 1) << row.pszName;
        EXPECT_TRUE(stage.ShowsTruePicture()) << row.pszName;
    }
}

TEST_F(TextCommit, EscapeCommitsTheStartingText) {
    FillStack();
    const CRect rcOld = m_stage.Rect("T");
    const Lines order = m_stage.PageNames();
    m_stage.Edit("T");
    m_stage.Type("abc");
    m_stage.Key(VK_ESCAPE);

    EXPECT_EQ(m_stage.Editor(), nullptr);
    EXPECT_STREQ(m_stage.Text("T").m_strText, "Hello");
    EXPECT_EQ(m_stage.Rect("T"), rcOld);
    EXPECT_EQ(m_stage.PageNames(), order);

    m_stage.WriteAt({400, 300}, "new");
    m_stage.Key(VK_ESCAPE);
    EXPECT_EQ(m_stage.PageNames(), order) << "a new text starts empty";
}

TEST_F(TextCommit, TypingNothingMakesNothing) {
    const Living before = CTextStage::CountLiving();
    m_stage.DblClick({300, 200});
    m_stage.Click({600, 400});
    m_stage.WriteAt({300, 200}, "  \n ");
    m_stage.Click({600, 400});

    EXPECT_EQ(m_stage.PageNames(), Lines{});
    EXPECT_EQ(CTextStage::CountLiving(), before);
}

TEST_F(TextCommit, EmptiedTextLeavesThePageWithItsCompanionsButLivesTillThePageCloses) {
    FillStack();
    m_stage.Frame("T", {80, 90, 200, 140});
    m_stage.RealShadow("T");
    m_stage.Edit("T");
    m_stage.WriteInEditor(" ");
    m_stage.Forget();
    const Living before = CTextStage::CountLiving();

    m_stage.EndEditor();

    EXPECT_EQ(m_stage.PageNames(), (Lines{"F", "B"}));
    EXPECT_EQ(m_stage.ToldOnBus(), Notified);
    EXPECT_EQ(CTextStage::CountLiving().nodes, before.nodes);
    EXPECT_TRUE(m_stage.ShowsTruePicture());
    m_stage.NewPage(720, 480);
    EXPECT_EQ(CTextStage::CountLiving().nodes, 0U);
}

TEST_F(TextCommit, EditedTextGoesBackBehindTheObjectBeforeIt) {
    struct OrderRow {
        const char* pszName;
        std::function<void(CTextStage&)> build;
    };
    const std::vector<OrderRow> rows = {
        {"plain", [](CTextStage&) {}},
        {"anchor with shadow", [](CTextStage& stage) { stage.RealShadow("F"); }},
        {"anchor with frame and shadow",
         [](CTextStage& stage) {
             stage.RealShadow("F");
             stage.Frame("F", {190, 90, 250, 150});
         }},
        {"text with frame and shadow",
         [](CTextStage& stage) {
             stage.RealShadow("F");
             stage.Frame("T", {80, 90, 200, 140});
             stage.RealShadow("T");
         }},
        {"at the head with a frame",
         [](CTextStage& stage) {
             stage.Frame("T", {80, 90, 200, 140});
             stage.Select({"T"});
             stage.Main().m_fnBringToFront();
         }},
    };
    for (const OrderRow& row : rows) {
        m_stage.NewPage(720, 480);
        FillStack();
        row.build(m_stage);
        const Lines order = m_stage.PageNames();
        m_stage.Edit("T");
        m_stage.WriteInEditor("Hello you");
        m_stage.EndEditor();
        EXPECT_EQ(m_stage.PageNames(), order) << row.pszName;
        EXPECT_TRUE(m_stage.ShowsTruePicture()) << row.pszName;
    }
}

TEST_F(TextCommit, WithoutItsAnchorTheTextGoesToTheFront) {
    FillStack();
    m_stage.Edit("T");
    delete m_stage.Node("F");
    m_stage.EndEditor();

    EXPECT_EQ(m_stage.PageNames(), (Lines{"T", "B"}));
}

TEST_F(TextCommit, EditedTextKeepsIdentityLookEffectAndTruncatedShadow) {
    m_stage.AddText("T", "Hello", 100, 100, {.effect = TextEffect::Glow});
    m_stage.RealShadow("T");
    CTextNode& text = m_stage.Text("T");
    text.m_fnUpdateBCAndT(10, 20, 30);
    text.m_shadow = {5.9, -5.9, 2.9, 33, RGB(9, 8, 7)};
    const auto nId = text.m_nId;
    m_stage.Edit("T");
    m_stage.WriteInEditor("Hello you");
    m_stage.EndEditor();

    EXPECT_EQ(text.m_nId, nId);
    EXPECT_EQ(CTextEffectState::KindOf(text), TextEffect::Glow);
    EXPECT_EQ(text.m_tx.nWidth, PictureSize({"Hello you"}, 16).cx) << "an effect keeps the width";
    EXPECT_EQ(text.m_nBrightness, 10);
    EXPECT_EQ(text.m_nTransparency, 30);
    EXPECT_EQ(text.m_shadow.dOffsetX, 5);
    EXPECT_EQ(text.m_shadow.dOffsetY, -5);
    EXPECT_EQ(text.m_shadow.dSoftness, 2);
    EXPECT_EQ(text.m_shadow.nTransparency, 33);
    EXPECT_EQ(text.m_shadow.crColor, RGB(9, 8, 7));
    EXPECT_EQ(m_stage.Node("T.shadow")->m_tx.nX, text.m_tx.nX + 5);
}

TEST_F(TextCommit, SettingsOfAShadowThatIsGoneAreTruncatedToo) {
    m_stage.AddText("T", "Hello", 100, 100);
    m_stage.Text("T").m_shadow = {5.9, -5.9, 2.9, 33, RGB(9, 8, 7)};
    m_stage.Edit("T");
    m_stage.EndEditor();

    const CShadowParam& shadow = m_stage.Text("T").m_shadow;
    EXPECT_EQ(m_stage.PageNames(), Lines{"T"});
    EXPECT_EQ(shadow.dOffsetX, 5);
    EXPECT_EQ(shadow.dOffsetY, -5);
    EXPECT_EQ(shadow.dSoftness, 2);
}

// The mark area is the object widened by 4; the longer text covers the shorter one's.
TEST_F(TextCommit, RefreshCoversTheOldBoundsAsWellAsTheNew) {
    m_stage.AddText("T", "Hello, my friend", 100, 100);
    CRect rcMarks = m_stage.Rect("T");
    rcMarks.InflateRect(4, 4);
    m_stage.Edit("T");
    m_stage.WriteInEditor("i");
    m_stage.Forget();
    m_stage.EndEditor();

    const Lines told = m_stage.Told();
    const std::string area = std::to_string(rcMarks.left) + " " + std::to_string(rcMarks.top) + " " +
                             std::to_string(rcMarks.right) + " " + std::to_string(rcMarks.bottom);
    EXPECT_THAT(told, testing::Contains("flush " + area));
    EXPECT_THAT(told, testing::Contains("repaint " + area + " erase"));
}

// Two lines are twice the line height and 2 pixels of margin.
TEST_F(TextCommit, FrameIsScaledByTheHeightsAndCentred) {
    m_stage.AddText("T", "Hello", 200, 200);
    m_stage.Frame("T", {180, 190, 300, 250});
    const int nOld = m_stage.Rect("T").Height();
    m_stage.Edit("T");
    m_stage.WriteInEditor("Hello\nyou");
    m_stage.EndEditor();

    const double dScale = static_cast<double>(2 * (nOld - 2) + 2) / nOld;
    const CRect rcFrame = m_stage.Rect("T.frame");
    EXPECT_EQ(rcFrame.Size(), CSize(static_cast<int>(120 * dScale), static_cast<int>(60 * dScale)));
    const CSize off = rcFrame.CenterPoint() - m_stage.Rect("T").CenterPoint();
    EXPECT_LE(std::max(std::abs(off.cx), std::abs(off.cy)), 1) << "halves are cut";
}

TEST_F(TextCommit, CommitTakesTheExcludedNodeOffThePage) {
    FillStack();
    m_stage.Exclude(m_stage.Node("B"));
    m_stage.Edit("T");
    m_stage.EndEditor();
    EXPECT_EQ(m_stage.PageNames(), (Lines{"F", "T"}));

    m_stage.Desk().Document()->GetObjList()->AddTail(m_stage.Node("B"));
    m_stage.WriteAt({300, 300}, "new");
    m_stage.EndEditor();
    EXPECT_EQ(m_stage.PageNames(), (Lines{"text#1", "F", "T"}));
}

// The text itself is a node with an image and a mask.
TEST_F(TextCommit, SessionsLeaveNothingBehindButTheText) {
    const Living before = CTextStage::CountLiving();
    m_stage.SecondPress({300, 200});
    m_stage.Type("Hello");
    m_stage.EndEditor();
    Living expected = before;
    expected.nodes += 1;
    expected.buffers += 2;
    EXPECT_EQ(CTextStage::CountLiving(), expected);

    for (const char* pszText : {"a", "two\nlines", "Hello"}) {
        m_stage.Edit("text#1");
        m_stage.WriteInEditor(pszText);
        m_stage.EndEditor();
        m_stage.SetTextSize(m_stage.Text("text#1").m_nFontSize == 16 ? 24 : 12);
        m_stage.SetTextStyle(1);
        EXPECT_EQ(CTextStage::CountLiving(), expected) << pszText;
    }
    m_stage.NewPage(720, 480);
    EXPECT_EQ(CTextStage::CountLiving(), before);
}

} // namespace
