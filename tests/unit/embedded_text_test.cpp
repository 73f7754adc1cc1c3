// The text tool inside a composite tool: what it leaves to its owner, and when it is linked on the bus.
#include <array>
#include <functional>

#include <gtest/gtest.h>

#include "host/text_node.h"
#include "text/tools/embedded_text_tool.h"
#include "tool_desk.h"

namespace {

constexpr CPoint Ground(200, 200);

/// Notes which of its main operations were asked for.
class COwnerTool : public CSelectTool {
  public:
    int GetNodeMarkRect(CImgNode*, RECT*) override { return Note(11); }
    int GetNodeOutlineMarkRect(CImgNode*, RECT*) override { return Note(12); }
    int DrawSelectionMark(CDC*, CPoint*, CImgNode*) override { return Note(15); }
    int DrawShadowMark(CDC*, CPoint*, CImgNode*) override { return Note(16); }
    int InvalidateSelectionMark(CImgNode*) override { return Note(19); }
    int HitTestSelected(CPoint*, CImgNode*) override { return Note(21); }
    int ShowSelectionMarks(int nShow) override {
        shown = nShow;
        return CSelectTool::ShowSelectionMarks(nShow);
    }
    int Note(int nOperation) {
        asked.push_back(nOperation);
        return 1000 + nOperation;
    }

    std::vector<int> asked;
    int shown = -1;
};

/// Counts what it is linked to.
int TargetCount(CListenerObject& listener) {
    int nCount = 0;
    listener.m_fnSetCommunicateObjectType(CategoryId, kind::Any);
    for (CListenerObject* pTarget = listener.m_fnFirst(); pTarget; pTarget = listener.m_fnNext()) {
        ++nCount;
    }
    return nCount;
}

/// The current tool owns the embedded one; A is a picture at [10,10,50,50], B one at [100,10,140,50].
class EmbeddedText : public testing::Test {
  protected:
    EmbeddedText() {
        m_desk.Desk().AddTool(&m_owner);
        m_desk.Desk().SwitchTool(&m_owner, 0);
        m_pA = m_desk.Picture(10, 10, 40, 40);
        m_pB = m_desk.Picture(100, 10, 40, 40);
        m_text.SetOwner(&m_owner);
    }
    void Select(const std::vector<CImgNode*>& nodes) {
        m_desk.Selection().RemoveAll();
        for (CImgNode* pNode : nodes) {
            m_desk.Selection().AddTail(pNode);
        }
    }
    CListenerObject* ActiveListener() { return m_desk.Desk().ActiveListener(); }

