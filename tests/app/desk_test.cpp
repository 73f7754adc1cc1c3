#include "desk/desk.h"

#include <gtest/gtest.h>

#include "bus/masks.h"
#include "desk/guid_text.h"
#include "desk/tool_catalog.h"
#include "scenario_lines.h"
#include "stage.h"

namespace {

/// The first object of a kind that the tool finds on the bus, or null.
CListenerObject* Found(CListenerObject* pTool, int nKind) {
    pTool->m_fnSetCommunicateObjectType(CategoryId, nKind);
    return pTool->m_fnFirst();
}

int AnswersKind(CListenerObject* pObject, int nKind) {
    int nResult = 0;
    return pObject->IsKindOf(CategoryId, nKind, &nResult, nullptr);
}

class DeskWithTools : public testing::Test {
  protected:
    DeskWithTools() {
        stage.LoadModule();
        stage.UseTool("CSelectTool");
    }
    CListenerObject* Select() { return stage.Tool("CSelectTool"); }

    CStage stage;
};

TEST(GuidText, ReadsWhatItWrites) {
    const GUID guid = {0x0E1C6DC7, 0x1DDE, 0x4881, {0x8A, 0xEE, 0xE4, 0x95, 0xDB, 0x63, 0x53, 0x54}};
    GUID read{};

    EXPECT_EQ(GuidText(guid), "{0E1C6DC7-1DDE-4881-8AEE-E495DB635354}");
    EXPECT_TRUE(ParseGuid("{0e1c6dc7-1dde-4881-8AEE-E495DB635354}", read));
    EXPECT_TRUE(read == guid);
    EXPECT_FALSE(ParseGuid("{0E1C6DC7-1DDE-4881-8AEE-E495DB63535}", read));
    EXPECT_FALSE(ParseGuid("0E1C6DC7-1DDE-4881-8AEE-E495DB635354", read));
}

TEST_F(DeskWithTools, EveryToolFindsEveryObjectAndIsFoundByIt) {
    for (const int nKind : {4, 1, 7, 12, 6, 27}) {
        CListenerObject* pObject = Found(Select(), nKind);
        ASSERT_NE(pObject, nullptr) << nKind;
        EXPECT_NE(Found(pObject, kind::Tool), nullptr) << nKind;
    }
}

TEST_F(DeskWithTools, ShownPageFollowsTheTool) {
    EXPECT_EQ(AnswersKind(Found(Select(), 1), 7), 1) << "a tool without a page shows the picture page";

    stage.UseTool("CTextShadowTool");
    EXPECT_EQ(AnswersKind(Found(Select(), 1), 12), 1);
    EXPECT_EQ(AnswersKind(Found(Select(), 7), 1), 0);

    stage.UseTool("CAdaptiveComboTool");
    EXPECT_EQ(stage.Desk().ShownPanel(), 12) << "it takes the page that is showing";
}

TEST_F(DeskWithTools, OnePageCanStandForBothSorts) {
    stage.Desk().ShowPanel(PanelChoice::ObjectAndText);

    CListenerObject* pShown = Found(Select(), 1);
    EXPECT_EQ(AnswersKind(pShown, 7) + AnswersKind(pShown, 12), 2);
    EXPECT_NE(CDesk::Query<IObjectPage>(pShown), nullptr);
    EXPECT_NE(CDesk::Query<ITextAttributePanel>(pShown), nullptr);

    stage.Desk().ShowPanel(PanelChoice::Object);
    EXPECT_EQ(CDesk::Query<ITextAttributePanel>(pShown), nullptr);
    EXPECT_NE(CDesk::Query<ITextAttributePanel>(Found(Select(), 12)), nullptr);
}

TEST_F(DeskWithTools, MissingPanelLeavesThePagesOnTheBus) {
    stage.Desk().ShowPanel(PanelChoice::Missing);

    EXPECT_EQ(Found(Select(), 1), nullptr);
    EXPECT_NE(Found(Select(), 7), nullptr);
}

TEST_F(DeskWithTools, MaskHidesAKindOrAnInterface) {
    bus::MaskKind(CategoryId, 27);
    EXPECT_EQ(Found(Select(), 27), nullptr);
    bus::UnmaskKind(CategoryId, 27);

    CListenerObject* pPage = Found(Select(), 7);
    ASSERT_NE(pPage, nullptr);
    bus::MaskInterface(CategoryId, 7, IObjectPage::Id);
    EXPECT_EQ(CDesk::Query<IObjectPage>(pPage), nullptr);
    EXPECT_NE(CDesk::Query<IShadowPanel>(pPage), nullptr);
}

TEST_F(DeskWithTools, ActiveListenerAnswersAsTheCurrentToolUntilTheNextSwitch) {
    auto* pService = CDesk::Query<ICurrentToolService>(Found(Select(), 4));
    auto* pActive = CDesk::Query<IActiveListenerService>(Found(Select(), 4));
    CListenerObject* pOther = stage.Tool("CTextTool");

    pActive->SetActiveListener(pOther);
    EXPECT_EQ(pService->GetCurrentTool(), pOther);
    EXPECT_EQ(stage.CurrentTool(), Select());

    stage.UseTool("CObjectPageTool");
    EXPECT_EQ(pService->GetCurrentTool(), stage.Tool("CObjectPageTool"));
}

TEST_F(DeskWithTools, PropertyObjectIsThePageOfTheToolsClass) {
    auto* pService = CDesk::Query<ICurrentToolService>(Found(Select(), 4));
    const GUID textTool = FindToolRow(std::string("CTextTool"))->identity.classId;
    const GUID selectTool = FindToolRow(std::string("CSelectTool"))->identity.classId;

    EXPECT_EQ(AnswersKind(pService->GetPropertyObject(textTool), 12), 1);
    EXPECT_EQ(pService->GetPropertyObject(selectTool), nullptr);
    EXPECT_EQ(pService->GetPropertyObject(GUID{}), nullptr);

    stage.Desk().SetPropertyKind(textTool, 6);
    EXPECT_EQ(AnswersKind(pService->GetPropertyObject(textTool), 6), 1);
    stage.Desk().SetPropertyKind(textTool, 0);
    EXPECT_EQ(pService->GetPropertyObject(textTool), nullptr);
}

TEST_F(DeskWithTools, HandoverMakesTheNamedToolCurrent) {
    stage.Desk().SetHandover(7, 4, "CObjectPageTool");

    CDesk::Query<IObjectPage>(Found(Select(), 7))->SelectPage(3);
    EXPECT_EQ(stage.CurrentTool(), Select());
    CDesk::Query<IObjectPage>(Found(Select(), 7))->SelectPage(4);

    EXPECT_EQ(stage.CurrentTool(), stage.Tool("CObjectPageTool"));
}

TEST_F(DeskWithTools, ExcludedNodeReachesEveryTool) {
    stage.AddPicture("A", RGB(1, 2, 3), 0, 0, 10, 10);
    stage.Exclude(stage.Node("A"));

    for (CListenerObject* pTool : stage.Desk().Tools()) {
        EXPECT_EQ(CDesk::Query<IToolLink>(pTool)->GetExcludedNode(), stage.Node("A"));
    }
}

TEST_F(DeskWithTools, TextPageRoundsSizesDownToTheSnap) {
    auto* pPanel = CDesk::Query<ITextAttributePanel>(Found(Select(), 12));
    int nSize = 14;
    pPanel->AdjustSize(&nSize);
    EXPECT_EQ(nSize, 14) << "there is no snap at the start";

    stage.Desk().Panels().nSizeSnap = 4;
    pPanel->AdjustSize(&nSize);
    EXPECT_EQ(nSize, 12);
    nSize = 3;
    pPanel->AdjustSize(&nSize);
    EXPECT_EQ(nSize, 4);
}

TEST_F(DeskWithTools, MixedAttributesLeaveTheTextPagesOwn) {
    auto* pPanel = CDesk::Query<ITextAttributePanel>(Found(Select(), 12));
    const CString strMixed("");
    pPanel->ShowAttributes(&strMixed, -1, 3, 5, 0x808080, 1, 0);

    CString strFont;
    int nSize = 0;
    int nAlignment = -1;
    int nStyle = 0;
    COLORREF crText = 0;
    pPanel->GetAttributes(&strFont, &nSize, &nAlignment, &nStyle, &crText);

    EXPECT_STREQ(strFont, "Arial");
    EXPECT_EQ(nSize, 12);
    EXPECT_EQ(nAlignment, 0);
    EXPECT_EQ(nStyle, 5);
    EXPECT_EQ(crText, RGB(255, 255, 255));
}

TEST_F(DeskWithTools, PageObjectsKeepValuesByPlaceAmongTopLevelObjects) {
    stage.AddPicture("A", RGB(1, 2, 3), 0, 0, 10, 10);
    stage.AddPlaceholder("P", 20, 0, 10, 10);
    CPageObjects& objects = stage.Desk().PageObjects();
    EXPECT_EQ(objects.GetValue(stage.Node("A")), 0);

    objects.AppendValue(11);
    objects.AppendValue(22);

    EXPECT_EQ(objects.GetValue(stage.Node("P")), 11);
    EXPECT_EQ(objects.GetValue(stage.Node("A")), 22);
    objects.ClearValues();
    EXPECT_EQ(objects.GetValue(stage.Node("A")), 0);
}

TEST_F(DeskWithTools, ValuesStayWithTheirObjectsWhenOthersArePasted) {
    stage.AddPicture("A", RGB(1, 2, 3), 0, 0, 10, 10);
    stage.AddPicture("B", RGB(1, 2, 3), 20, 0, 10, 10);
    stage.AddPicture("E", RGB(1, 2, 3), 40, 0, 10, 10);
    stage.Desk().Panels().bRealClipboard = true;
    CPageObjects& objects = stage.Desk().PageObjects();
    const auto values = [&] {
        std::vector<std::int32_t> all;
        for (const std::string& name : stage.PageNames()) {
            all.push_back(objects.GetValue(stage.Node(name)));
        }
        return all;
    };
    objects.AppendValue(33);
    objects.AppendValue(22);
    stage.Exclude(stage.Node("B"));
    stage.Select({"A", "E"});
    stage.Desk().Clipboard().Copy({});

    EXPECT_EQ(1, stage.Desk().Clipboard().Paste(CPoint(5, 5), 0));

    // B, the two that came, E and A; the table ends with E, so that the next value is A's.
    EXPECT_EQ((std::vector<std::int32_t>{22, 0, 0, 33, 0}), values());
    objects.AppendValue(11);
    EXPECT_EQ((std::vector<std::int32_t>{22, 0, 0, 33, 11}), values());
    stage.Undo();
    EXPECT_EQ((std::vector<std::int32_t>{33, 22, 0}), values());
}

TEST(BusCommand, RemovesAndRestores) {
    const Outcome outcome =
        RunLines("picture A #FF0000 10 10 40 40\ntool CSelectTool\ndump calls\nbus remove 51\n"
                 "op NotifyObjectsChanged\nexpect calls.length == 0\nbus restore 51\n"
                 "op NotifyObjectsChanged\nexpect calls.length == 3\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(BusCommand, AddedReceiversAreToldToo) {
    const Outcome outcome =
        RunLines("tool CSelectTool\ndump calls\nbus add 38 searches\nbus add 45\nop NotifyObjectsChanged\n"
                 "op NotifyObjectsRedrawn\nexpect calls.length == 7\nexpect calls[6].kind == 45\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(BusCommand, NamesTheObjectClipboardByItsCategory) {
    const Outcome outcome = RunLines(
        "tool CSelectTool\ndump calls\nop m_fnCopy 3 4\nexpect last == 1\nexpect calls[0].kind == edit:12\n"
        "expect calls[0].args == [[3,4]]\nbus remove edit:12\nop m_fnCopy 3 4\n"
        "expect last == 0\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(FaultCommand, CountsAskingsBeforeItTrips) {
    const Outcome outcome = RunLines("fault tool after 2\nmodule load\nexpect last.tools == 2\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(FaultCommand, ClearTakesItBack) {
    const Outcome outcome = RunLines("fault attach\nfault clear\nmodule load\nexpect last == 1\n");

    EXPECT_EQ(outcome.out, "module load -> 1 resource=loaded tools=11\n") << outcome.err;
}

TEST(FaultCommand, ModuleThatRefusesEndsARunThatNeedsIt) {
    const Outcome outcome = RunLines("fault attach\npage 100 100\n");

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.err, "t.scn:2: the module cannot be loaded\n");
}

} // namespace
