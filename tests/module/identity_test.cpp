// What each tool answers about itself on the bus: kinds, interfaces, states, GUIDs, panel kind.
#include <array>
#include <set>

#include "desk/guid_text.h"
#include "module_help.h"
#include "tools/basic_object_tool.h"
#include "tools/display_tool.h"
#include "tools/frame_tool.h"
#include "tools/shadow_tool.h"

namespace {

constexpr char SelectGroup[] = "{6EA29FE6-C4BB-4CBE-BED8-7E850EA3AF8F}";
constexpr char ObjectGroup[] = "{AC96B0F1-4087-4BBC-8117-B51959DE4831}";
constexpr char TextGroup[] = "{53693A02-4E5D-45FD-801B-2FCE84F1DDE0}";
constexpr char CommonGroup[] = "{47AB3BB3-C8F0-4C35-97A7-BF723939D7A5}";

struct Identity {
    const char* pszTool;
    std::set<int> kinds;
    std::set<int> editKinds;
    const char* pszClass;
    const char* pszGroup;
    int nPanelKind; ///< 0 for none
};

const std::vector<Identity>& Identities() {
    static const std::vector<Identity> rows = {
        {"CSelectTool", {0, 3, 13}, {}, "{9AA7E4FC-4EE6-4FF6-A966-1AA5219C9A4A}", SelectGroup, 0},
        {"CObjectPageTool", {0, 3, 14, 18}, {}, "{B8902073-6572-47FC-93B7-349AF641F2CC}", ObjectGroup, 7},
        {"CDisplayPageTool", {0, 3, 15, 19}, {}, "{92D8EFCF-443B-415C-B793-EA96CCD05092}", ObjectGroup, 7},
        {"CFrameTool", {0, 3, 16, 20}, {}, "{C40C512D-3EE6-4A54-BE33-9BFB8F751D48}", ObjectGroup, 7},
        {"CImageShadowTool", {0, 3, 17, 21}, {}, "{3B2D708E-A057-4866-A2CD-943E765DEEE8}", ObjectGroup, 7},
        {"CTextTool", {0, 3, 14, 22, 23}, {}, "{55A27504-6445-4147-A924-F7ED648D3521}", TextGroup, 12},
        {"CTextDisplayTool", {0, 3, 15, 24}, {}, "{10C2C978-0E1B-449D-9D72-F71CA2C531F5}", TextGroup, 12},
        {"CTextShadowTool", {0, 3, 17, 26}, {}, "{AFCFC1E0-27D5-405E-88A6-C049EE0E75F2}", TextGroup, 12},
        {"CTextToolBase", {0, 3, 14, 22}, {}, "{9ED96494-910C-4C73-A30F-5F240456F412}", CommonGroup, 8},
        {"CTextComboTool", {0, 3, 17, 26}, {13}, "{CFB78B20-C6FF-4736-BD12-56D811EB36C1}", TextGroup, 12},
        {"CAdaptiveComboTool", {0, 3, 17, 26}, {15}, "{54CA0DCA-17E6-4261-BC90-B0B4417E1850}", TextGroup, 6},
    };
    return rows;
}

std::set<int> KindsOf(CListenerObject& tool, const GUID& category) {
    std::set<int> kinds;
    for (int nKind = -1; nKind < 64; ++nKind) {
        int nResult = 7;
        int nExtra = 7;
        const int nAnswer = tool.IsKindOf(category, nKind, &nResult, &nExtra);
        EXPECT_EQ(nResult, nAnswer) << nKind;
        EXPECT_EQ(nExtra, 0) << nKind;
        if (nAnswer == 1) {
            kinds.insert(nKind);
        }
    }
    return kinds;
}

bool IsOfKind(CListenerObject* pTool, int nKind) {
    return pTool->IsKindOf(CategoryId, nKind, nullptr, nullptr) == 1;
}

/// What the operation answers with which each branch of the classes tells its page; 0 for a tool without it.
int PanelKindOf(CListenerObject* pTool) {
    if (IsOfKind(pTool, 14)) {
        return static_cast<CBasicObjectTool*>(pTool)->GetPanelKind();
    }
    if (IsOfKind(pTool, 15)) {
        return static_cast<CDisplayTool*>(pTool)->GetPanelKind();
    }
    if (IsOfKind(pTool, 16)) {
        return static_cast<CFrameToolBase*>(pTool)->GetPanelKind();
    }
    return IsOfKind(pTool, 17) ? static_cast<CShadowTool*>(pTool)->GetPanelKind() : 0;
}

TEST(ToolIdentity, KindsAreItsOwnThoseOfItsBasesAndNoOthers) {
    CModuleStage stage;
    for (const Identity& row : Identities()) {
        CListenerObject& tool = *stage.Tool(row.pszTool);
        EXPECT_EQ(KindsOf(tool, CategoryId), row.kinds) << row.pszTool;
        EXPECT_EQ(KindsOf(tool, EditCategoryId), row.editKinds) << row.pszTool;
    }
}

TEST(ToolIdentity, ClassAndGroupAreThoseOfTheTable) {
    CModuleStage stage;
    stage.Desk().ShowPanel(PanelChoice::Missing);
    for (const Identity& row : Identities()) {
        IToolIdentity* pIdentity = CDesk::Query<IToolIdentity>(stage.Tool(row.pszTool));
        EXPECT_EQ(GuidText(pIdentity->GetToolClassId()), row.pszClass);
        EXPECT_EQ(GuidText(pIdentity->GetToolGroupId()), row.pszGroup) << row.pszTool;
    }
}

TEST(ToolIdentity, PanelKindIsThatOfItsPage) {
    CModuleStage stage;
    stage.Desk().ShowPanel(PanelChoice::Missing);
    for (const Identity& row : Identities()) {
        EXPECT_EQ(PanelKindOf(stage.Tool(row.pszTool)), row.nPanelKind) << row.pszTool;
    }
}

TEST(AdaptiveComboTool, TakesPanelKindAndGroupFromThePageThatIsShowing) {
    struct Row {
        PanelChoice choice;
        int nPanelKind;
        const char* pszGroup;
    };
    constexpr std::array<Row, 5> Rows = {{{PanelChoice::Object, 7, ObjectGroup},
                                          {PanelChoice::Text, 12, TextGroup},
                                          {PanelChoice::ObjectAndText, 7, ObjectGroup},
                                          {PanelChoice::Composed, 6, TextGroup},
                                          {PanelChoice::Missing, 6, TextGroup}}};
    CModuleStage stage;
    CListenerObject* pTool = stage.Tool("CAdaptiveComboTool");
    for (const Row& row : Rows) {
        stage.Desk().ShowPanel(row.choice);
        EXPECT_EQ(PanelKindOf(pTool), row.nPanelKind);
        EXPECT_EQ(GuidText(CDesk::Query<IToolIdentity>(pTool)->GetToolGroupId()), row.pszGroup);
    }
}

TEST(AdaptiveComboTool, HasItsClassesGroupWhenThePageNamesNone) {
    CModuleStage stage;
    stage.Desk().ShowPanel(PanelChoice::Object);
    stage.HideInterface<IToolGroupSource>(kind::PropertyArea);

    IToolIdentity* pIdentity = CDesk::Query<IToolIdentity>(stage.Tool("CAdaptiveComboTool"));

    EXPECT_EQ(GuidText(pIdentity->GetToolGroupId()), TextGroup);
}

TEST(ToolInterfaces, AreTheFiveOfEveryToolAndLeadIntoTheObject) {
    CModuleStage stage;
    for (const Identity& row : Identities()) {
        CListenerObject* pTool = stage.Tool(row.pszTool);
        EXPECT_NE(CDesk::Query<IToolIdentity>(pTool), nullptr) << row.pszTool;
        EXPECT_EQ(CDesk::Query<IToolObjectOps>(pTool)->CanRunCommand(), 1) << row.pszTool;
        EXPECT_EQ(CDesk::Query<IToolInput>(pTool)->Reserved6(0, {1, 1}), 0) << row.pszTool;
        EXPECT_EQ(CDesk::Query<IToolInput>(pTool)->Reserved7(0, {1, 1}), 0) << row.pszTool;
        EXPECT_EQ(CDesk::Query<IToolLink>(pTool)->GetExcludedNode(), nullptr) << row.pszTool;
        EXPECT_NE(CDesk::Query<IToolAux>(pTool), nullptr) << row.pszTool;
    }
}

TEST(ToolInterfaces, SelectOnlyBelongsToTheBasicObjectTools) {
    CModuleStage stage;
    const std::set<std::string> basic = {"CObjectPageTool", "CTextTool", "CTextToolBase"};
    for (const Identity& row : Identities()) {
        const bool bHas = CDesk::Query<ISelectOnly>(stage.Tool(row.pszTool)) != nullptr;
        EXPECT_EQ(bHas, basic.count(row.pszTool) == 1) << row.pszTool;
    }
}

TEST(ToolInterfaces, UnknownOnesAreAnsweredNull) {
    CModuleStage stage;
    for (const Identity& row : Identities()) {
        void* pInterface = &stage;
        int nExtra = 7;
        EXPECT_EQ(stage.Tool(row.pszTool)->QueryInterface(IObjectPage::Id, &pInterface, &nExtra), 0);
        EXPECT_EQ(pInterface, nullptr) << row.pszTool;
        EXPECT_EQ(nExtra, 0) << row.pszTool;
    }
}

TEST(ToolInterfaces, OutputsMayBeNull) {
    CModuleStage stage;
    for (const Identity& row : Identities()) {
        CListenerObject* pTool = stage.Tool(row.pszTool);
        EXPECT_EQ(pTool->IsKindOf(CategoryId, kind::Tool, nullptr, nullptr), 1) << row.pszTool;
        EXPECT_EQ(pTool->IsKindOf(CategoryId, 99, nullptr, nullptr), 0) << row.pszTool;
        EXPECT_EQ(pTool->QueryInterface(IToolInput::Id, nullptr, nullptr), 0) << row.pszTool;
    }
}

TEST(ToolState, CurrentToolStateIsAnsweredZeroByEveryToolTheHostReceives) {
    CModuleStage stage;
    for (const Identity& row : Identities()) {
        stage.UseTool(row.pszTool);
        EXPECT_EQ(stage.CurrentTool()->QueryState(CategoryId, kind::CurrentTool), 0) << row.pszTool;
        EXPECT_EQ(stage.CurrentTool()->QueryState(EditCategoryId, kind::CurrentTool), 0) << row.pszTool;
    }
}

TEST(ToolHooks, GroupOverrideAndToolRectAreEmptyInTheSelectTool) {
    CModuleStage stage;
    CRect rc(1, 2, 3, 4);

    EXPECT_EQ(stage.Main().GetGroupIdOverride(), nullptr);
    EXPECT_EQ(stage.Main().GetToolRect(&rc), 0);
    EXPECT_EQ(rc, CRect(0, 0, 0, 0));
    EXPECT_EQ(stage.Main().GetToolRect(nullptr), 0);
    EXPECT_EQ(stage.Main().Reserved18(nullptr, nullptr, nullptr), 1);
}

TEST(ToolHooks, HostResetTellsTheShownPageZero) {
    CModuleStage stage;

    EXPECT_EQ(stage.Main().ResetHost(), 1);
    EXPECT_EQ(stage.Told(), Lines{"reset.1 0"});

    stage.Desk().ShowPanel(PanelChoice::Missing);
    EXPECT_EQ(stage.Main().ResetHost(), 1);
    EXPECT_EQ(stage.Told(), Lines{});
}

TEST(ToolLink, ExcludedNodeIsKeptByEachToolOnItsOwn) {
    CModuleStage stage;
    CImgNode* pNode = stage.Square("A", 10, 10);
    IToolLink* pLink = CDesk::Query<IToolLink>(stage.Tool("CSelectTool"));

    EXPECT_EQ(pLink->SetExcludedNode(pNode), 1);

    EXPECT_EQ(pLink->GetExcludedNode(), pNode);
    EXPECT_EQ(CDesk::Query<IToolLink>(stage.Tool("CTextTool"))->GetExcludedNode(), nullptr);
    EXPECT_EQ(pLink->SetExcludedNode(nullptr), 1);
    EXPECT_EQ(pLink->GetExcludedNode(), nullptr);
}

} // namespace