    CToolDesk m_desk;
    COwnerTool& m_owner = *new COwnerTool; ///< the desk owns it
    CEmbeddedTextTool m_text;
    CImgNode* m_pA = nullptr;
    CImgNode* m_pB = nullptr;
};

TEST_F(EmbeddedText, WithoutAnOwnerItDeclinesAllInputThoughItIsLinked) {
    m_text.Activate();
    m_text.SetOwner(nullptr);

    EXPECT_EQ(m_text.OnLButtonDblClk(0, Ground), 0);
    EXPECT_EQ(m_text.OnLButtonDown(0, Ground), 0);
    EXPECT_EQ(m_text.OnLButtonUp(0, Ground), 0);
    EXPECT_FALSE(m_text.IsEditing());
    m_text.Deactivate();
    EXPECT_FALSE(m_text.IsActive());
}

TEST_F(EmbeddedText, MarksAreTheOwnersWithTheSameNumbers) {
    RECT rect{};
    CPoint point;
    const std::vector<std::pair<int, std::function<int(CToolCore&)>>> rows = {
        {11, [&](CToolCore& tool) { return tool.GetNodeMarkRect(m_pA, &rect); }},
        {12, [&](CToolCore& tool) { return tool.GetNodeOutlineMarkRect(m_pA, &rect); }},
        {15, [&](CToolCore& tool) { return tool.DrawSelectionMark(nullptr, nullptr, m_pA); }},
        {16, [&](CToolCore& tool) { return tool.DrawShadowMark(nullptr, nullptr, m_pA); }},
        {19, [&](CToolCore& tool) { return tool.InvalidateSelectionMark(m_pA); }},
        {21, [&](CToolCore& tool) { return tool.HitTestSelected(&point, m_pA); }}};
    for (const auto& [nOperation, ask] : rows) {
        m_owner.asked.clear();
        EXPECT_EQ(ask(m_text), 1000 + nOperation);
        EXPECT_EQ(m_owner.asked, std::vector<int>{nOperation});
    }
}

TEST_F(EmbeddedText, PressIsItsOwnOnEmptyGroundAlone) {
    struct PressRow {
        std::vector<CImgNode*> selection;
        CPoint point;
        int nAnswer;
        INT_PTR nSelected;
    };
    m_text.SetOwner(&m_desk.Tool());
    const std::vector<PressRow> rows = {{{}, Ground, 1, 0}, {{m_pA}, Ground, 0, 1}, {{}, {30, 30}, 0, 1}};
    for (const PressRow& row : rows) {
        Select(row.selection);
        EXPECT_EQ(m_text.OnLButtonDown(0, row.point), row.nAnswer) << row.point.x;
        EXPECT_EQ(m_desk.Selection().GetCount(), row.nSelected) << row.point.x;
        ::ReleaseCapture();
    }
}

TEST_F(EmbeddedText, DoubleClickIsItsOwnWithFewerThanTwoSelected) {
    Select({m_pA, m_pB});
    EXPECT_EQ(m_text.OnLButtonDblClk(0, Ground), 0);
    EXPECT_FALSE(m_text.IsEditing());

    Select({m_pA});
    EXPECT_EQ(m_text.OnLButtonDblClk(0, Ground), 1);
    EXPECT_TRUE(m_text.IsEditing());
    EXPECT_FALSE(m_text.IsActive()) << "linked only while it works";
    EXPECT_EQ(m_text.OnLButtonDown(0, Ground), 1) << "the press ends the editing though A is selected";
    EXPECT_FALSE(m_text.IsEditing());
}

TEST_F(EmbeddedText, CommitShowsTheOwnersMarks) {
    m_text.OnLButtonDblClk(0, Ground);
    for (const char ch : {'a', 'b'}) {
        ::SendMessageA(::GetFocus(), WM_CHAR, static_cast<WPARAM>(ch), 0);
    }
    m_owner.shown = -1;

    m_text.OnToolActivate(nullptr, 0, 0);

    EXPECT_EQ(m_desk.Objects().GetCount(), 3);
    EXPECT_EQ(m_desk.Objects().GetHead()->m_nType, node_type::Text);
    EXPECT_EQ(m_owner.shown, 1);
    EXPECT_FALSE(m_text.IsActive());
}

TEST_F(EmbeddedText, ActivationIsCounted) {
    const int nOwners = TargetCount(m_owner);
    ASSERT_GT(nOwners, 0);
    CListenerObject& host = *m_owner.m_fnFirst();
    const int nOfHost = TargetCount(host);
    EXPECT_EQ(TargetCount(m_text), 0);

    m_text.Activate();
    m_text.Activate();
    EXPECT_EQ(TargetCount(m_text), nOwners) << "linked to all that the owner is linked to";
    EXPECT_EQ(TargetCount(host), nOfHost + 1) << "and they to it";
    EXPECT_EQ(ActiveListener(), &m_text);

    m_text.Deactivate();
    EXPECT_TRUE(m_text.IsActive());
    EXPECT_EQ(TargetCount(m_text), nOwners);
    EXPECT_EQ(ActiveListener(), &m_text);

    m_text.Deactivate();
    EXPECT_EQ(TargetCount(m_text), 0);
    EXPECT_EQ(TargetCount(host), nOfHost);
    EXPECT_EQ(ActiveListener(), &m_owner);
    EXPECT_EQ(TargetCount(m_owner), nOwners);
}

TEST_F(EmbeddedText, WorkSharesTheOwnersExcludedNodeAndEndsUnlinked) {
    const CPoint point(0, 0);
    const std::vector<std::function<void()>> works = {[&] { m_text.OnObjectHook(m_pA); },
                                                      [&] { m_text.ResetHost(); },
                                                      [&] {
                                                          m_text.OnLButtonDown(0, {30, 30});
                                                      },
                                                      [&] {
                                                          m_text.OnLButtonUp(0, {30, 30});
                                                      },
                                                      [&] { m_text.SetFontName("Arial"); },
                                                      [&] { m_text.SetFontSize(12); },
                                                      [&] { m_text.SetAlignment(0); },
                                                      [&] { m_text.SetStyle(0); },
                                                      [&] { m_text.SetColor(0); },
                                                      [&] { m_text.OnInputEnded(nullptr); },
                                                      [&] { m_text.EditTextNode(m_pA, &point); }};
    for (std::size_t n = 0; n < works.size(); ++n) {
        m_owner.SetExcludedNode(n % 2 ? m_pA : m_pB);
        works[n]();
        EXPECT_EQ(m_text.GetExcludedNode(), n % 2 ? m_pA : m_pB) << n;
        EXPECT_FALSE(m_text.IsActive()) << n;
        ::ReleaseCapture();
    }
    m_text.SetOwner(nullptr);
    m_text.ShareExcludedNode();
    EXPECT_EQ(m_text.GetExcludedNode(), nullptr);
}

TEST_F(EmbeddedText, HostResetReadsThePanelsTransparency) {
    EXPECT_EQ(m_text.ShownTransparency(), -1);
    m_desk.Desk().Panels().nTransparency = 35;

    m_text.ResetHost();

    EXPECT_EQ(m_text.ShownTransparency(), 35);
}

} // namespace
