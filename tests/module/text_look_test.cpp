// Rebuilding texts with their effects: recoloured, replaced, freed of the effect, given another's look.
#include <array>
#include <memory>

#include "platform/faults.h"
#include "text_help.h"

namespace {

const CSize Hello16 = PictureSize({"Hello"}, 16);

/// Text T with an outline and its shadow; plain text U of 32 pixels; pictures A and B.
class TextLook : public testing::Test {
  protected:
    TextLook() {
        m_stage.AddPicture("B", 0, 500, 300, 80, 20);
        m_stage.Square("A", 500, 100);
        m_stage.AddText("U", "World", 100, 300, {.font = "Courier New", .pixels = 32, .alignment = 2});
        m_stage.AddText("T", "Hello", 100, 100, {.effect = TextEffect::Outline});
        m_stage.Text("T").m_fnUpdateBCAndT(10, 20, 30);
        m_stage.RealShadow("T");
        m_stage.Forget();
    }
    CPoint Middle(const std::string& name) { return m_stage.Rect(name).CenterPoint(); }
    /// A middle is cut to whole units, so what is centred may lie one off.
    void ExpectMiddle(const std::string& name, CPoint ptOld) {
        const CSize off = Middle(name) - ptOld;
        EXPECT_LE(std::max(std::abs(off.cx), std::abs(off.cy)), 1) << name;
    }
    void ExpectOldShadow(const std::string& name) {
        ASSERT_NE(m_stage.Node(name)->m_pShadowNode, nullptr);
        EXPECT_EQ(m_stage.Node(name)->m_shadow.dOffsetX, 3);
        EXPECT_EQ(m_stage.Node(name)->m_shadow.nTransparency, 30);
        EXPECT_EQ(m_stage.Node(name)->m_shadow.crColor, RGB(0x20, 0x40, 0x60));
    }
    TextEffect EffectOf(const std::string& name) { return CTextEffectState::KindOf(m_stage.Text(name)); }
    COLORREF EffectColor(const std::string& name) { return CTextEffectState::ColorOf(m_stage.Text(name)); }

