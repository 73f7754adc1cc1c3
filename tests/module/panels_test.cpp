// What the host's panels are shown of a selection, and which page suits a tool.
#include <array>

#include "host/document_service.h"
#include "host/panels.h"
#include "host/text_node.h"
#include "module_help.h"

namespace {

/// Two pictures A and B and two texts T and U.
class Panels : public testing::Test {
  protected:
    Panels() {
        m_stage.Square("A", 10, 10);
        m_stage.Square("B", 100, 10);
        m_stage.TextBox("T", 10, 100);
        m_stage.TextBox("U", 100, 100);
    }
    /// What showing the selection's attributes tells, with that page showing.
    Lines Shown(const Lines& selection, PanelChoice choice = PanelChoice::Object) {
        m_stage.Select(selection);
        m_stage.Desk().ShowPanel(choice);
        m_stage.Forget();
        m_nAnswer = m_stage.Ops().SyncAttributePanels();
        return m_stage.Told();
    }
    CTextNode& Text(const std::string& name) { return *static_cast<CTextNode*>(m_stage.Node(name)); }

    CModuleStage m_stage;
    int m_nAnswer = -1;
};

const Lines BareDisplay = {"display-panel.3 0 0 0 0", "shadow-panel.4 0 0", "shadow-panel.3"};

TEST_F(Panels, PageSuitsTheClassOfTheSelectionAndThePageThatIsShowing) {
    struct PageRow {
        Lines selection;
        PanelChoice choice;
        Lines told;
    };
    const std::vector<PageRow> rows = {
        {{}, PanelChoice::Object, {"area.3 1", "reset.1 0"}},
        {{}, PanelChoice::Text, {"area.3 1", "reset.1 0"}},
        {{}, PanelChoice::Composed, {"area.3 1", "reset.1 0"}},
        {{"T"}, PanelChoice::Object, {"area.3 0", "reset.1 0"}},
        {{"T", "U"}, PanelChoice::Object, {"area.3 0", "reset.1 0"}},
        {{"T"}, PanelChoice::ObjectAndText, {"area.3 0", "reset.1 0"}},
        {{"T"}, PanelChoice::Composed, {"area.3 1", "reset.1 0"}},
        {{"A"}, PanelChoice::Text, {"area.3 0", "reset.1 0"}},
        {{"A", "B"}, PanelChoice::Text, {"area.3 0", "reset.1 0"}},
        {{"A"}, PanelChoice::Composed, {"area.3 1", "reset.1 0"}},
        {{"A", "T"}, PanelChoice::Object, {"area.3 0"}},
        {{"A", "T"}, PanelChoice::Text, {"area.3 0"}},
        {{"A", "T"}, PanelChoice::ObjectAndText, {"area.3 0"}},
        {{"A", "T"}, PanelChoice::Composed, {"area.3 1"}},
        {{"A"}, PanelChoice::Missing, {}},
    };
    for (std::size_t n = 0; n < rows.size(); ++n) {
        EXPECT_EQ(Shown(rows[n].selection, rows[n].choice), rows[n].told) << "row " << n;
        EXPECT_EQ(m_nAnswer, 1) << "row " << n;
    }
}

TEST_F(Panels, PictureFillsTheObjectPageAlsoWhenItIsTheTextPageToo) {
    Lines expected = {"area.3 1"};
    expected.insert(expected.end(), BareDisplay.begin(), BareDisplay.end());

    EXPECT_EQ(Shown({"A"}, PanelChoice::Object), expected);
    EXPECT_EQ(Shown({"A"}, PanelChoice::ObjectAndText), expected);
}

TEST_F(Panels, TextFillsTheTextPage) {
    Text("T").m_nAlignment = text_align_code::Right;
    Text("T").m_nBold = 1;
    Text("T").m_nUnderline = 1;
    Text("T").m_crText = 0x0000FF;

    Lines expected = {"area.3 1", "text-page.3 Arial 12 2 5 255 0 0"};
    expected.insert(expected.end(), BareDisplay.begin(), BareDisplay.end());
    EXPECT_EQ(Shown({"T"}, PanelChoice::Text), expected) << "16 pixels are 12 points";
}

TEST_F(Panels, TextsThatDifferShowMixedValuesAndCommonStyles) {
    Text("T").m_nBold = 1;
    Text("T").m_nItalic = 1;
    Text("U").m_nItalic = 1;
    Text("U").m_nUnderline = 1;
    Text("U").m_strFontName = "Courier New";
    Text("U").m_nFontSize = 32;
    Text("U").m_nAlignment = text_align_code::Center;
    Text("U").m_crText = 0x00FF00;

    const Lines told = Shown({"T", "U"}, PanelChoice::Text);

    ASSERT_GE(told.size(), 2U);
    EXPECT_EQ(told[1], "text-page.3  -1 3 2 8421504 1 0");
}

TEST_F(Panels, TextsAlikeShowTheirCommonValues) {
    Text("T").m_nAlignment = Text("U").m_nAlignment = text_align_code::Center;

    const Lines told = Shown({"U", "T"}, PanelChoice::Text);

    ASSERT_GE(told.size(), 2U);
    EXPECT_EQ(told[1], "text-page.3 Arial 12 1 0 0 0 0");
}

TEST_F(Panels, DisplayValuesAreToldOncePerObjectAndMixedFromTheFirstDifferenceOn) {
    m_stage.Square("C", 200, 10);
    m_stage.Node("A")->m_fnUpdateBCAndT(10, 0, 5);
    m_stage.Node("B")->m_fnUpdateBCAndT(10, 20, 5);
    m_stage.Node("C")->m_fnUpdateBCAndT(-11, 0, 5);

    EXPECT_EQ(Shown({"A", "B", "C"}),
              (Lines{"area.3 1", "display-panel.3 10 0 5 0", "display-panel.3 10 -1 5 0",
                     "display-panel.3 -1 -1 5 0", "shadow-panel.4 0 0", "shadow-panel.3"}));
}

TEST_F(Panels, ShadowValuesAreTruncatedAndMixedOnesMarked) {
    m_stage.Shadow("A", 5, 5);
    m_stage.Node("A")->m_shadow = {3.9, -3.9, 7.5, 40, 0x112233};
    EXPECT_EQ(Shown({"A"}), (Lines{"area.3 1", "display-panel.3 0 0 0 0", "shadow-panel.4 1 0",
                                   "shadow-panel.2 3 -3 1122867 7 40 0 0"}));

    EXPECT_EQ(Shown({"A", "B"}), (Lines{"area.3 1", "display-panel.3 0 0 0 0", "display-panel.3 0 0 0 0",
                                        "shadow-panel.4 0 0"}));

    m_stage.Shadow("B", 5, 5);
    m_stage.Node("B")->m_shadow = {6, -3.9, 8, 41, 0};
    EXPECT_EQ(Shown({"A", "B"}).back(), "shadow-panel.2 -99999 -3 8421504 -1 -1 1 0");
}

TEST_F(Panels, FrameToolTellsWhetherAFrameCanBeRemoved) {
    m_stage.AddPlaceholder("P", 300, 100, 60, 40);
    m_stage.UseTool("CFrameTool");
    EXPECT_EQ(Shown({"A"}).back(), "frame-panel.1 0");
    EXPECT_EQ(Shown({"A", "P"}).back(), "frame-panel.1 0") << "its frame is its own";
    m_stage.Node("P")->m_nFrameFollows = 0;
    EXPECT_EQ(Shown({"A", "P"}).back(), "frame-panel.1 1");
    EXPECT_EQ(Shown({}).back(), "reset.1 0") << "no page is filled for nothing";
}

TEST_F(Panels, MissingInterfacesSkipOrRefuse) {
    m_stage.HideInterface<IDisplayPanel>(kind::PropertyArea);
    EXPECT_EQ(Shown({"A"}), (Lines{"area.3 1", "shadow-panel.4 0 0", "shadow-panel.3"}));
    m_stage.HideInterface<IShadowPanel>(kind::PropertyArea);
    EXPECT_EQ(Shown({"A"}), Lines{"area.3 1"});
    EXPECT_EQ(m_nAnswer, 1);

    m_stage.HideInterface<ITextAttributePanel>(kind::TextPage);
    EXPECT_EQ(Shown({"T"}, PanelChoice::Text), Lines{"area.3 1"});
    EXPECT_EQ(m_nAnswer, 0);

    m_stage.HideInterface<IPropertyArea>(kind::PropertyArea);
    EXPECT_EQ(Shown({"A"}), Lines{});
    EXPECT_EQ(m_nAnswer, 0);
}

TEST_F(Panels, FrameToolRefusesWithoutTheFramePanel) {
    m_stage.UseTool("CFrameTool");
    m_stage.HideInterface<IFramePanel>(kind::PropertyArea);

    Shown({"A"});

    EXPECT_EQ(m_nAnswer, 0);
}

TEST_F(Panels, EachToolShowsThePageThatSuitsItsKind) {
    struct ToolPage {
        const char* pszTool;
        const char* pszTold;
    };
    constexpr std::array<ToolPage, 10> Rows = {{{"CObjectPageTool", "object-page.1 0"},
                                                {"CDisplayPageTool", "object-page.1 2"},
                                                {"CFrameTool", "object-page.1 1"},
                                                {"CImageShadowTool", "object-page.1 3"},
                                                {"CTextTool", "text-page.1 0"},
                                                {"CTextToolBase", "text-page.1 0"},
                                                {"CTextDisplayTool", "text-page.1 1"},
                                                {"CTextShadowTool", "text-page.1 2"},
                                                {"CTextComboTool", "text-page.1 2"},
                                                {"CAdaptiveComboTool", "area.1 1"}}};
    for (const ToolPage& row : Rows) {
        m_stage.Forget();
        EXPECT_EQ(m_stage.Ops(row.pszTool).SyncToolPanel(), 1) << row.pszTool;
        const Lines told = m_stage.Told();
        ASSERT_GE(told.size(), 2U) << row.pszTool;
        EXPECT_EQ(told[0], row.pszTold) << row.pszTool;
        EXPECT_EQ(told[1], "area.3 1") << row.pszTool << " goes on to the selection's attributes";
    }
}

TEST_F(Panels, ToolWithoutAPropertyObjectOrItsInterfaceShowsNothing) {
    m_stage.Forget();
    EXPECT_EQ(m_stage.Ops("CSelectTool").SyncToolPanel(), 0);
    m_stage.HideInterface<IObjectPage>(kind::ObjectPage);
    EXPECT_EQ(m_stage.Ops("CObjectPageTool").SyncToolPanel(), 0);
    m_stage.HideInterface<ITextAttributePanel>(kind::TextPage);
    EXPECT_EQ(m_stage.Ops("CTextShadowTool").SyncToolPanel(), 0);
    m_stage.HideInterface<IPropertyArea>(kind::ComposedPage);
    EXPECT_EQ(m_stage.Ops("CAdaptiveComboTool").SyncToolPanel(), 0);
    m_stage.HideInterface<ICurrentToolService>(kind::Document);
    EXPECT_EQ(m_stage.Ops("CDisplayPageTool").SyncToolPanel(), 0);

    EXPECT_EQ(m_stage.Told(), Lines{});
}

} // namespace
