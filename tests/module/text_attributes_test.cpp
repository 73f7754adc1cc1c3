// Setting attributes with the text tool: what is rebuilt, what is told, and where it stays.
#include <functional>

#include "platform/display.h"
#include "platform/faults.h"
#include "text_help.h"

namespace {

/// The redraw is told before the change.
const Lines Notified = {"redrawn.1 27", "tracker.3 1", "changed.1 27", "changed2.1 27 0"};

struct SetterRow {
    const char* pszName;
    std::function<void(CTextStage&)> set;
    std::function<bool(const CTextNode&)> isSet;
    const char* pszShown;
};

const std::vector<SetterRow>& Setters() {
    static const std::vector<SetterRow> rows = {
        {"font", [](CTextStage& stage) { stage.SetTextFont("Courier New"); },
         [](const CTextNode& text) { return text.m_strFontName == "Courier New"; },
         "text-page.3 Courier New 12 0 0 16777215 0 0"},
        {"size", [](CTextStage& stage) { stage.SetTextSize(24); },
         [](const CTextNode& text) { return text.m_nFontSize == 32; },
         "text-page.3 Arial 24 0 0 16777215 0 0"},
        {"alignment", [](CTextStage& stage) { stage.SetTextAlignment(2); },
         [](const CTextNode& text) { return text.m_nAlignment == 1001; },
         "text-page.3 Arial 12 2 0 16777215 0 0"},
        {"style", [](CTextStage& stage) { stage.SetTextStyle(5); },
         [](const CTextNode& text) { return text.m_nBold == 1 && !text.m_nItalic && text.m_nUnderline == 1; },
         "text-page.3 Arial 12 0 5 16777215 0 0"},
        {"colour", [](CTextStage& stage) { stage.SetTextColor(RGB(255, 0, 0)); },
         [](const CTextNode& text) { return text.m_crText == RGB(255, 0, 0); },
         "text-page.3 Arial 12 0 0 255 0 0"}};
    return rows;
}

bool HasLine(const Lines& lines, const std::string& line) {
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

/// Picture A, texts T and U, T selected.
void Fill(CTextStage& stage) {
    stage.Square("A", 10, 10);
    stage.AddText("T", "Hello", 100, 100);
    stage.AddText("U", "World", 100, 200);
    stage.Select({"T"});
    stage.Forget();
}

class TextAttributes : public testing::Test {
  protected:
    TextAttributes() { Fill(m_stage); }
    CTextStage m_stage;
};

TEST(TextAttributeSetters, EachRebuildsWhatDiffersAndTellsPanelThenHost) {
    for (const SetterRow& row : Setters()) {
        CTextStage stage;
        Fill(stage);
        const int nWaits = stage.WaitCursors();
        row.set(stage);

        EXPECT_TRUE(row.isSet(stage.Text("T"))) << row.pszName;
        EXPECT_FALSE(row.isSet(stage.Text("U"))) << row.pszName;
        Lines expected = {row.pszShown};
        expected.insert(expected.end(), Notified.begin(), Notified.end());
        EXPECT_EQ(stage.ToldOnBus(), expected) << row.pszName;
        EXPECT_EQ(stage.WaitCursors() - nWaits, 1) << row.pszName;

        row.set(stage);
        EXPECT_EQ(stage.Told(), Lines{}) << row.pszName << " is set already";
        EXPECT_EQ(stage.WaitCursors() - nWaits, 1) << row.pszName;
    }
}

// Old 50 wide and new 53: -3 / 2 is -1 and the left edge goes one to the left.
TEST_F(TextAttributes, RebuiltTextKeepsIdentityPlaceInTheOrderAndMiddle) {
    const CRect rcOld = m_stage.Rect("T");
    const auto nId = m_stage.Node("T")->m_nId;
    const Lines order = m_stage.PageNames();
    m_stage.Text("T").m_fnUpdateBCAndT(10, -20, 30);

    m_stage.SetTextSize(30);

    const CSize size = PictureSize({"Hello"}, 40);
    const CRect expected(CPoint(100 + (rcOld.Width() - size.cx) / 2, 100 + (rcOld.Height() - size.cy) / 2),
                         size);
    EXPECT_EQ(m_stage.Rect("T"), expected);
    EXPECT_EQ(m_stage.Node("T")->m_nId, nId);
    EXPECT_EQ(m_stage.PageNames(), order);
    EXPECT_EQ(m_stage.Selection(), Lines{"T"});
    EXPECT_EQ(m_stage.Node("T")->m_nBrightness, 10);
    EXPECT_EQ(m_stage.Node("T")->m_nContrast, -20);
    EXPECT_EQ(m_stage.Node("T")->m_nTransparency, 30);
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(TextAttributes, CompanionsComeAlong) {
    m_stage.RealShadow("T");
    m_stage.Frame("T", {80, 90, 220, 140});
    const CPoint ptFrame = m_stage.Rect("T.frame").CenterPoint();
    const CSize delta = ptFrame - m_stage.Rect("T").CenterPoint();

    m_stage.SetTextSize(24);

    EXPECT_EQ(m_stage.PageNames(), (Lines{"U", "T.frame", "T", "T.shadow", "A"}));
    EXPECT_EQ(m_stage.Node("T")->m_shadow.dOffsetX, 3);
    EXPECT_EQ(m_stage.Node("T")->m_shadow.crColor, RGB(0x20, 0x40, 0x60));
    EXPECT_EQ(m_stage.Rect("T.frame").Size(), CSize(140, 50)) << "a rebuild keeps the frame's size";
    EXPECT_EQ(m_stage.Rect("T.frame").CenterPoint(), m_stage.Rect("T").CenterPoint());
    EXPECT_NE(delta, CSize(0, 0)) << "it was not centred before";
    EXPECT_EQ(m_stage.Node("T.frame")->m_pOwner, m_stage.Node("T"));
}

TEST_F(TextAttributes, ColourIsSetOnTextsAloneAndTheRestOnTheTextsAmongOthers) {
    m_stage.Select({"A", "T"});

    m_stage.SetTextColor(RGB(0, 0, 255));
    EXPECT_EQ(m_stage.Text("T").m_crText, RGB(255, 255, 255));
    m_stage.SetTextSize(24);
    EXPECT_EQ(m_stage.Text("T").m_nFontSize, 32);
    EXPECT_EQ(m_stage.Rect("A"), CRect(10, 10, 50, 50));
    EXPECT_FALSE(HasLine(m_stage.ToldOnBus(), "text-page.3 Arial 24 0 0 16777215 0 0"))
        << "a mixed selection is not shown";

    m_stage.Select({"T", "U"});
    m_stage.SetTextColor(RGB(0, 255, 0));
    EXPECT_EQ(m_stage.Text("T").m_crText, RGB(0, 255, 0));
    EXPECT_EQ(m_stage.Text("U").m_crText, RGB(0, 255, 0));
}

TEST_F(TextAttributes, WithNothingSelectedOnlyTheToolRemembers) {
    m_stage.Select({});
    m_stage.Forget();

    for (const SetterRow& row : Setters()) {
        row.set(m_stage);
        EXPECT_EQ(m_stage.Told(), Lines{}) << row.pszName;
    }
    m_stage.SecondPress({400, 400});

    EXPECT_EQ(m_stage.Editor()->m_fnGetFontSizeInPixel(), 32);
    EXPECT_EQ(m_stage.Editor()->m_fnGetAlignType(), 2);
    EXPECT_EQ(m_stage.Editor()->m_fnIsBold(), 1);
    EXPECT_EQ(m_stage.Editor()->m_fnGetTextColor(), RGB(255, 0, 0));
}

// 24 points are 32 pixels; at zoom 2 the editor shows 64.
TEST_F(TextAttributes, OpenEditorTakesThemInPlaceOfTheSelection) {
    m_stage.NewPage(360, 240, 2.0);
    m_stage.AddText("T", "Hello", 100, 100);
    m_stage.DblClick({400, 100});
    m_stage.Forget();
    const int nWaits = m_stage.WaitCursors();

    m_stage.SetTextSize(24);

    EXPECT_EQ(m_stage.Editor()->m_fnGetFontSizeInPixel(), 64);
    EXPECT_EQ(m_stage.ToldOnBus(), Lines{"text-page.3 Arial 24 0 0 16777215 0 0"}) << "nothing is selected";
    m_stage.SetTextSize(24);
    EXPECT_EQ(m_stage.WaitCursors() - nWaits, 2) << "an editor takes every value";
    m_stage.SetTextAlignment(7);
    EXPECT_EQ(m_stage.Editor()->m_fnGetAlignType(), 0);
    m_stage.SetTextStyle(6);
    EXPECT_EQ(m_stage.Editor()->m_fnIsItalic(), 1);
    EXPECT_EQ(m_stage.Editor()->m_fnIsBold(), 0);
    EXPECT_EQ(m_stage.Text("T").m_nFontSize, 16);
}

TEST_F(TextAttributes, ToolThatIsNotCurrentRebuildsWithoutShowing) {
    ITextAttributeTarget& target = *CDesk::Query<ITextAttributeTarget>(m_stage.Tool("CTextTool"));
    m_stage.UseTool("CSelectTool");
    m_stage.Select({"T"});
    m_stage.Forget();

    target.SetFontSize(24);

    EXPECT_EQ(m_stage.Text("T").m_nFontSize, 32);
    EXPECT_EQ(m_stage.ToldOnBus(), Notified);
}

TEST_F(TextAttributes, FailureStopsAtThatTextAndIsToldAllTheSame) {
    for (const char* pszFault : {"text-engine", "display-values"}) {
        m_stage.NewPage(720, 480);
        Fill(m_stage);
        m_stage.Select({"T", "U"});
        const Living before = CTextStage::CountLiving();
        m_stage.Forget();

        platform::ArmFault(pszFault, false, 1);
        m_stage.SetTextSize(24);
        platform::ClearFaults();

        EXPECT_EQ(m_stage.Text("T").m_nFontSize, 32) << pszFault;
        EXPECT_EQ(m_stage.Text("U").m_nFontSize, 16) << pszFault;
        EXPECT_EQ(m_stage.ToldOnBus(), Notified) << pszFault;
        EXPECT_EQ(CTextStage::CountLiving(), before) << pszFault;
    }
}

// At 48 dots an inch 10 points are 7 pixels, as 11 points are, but 7 pixels are nearest to 11 points. What
// was typed stays while it comes to the object's pixels.
TEST_F(TextAttributes, HookKeepsThePanelsPointsWhileTheyFit) {
    struct HookRow {
        int nDpi;
        int nPixelSize;
        int nPanelPoints;
        int nExpectedPoints;
    };
    const std::vector<HookRow> rows = {
        {96, 15, 11, 11}, {96, 40, 12, 30}, {48, 7, 10, 10}, {48, 7, 11, 11}, {48, 7, 20, 11}};
    for (const HookRow& row : rows) {
        platform::SetDisplayDpi(row.nDpi);
        m_stage.NewPage(720, 480);
        m_stage.AddText("T", "Hello", 100, 100, {.pixels = row.nPixelSize, .alignment = 1});
        m_stage.Desk().Panels().nFontPoints = row.nPanelPoints;
        EXPECT_EQ(m_stage.Edit("T"), 1);
        m_stage.Forget();
        m_stage.SetTextStyle(2);
        EXPECT_EQ(m_stage.ToldOnBus(),
                  Lines{"text-page.3 Arial " + std::to_string(row.nExpectedPoints) + " 1 2 16777215 0 0"});
        m_stage.EndEditor();
    }
    platform::SetDisplayDpi(96);
}

TEST_F(TextAttributes, HookIgnoresWhatIsNotTheOnlySelectedText) {
    m_stage.AddText("V", "Large", 300, 300, {.pixels = 40});
    for (const auto& [selection, node] : std::vector<std::pair<Lines, std::string>>{
             {{"T"}, "V"}, {{"T", "V"}, "V"}, {{}, "V"}, {{"A"}, "A"}}) {
        m_stage.Select(selection);
        m_stage.Ops().HookNode(m_stage.Node(node));
        m_stage.Select({});
        m_stage.SecondPress({500, 50});
        EXPECT_EQ(m_stage.Editor()->m_fnGetFontSizeInPixel(), 16) << node;
        m_stage.EndEditor();
    }
}

} // namespace