    CTextStage m_stage;
};

// An outline of 16 pixels' text reaches 1 pixel to all sides: w + 2 by h + 2, scaled to the width w.
TEST_F(TextLook, AttributeChangeRecoloursTheEffectAndKeepsTheWidth) {
    m_stage.Select({"T"});
    EXPECT_EQ(EffectColor("T"), RGB(0, 0, 0));

    m_stage.SetTextStyle(1);

    const CSize plain = PictureSize({"Hello"}, 16, 1);
    EXPECT_EQ(EffectOf("T"), TextEffect::Outline);
    EXPECT_EQ(EffectColor("T"), RGB(255, 255, 255)) << "in the text's colour";
    EXPECT_EQ(m_stage.Rect("T").Size(), CSize(plain.cx, (plain.cy + 2) * plain.cx / (plain.cx + 2)));
    ExpectOldShadow("T");
}

TEST_F(TextLook, RecolouredTextKeepsItsEffectsColourLookAndMiddle) {
    const CPoint ptOld = Middle("T");
    CTextNode& text = m_stage.Text("T");

    EXPECT_EQ(m_stage.Ops().RecolorTextNode(&text, RGB(0, 0, 255)), &text);

    EXPECT_EQ(text.m_crText, RGB(0, 0, 255));
    EXPECT_EQ(EffectOf("T"), TextEffect::Outline);
    EXPECT_EQ(EffectColor("T"), RGB(0, 0, 0));
    EXPECT_EQ(text.m_nTransparency, 30);
    ExpectMiddle("T", ptOld);
    ExpectOldShadow("T");
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(TextLook, NothingIsRecolouredWithoutATextOrAnotherColour) {
    m_stage.TextBox("E", 400, 10);
    const Living before = CTextStage::CountLiving();
    EXPECT_EQ(m_stage.Ops().RecolorTextNode(&m_stage.Text("T"), RGB(255, 255, 255)), nullptr);
    EXPECT_EQ(m_stage.Ops().RecolorTextNode(&m_stage.Text("E"), RGB(1, 2, 3)), nullptr) << "it is empty";
    EXPECT_EQ(m_stage.Ops().RecolorTextNode(static_cast<CTextNode*>(m_stage.Node("A")), RGB(1, 2, 3)),
              nullptr);
    EXPECT_EQ(m_stage.Ops().RecolorTextNode(nullptr, RGB(1, 2, 3)), nullptr);
    platform::ArmFault("text-engine", false, 0);
    EXPECT_EQ(m_stage.Ops().RecolorTextNode(&m_stage.Text("T"), RGB(1, 2, 3)), nullptr);
    EXPECT_EQ(m_stage.Text("T").m_crText, RGB(255, 255, 255));
    EXPECT_EQ(CTextStage::CountLiving(), before);
}

TEST_F(TextLook, ReplacementNeedsTwoTextsThatAreNobodysCompanion) {
    m_stage.AddText("R", "x", 0, 0, {.offPage = true});
    m_stage.AddText("C", "x", 0, 0, {.offPage = true});
    m_stage.Text("C").m_pOwner = m_stage.Node("A");
    const std::vector<std::array<const char*, 2>> rows = {{"T", "C"}, {"C", "R"},    {"A", "R"},
                                                          {"T", "A"}, {"T", "none"}, {"none", "R"}};
    for (const auto& [pszOld, pszNew] : rows) {
        auto* pOld = static_cast<CTextNode*>(m_stage.Node(pszOld));
        auto* pNew = static_cast<CTextNode*>(m_stage.Node(pszNew));
        EXPECT_EQ(m_stage.Ops().ReplaceTextNode(pOld, pNew, 0), 0) << pszOld << ' ' << pszNew;
        EXPECT_EQ(m_stage.Ops().RebuildTextNodeInPlace(pOld, pNew, 0), 0) << pszOld << ' ' << pszNew;
    }
    EXPECT_STREQ(m_stage.Text("T").m_strText, "Hello");
    m_stage.Text("C").m_pOwner = nullptr;
}

// In place of U, a text scaled to another width is brought to what its own attributes give.
TEST_F(TextLook, RebuiltInPlaceTakesTheWidthOfAFreshBuild) {
    m_stage.AddText("R", "Hello", 0, 0, {.effect = TextEffect::Outline, .offPage = true});
    m_stage.Select({"U"});
    const CPoint ptOld = Middle("U");
    const std::size_t nNodes = CTextStage::CountLiving().nodes;

    EXPECT_EQ(m_stage.Ops().RebuildTextNodeInPlace(&m_stage.Text("U"), &m_stage.Text("R"), 1), 1);

    EXPECT_STREQ(m_stage.Text("U").m_strText, "Hello");
    EXPECT_EQ(m_stage.Rect("U").Width(), Hello16.cx);
    ExpectMiddle("U", ptOld);
    EXPECT_EQ(CTextStage::CountLiving().nodes, nNodes - 1) << "the rebuilt object is gone";
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

// An emboss of 64 pixels' text reaches 3 pixels to all sides.
TEST_F(TextLook, EffectIsRemovedRoundTheMiddleAndTheRestStays) {
    m_stage.AddText("W", "Hello", 300, 200, {.pixels = 64, .effect = TextEffect::Emboss});
    m_stage.Text("W").m_fnUpdateBCAndT(10, 20, 30);
    m_stage.RealShadow("W");
    m_stage.Forget();
    const CPoint ptOld = Middle("W");
    const auto nId = m_stage.Node("W")->m_nId;
    m_stage.Select({"W"});
    const int nWaits = m_stage.WaitCursors();

    m_stage.Main().m_fnRemoveTextEffect(ptOld);

    EXPECT_EQ(EffectOf("W"), TextEffect::None);
    EXPECT_EQ(m_stage.Rect("W").Size(), PictureSize({"Hello"}, 64));
    ExpectMiddle("W", ptOld);
    ExpectOldShadow("W");
    EXPECT_EQ(m_stage.Text("W").m_nBrightness, 10);
    EXPECT_EQ(m_stage.Text("W").m_nTransparency, 30);
    EXPECT_EQ(m_stage.Node("W")->m_nId, nId);
    EXPECT_EQ(m_stage.UndoClasses(), Lines{});
    EXPECT_EQ(m_stage.WaitCursors() - nWaits, 1);
    EXPECT_EQ(m_stage.ToldOnBus(), (Lines{"tracker.3 1", "changed.1 27", "changed2.1 27 0", "redrawn.1 27"}));
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(TextLook, FrameOfAFreedTextIsCentredOnIt) {
    m_stage.Frame("T", {60, 60, 160, 160});
    const CPoint ptOld = m_stage.Node("T")->m_fnGetBoundRectWithFrame().CenterPoint();
    m_stage.Select({"T"});

    m_stage.Main().m_fnRemoveTextEffect({100, 100});

    EXPECT_EQ(EffectOf("T"), TextEffect::None);
    ExpectMiddle("T", Middle("T.frame"));
    ExpectMiddle("T.frame", ptOld);
}

TEST_F(TextLook, EffectOfAnUnselectedTextStays) {
    m_stage.Select({"U"});
    m_stage.Forget();
    m_stage.Main().m_fnRemoveTextEffect(Middle("T"));
    m_stage.Main().m_fnRemoveTextEffect({600, 400});

    EXPECT_EQ(EffectOf("T"), TextEffect::Outline);
    EXPECT_EQ(m_stage.Told(), Lines{});
}

TEST_F(TextLook, FailedRemovalStopsUntold) {
    m_stage.Select({"T"});
    m_stage.Forget();
    const Living before = CTextStage::CountLiving();
    platform::ArmFault("text-engine", false, 0);

    m_stage.Main().m_fnRemoveTextEffect(Middle("T"));

    platform::ClearFaults();
    EXPECT_EQ(EffectOf("T"), TextEffect::Outline);
    EXPECT_EQ(m_stage.ToldOnBus(), Lines{});
    EXPECT_EQ(CTextStage::CountLiving(), before);
}

TEST_F(TextLook, CopiedLookIsTheSourcesRoundTheTargetsText) {
    const CPoint ptOld = Middle("U");
    m_stage.Frame("T", {90, 90, 190, 140});

    EXPECT_EQ(m_stage.Ops().CopyNodeLook(m_stage.Node("T"), m_stage.Node("U")), 1);

    const CTextNode& text = m_stage.Text("U");
    EXPECT_STREQ(text.m_strText, "World");
    EXPECT_STREQ(text.m_strFontName, "Arial");
    EXPECT_EQ(text.m_nFontSize, 16);
    EXPECT_EQ(text.m_nAlignment, text_align_code::Left);
    EXPECT_EQ(EffectOf("U"), TextEffect::Outline);
    EXPECT_EQ(text.m_tx.nWidth, PictureSize({"World"}, 16).cx);
    EXPECT_EQ(text.m_nBrightness, 10);
    EXPECT_EQ(text.m_nTransparency, 30);
    ExpectOldShadow("U");
    ExpectMiddle("U", ptOld);
    EXPECT_EQ(m_stage.Rect("U.frame").Size(), CSize(100, 50));
    EXPECT_EQ(m_stage.PageNames(), (Lines{"T.frame", "T", "T.shadow", "U.frame", "U", "U.shadow", "A", "B"}));
}

TEST_F(TextLook, CopiedLookTakesTheTargetsOwnCompanionsAway) {
    m_stage.RealShadow("U");
    m_stage.Frame("U", {90, 290, 250, 350});

    EXPECT_EQ(m_stage.Ops().CopyNodeLook(m_stage.Node("U"), m_stage.Node("T")), 1);
    EXPECT_NE(m_stage.Node("T")->m_pFrameNode, nullptr);
    m_stage.Text("U").m_pShadowNode = nullptr;
    m_stage.AddText("V", "plain", 300, 200);
    EXPECT_EQ(m_stage.Ops().CopyNodeLook(m_stage.Node("V"), m_stage.Node("T")), 1);

    EXPECT_EQ(m_stage.Node("T")->m_pFrameNode, nullptr);
    EXPECT_EQ(m_stage.Node("T")->m_pShadowNode, nullptr);
    EXPECT_EQ(EffectOf("T"), TextEffect::None);
}

TEST_F(TextLook, ToolTakesTheCopiedLookOfItsOnlySelectedText) {
    m_stage.Select({"T"});
    m_stage.Ops().CopyNodeLook(m_stage.Node("U"), m_stage.Node("T"));
    m_stage.Select({});
    m_stage.SecondPress({500, 400});

    EXPECT_EQ(m_stage.Editor()->m_fnGetFontSizeInPixel(), 32);
    EXPECT_EQ(m_stage.Editor()->m_fnGetAlignType(), 2);
}

TEST_F(TextLook, PictureTakesTheSourcesSizeRoundItsMiddle) {
    EXPECT_EQ(m_stage.Ops().CopyNodeLook(m_stage.Node("B"), m_stage.Node("A")), 1);
    EXPECT_EQ(m_stage.Rect("A"), CRect(480, 110, 560, 130));
}

TEST_F(TextLook, ImpossibleCopiesAnswerAndChangeNothing) {
    struct CopyRow {
        const char* pszSource;
        const char* pszTarget;
        const char* pszFault;
        int nAnswer;
    };
    constexpr std::array<CopyRow, 7> Rows = {{{"T", "T", "", 1},
                                              {"T", "A", "", 1},
                                              {"A", "U", "", 1},
                                              {"T", "none", "", 0},
                                              {"none", "T", "", 0},
                                              {"T", "U", "text-engine", 0},
                                              {"T", "U", "window", 0}}};
    const CRect rcOld = m_stage.Rect("U");
    for (const CopyRow& row : Rows) {
        const Living before = CTextStage::CountLiving();
        platform::ArmFault(row.pszFault, false, 0);
        EXPECT_EQ(m_stage.Ops().CopyNodeLook(m_stage.Node(row.pszSource), m_stage.Node(row.pszTarget)),
                  row.nAnswer)
            << row.pszSource << row.pszTarget << row.pszFault;
        platform::ClearFaults();
        EXPECT_EQ(m_stage.Rect("U"), rcOld) << row.pszFault;
        EXPECT_EQ(CTextStage::CountLiving(), before) << row.pszSource << row.pszTarget << row.pszFault;
    }
    platform::ArmFault("display-values", true, 0);
    EXPECT_EQ(m_stage.Ops().CopyNodeLook(m_stage.Node("T"), m_stage.Node("U")), 0);
}

} // namespace
