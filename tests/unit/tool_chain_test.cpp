// The classes below the tools that the host receives, and the geometry of handles.
#include <array>

#include <gtest/gtest.h>

#include "bus/bus_object.h"
#include "desk/guid_text.h"
#include "host/document_service.h"
#include "ops/handles.h"
#include "tools/basic_object_tool.h"
#include "tools/display_tool.h"
#include "tools/frame_tool.h"
#include "tools/object_tool.h"
#include "tools/shadow_tool.h"

namespace {

constexpr char CommonGroup[] = "{47AB3BB3-C8F0-4C35-97A7-BF723939D7A5}";

template <class TTool>
void ExpectIdentity(const char* pszClass, std::initializer_list<int> kinds) {
    TTool tool;
    EXPECT_EQ(GuidText(tool.GetToolClassId()), pszClass);
    EXPECT_EQ(GuidText(tool.GetToolGroupId()), CommonGroup) << pszClass;
    for (int nKind = 0; nKind < 60; ++nKind) {
        const bool bExpected = std::find(kinds.begin(), kinds.end(), nKind) != kinds.end();
        EXPECT_EQ(tool.IsKindOf(CategoryId, nKind, nullptr, nullptr) == 1, bExpected)
            << pszClass << ' ' << nKind;
        EXPECT_EQ(tool.IsKindOf(EditCategoryId, nKind, nullptr, nullptr), 0) << pszClass << ' ' << nKind;
    }
}

TEST(ToolChain, EachClassHasItsOwnIdentity) {
    ExpectIdentity<CToolCore>("{D5D07EAE-2FDB-49AB-B166-EA734CF69787}", {0, 3});
    ExpectIdentity<CToolBase>("{1FA51ACC-3544-49FC-8F3A-9294536EF2B3}", {0, 3});
    ExpectIdentity<CObjectTool>("{C997E311-FF6C-4F74-B769-B10E61E6CBF7}", {0, 3});
    ExpectIdentity<CBasicObjectTool>("{68A64C3C-D378-452C-8380-DA5AC1963C88}", {0, 3, 14});
    ExpectIdentity<CDisplayTool>("{F370D8BD-1023-460C-80CD-6FD3E20733F8}", {0, 3, 15});
    ExpectIdentity<CFrameToolBase>("{5A1851C8-9326-45E4-A387-9180A2240316}", {0, 3, 16});
    ExpectIdentity<CShadowTool>("{0B7B429A-167C-45C8-A7A0-1D38E8FEF416}", {0, 3, 17});
}

TEST(ToolChain, IntermediateClassesPairWithPagesOfTheirOwn) {
    EXPECT_EQ(CBasicObjectTool().GetPanelKind(), 8);
    EXPECT_EQ(CDisplayTool().GetPanelKind(), 9);
    EXPECT_EQ(CFrameToolBase().GetPanelKind(), 10);
    EXPECT_EQ(CShadowTool().GetPanelKind(), 11);
}

class CCurrentTool : public CBusObject, public ICurrentToolService {
  public:
    CCurrentTool() {
        AddKind(CategoryId, kind::Document);
        AddInterface<ICurrentToolService>(this);
    }
    int Reserved1() override { return 0; }
    CListenerObject* GetCurrentTool() override { return pTool; }
    CListenerObject* GetPropertyObject(const GUID&) override { return nullptr; }
    CListenerObject* pTool = nullptr;
};

TEST(ToolChain, ListenerAloneKnowsTheStateOfBeingCurrent) {
    CCurrentTool service;
    CObjectTool tool;
    EXPECT_EQ(tool.CToolListener::QueryState(CategoryId, 37), 0) << "no service";
    tool.m_fnAddTargetObject(&service);
    EXPECT_EQ(tool.CToolListener::QueryState(CategoryId, 37), 0) << "another tool";

    service.pTool = &tool;

    EXPECT_EQ(tool.CToolListener::QueryState(CategoryId, 37), 1);
    EXPECT_EQ(tool.CToolListener::QueryState(CategoryId, 36), 0);
    EXPECT_EQ(tool.CToolListener::QueryState(EditCategoryId, 37), 0);
    EXPECT_EQ(tool.QueryState(CategoryId, 37), 0) << "the core answers no";
}

TEST(ToolChain, ListenerRefusesTheNodeServices) {
    CObjectTool tool;
    std::int32_t nError = 7;
    std::int32_t nAnswer = 7;
    CPoint point;

    EXPECT_EQ(tool.CToolListener::DuplicateNode(nullptr, nullptr, 0, &nError), 0);
    EXPECT_EQ(nError, 3);
    EXPECT_EQ(tool.CToolListener::IsPointOnSelection(&point, &nAnswer, &nError), 0);
    EXPECT_EQ(nAnswer, 0);
    nError = 7;
    EXPECT_EQ(tool.CToolListener::CreateNodeShadow(nullptr, 0, 0, nullptr, 0, 0, &nError), 0);
    EXPECT_EQ(nError, 3);
}

// Squares of a node at [10,20,51,61]: its middles are 30.5 and 40.5.
TEST(HandleSquares, AreEightByEightAroundTheirCentresTruncated) {
    const std::array<CRect, 8> Expected = {{
        {6, 16, 14, 24},  // 0 top-left
        {6, 36, 14, 44},  // 1 left edge
        {6, 57, 14, 65},  // 2 bottom-left
        {26, 57, 34, 65}, // 3 bottom edge
        {26, 16, 34, 24}, // 4 top edge
        {47, 16, 55, 24}, // 5 top-right
        {47, 36, 55, 44}, // 6 right edge
        {47, 57, 55, 65}, // 7 bottom-right
    }};
    const Corners corners = CornersOf(CRect(10, 20, 51, 61));
    for (int n = 0; n < 8; ++n) {
        EXPECT_EQ(HandleSquare(corners, n), Expected[static_cast<std::size_t>(n)]) << n;
    }
}

// Between -5 and 0 the left edge -2.5 - 4 = -6.5 and the right edge 1.5 both lose their fraction.
TEST(HandleSquares, TruncateTowardZeroOnBothSidesOfIt) {
    EXPECT_EQ(HandleSquare(CornersOf(CRect(-5, 0, 0, 10)), 4), CRect(-6, -4, 1, 4));
}

TEST(HandleSquares, AreHalfOpenAndTriedInTheirOrder) {
    const Corners corners = CornersOf(CRect(10, 20, 50, 60));

    EXPECT_EQ(HandleAt(corners, {6, 16}), 0);
    EXPECT_EQ(HandleAt(corners, {13, 23}), 0);
    EXPECT_EQ(HandleAt(corners, {14, 23}), 8);
    EXPECT_EQ(HandleAt(corners, {13, 24}), 8);
    EXPECT_EQ(HandleAt(corners, {53, 63}), 7);
    EXPECT_EQ(HandleAt(corners, {54, 63}), 8);
    EXPECT_EQ(HandleAt(CornersOf(CRect(10, 20, 10, 20)), {10, 20}), 0) << "all at one point: the first";
}

} // namespace
