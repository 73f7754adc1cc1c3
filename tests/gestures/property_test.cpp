// Laws that hold after every gesture, over random pages and random gestures. A failing page is run again
// alone with PRADIX_SEED=<its seed> PRADIX_GESTURES=1.
#include <array>
#include <cstdlib>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <sstream>

#include "gesture_help.h"
#include "image/view_host.h"

namespace {

constexpr int GesturesPerPage = 50;
constexpr int DefaultGestures = 10000;
constexpr unsigned DefaultSeed = 20260101;
constexpr std::size_t MostNodes = 24;
constexpr int ViewWidth = 160;
constexpr int ViewHeight = 120;

constexpr std::array<double, 4> Zooms = {1.0, 1.5, 0.75, 2.0};
constexpr std::array<int, 4> Arrows = {VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN};
constexpr std::array<const char*, 6> ToolClasses = {"CSelectTool",      "CObjectPageTool", "CDisplayPageTool",
                                                    "CImageShadowTool", "CTextShadowTool", "CFrameTool"};
constexpr std::array<int, 5> UndoneMenuIds = {103, 104, 128, 200,
                                              0}; ///< commands that leave no change unrecorded
constexpr int ShadowPage = 2;

constexpr std::size_t ForwardOperations = 2; ///< the first ones put the excluded node in front
constexpr std::size_t StackingOperations = 4;

unsigned NumberFrom(const char* pszVariable, unsigned nDefault) {
    const char* pszText = std::getenv(pszVariable);
    return pszText ? static_cast<unsigned>(std::strtoul(pszText, nullptr, 10)) : nDefault;
}

/// Which gestures are drawn.
enum class Draw { Everything, RecordedOnly };

/// One page and the hand that works on it.
class CRandomPage : public CGestureStage {
  public:
    CRandomPage(unsigned nSeed, Draw draw) : m_random(nSeed), m_draw(draw) {
        Page(ViewWidth, ViewHeight, Zooms[Below(Zooms.size())], RandomScroll());
        stage.SetViewSize(ViewWidth, ViewHeight);
        stage.Desk().Panels().bRealClipboard = true;
        stage.Desk().Panels().nPageShown = Below(2) == 0 ? ShadowPage : 0;
        if (Below(3) == 0) {
            stage.Desk().Panels().rangeX = PanelRange{-7, 9};
            stage.Desk().Panels().rangeY = PanelRange{-3, 12};
        }
        stage.UseTool(ToolClasses[Below(ToolClasses.size())]);
        AddObjects();
        stage.Trace();
    }

    /// One random gesture, from its first message to its last.
    void Gesture() {
        m_bOrderMayChange = false;
        m_bExcludedLeads = false;
        stage.Names().NameNewNodes();
        m_orderBefore = TopLevelOrder();
        const std::size_t nKind = Below(m_draw == Draw::Everything ? 24 : 14);
        switch (nKind) {
        case 0:
        case 1: ClickSomewhere(); break;
        case 2:
        case 3: DragSomething(Ctrl::Up); break;
        case 4:
        case 5: DragAHandle(); break;
        case 6: NudgeIt(); break;
        case 7: SelectEverything(); break;
        case 8: QueueADrag(); break;
        case 9:
        case 10: SetAShadow(); break;
        case 11: SetDisplay(); break;
        case 12: UseTheMenu(UndoneMenuIds[Below(UndoneMenuIds.size())]); break;
        case 13: CopyAndPaste(); break;
        case 14: DragSomething(Ctrl::Down); break;
        case 15: Arrange(); break;
        case 16: DeleteIt(); break;
        case 17: RightPressInMidDrag(); break;
        case 18: SwitchTool(); break;
        case 19: UndoOrRedo(); break;
        case 20: HostChange(); break;
        case 21: InterruptIt(); break;
        case 22: CommandFromTheMenu(); break;
        default: LeaveInMidDrag(); break;
        }
    }

    /// The law that is broken, or nothing.
    std::string BrokenLaw() {
        if (HasCapture() || Ops().CanRunCommand() == 0) {
            return "the gesture has not ended";
        }
        const std::string broken = BrokenGroup();
        if (!broken.empty()) {
            return broken;
        }
        std::set<const CImgNode*> seen;
        for (CImgNode* pNode : Nodes(*stage.Desk().Document()->GetActList())) {
            if (!seen.insert(pNode).second) {
                return "selected twice: " + stage.Names().Of(pNode);
            }
            if (!stage.Desk().Document()->GetObjList()->Find(pNode)) {
                return "selected off the page: " + stage.Names().Of(pNode);
            }
        }
        if (!m_bOrderMayChange && TopLevelOrder() != m_orderBefore) {
            return "the stacking order changed";
        }
        CImgNodeList& objects = *stage.Desk().Document()->GetObjList();
        CImgNode* pExcluded = stage.Desk().ExcludedNode();
        if (m_bExcludedLeads && pExcluded && objects.Find(pExcluded) && objects.GetHead() != pExcluded) {
            return "the excluded node is not in front";
        }
        return Screen() == FreshScreen() ? "" : "the screen is not the page with its marks";
    }

    /// A nudge that changed nothing leaves its capture to the next one, which may be of other objects.
    bool KeepsCapture() const { return m_bKeepsCapture; }

    std::string Log() const { return m_log.str(); }

  private:
    std::size_t Below(std::size_t nCount) { return m_random() % nCount; }
    int Between(int nLeast, int nMost) {
        return nLeast + static_cast<int>(Below(static_cast<std::size_t>(nMost - nLeast + 1)));
    }
    CPoint RandomScroll() {
        return Below(2) == 0 ? CPoint(0, 0) : CPoint(Between(-40, 40), Between(-30, 30));
    }
    CPoint RandomPoint() { return CPoint(Between(-10, ViewWidth + 10), Between(-10, ViewHeight + 10)); }

    static std::vector<CImgNode*> Nodes(const CImgNodeList& list) {
        std::vector<CImgNode*> nodes;
        for (POSITION position = list.GetHeadPosition(); position;) {
            nodes.push_back(list.GetNext(position));
        }
        return nodes;
    }
    std::vector<CImgNode*> Order() { return Nodes(*stage.Desk().Document()->GetObjList()); }

    // A shadow that is built again is another node, so the companions' own law holds for them.
    std::vector<CImgNode*> TopLevelOrder() {
        std::vector<CImgNode*> order = Order();
        std::erase_if(order, [](const CImgNode* pNode) { return pNode->m_pOwner != nullptr; });
        return order;
    }

    void AddObjects() {
        for (std::size_t n = 3 + Below(6); n > 0; --n) {
            AddObject();
        }
        Recompose();
    }

    void AddObject() {
        const std::string name = "n" + std::to_string(m_nNames++);
        const int nX = Between(-20, 150);
        const int nY = Between(-20, 110);
        const int nWidth = Between(6, 70);
        const int nHeight = Between(6, 60);
        // A frame's size may lose a unit to its factor, so only plain objects go back and forth exactly.
        const std::size_t nSort = m_draw == Draw::Everything ? Below(5) : 2 + Below(3);
        if (nSort == 0) {
            stage.AddPlaceholder(name, nX, nY, nWidth, nHeight);
        } else if (nSort == 1) {
            FramedPicture(name, nX, nY, nWidth, nHeight);
        } else {
            PictureOptions options;
            options.ellipseMask = nSort == 2;
            stage.AddPicture(name, RGB(Between(0, 255), Between(0, 255), 200), nX, nY, nWidth, nHeight,
                             options);
        }
        if (Below(3) == 0) {
            Shadow(name, Between(-9, 9), Between(-9, 9), Between(0, 5));
        }
    }

    // The knob of the only selected object's shadow, or nothing.
    std::optional<CPoint> Knob() {
        const std::vector<CImgNode*> selected = Nodes(*stage.Desk().Document()->GetActList());
        CRect rc(0, 0, 0, 0);
        if (selected.size() != 1 || !Tool().GetNodeRect(selected[0]->m_pShadowNode, &rc)) {
            return std::nullopt;
        }
        return CPoint(rc.right + 18, (rc.top + rc.bottom) / 2);
    }

    // A point on a node, or on a shadow's knob, more often than not.
    CPoint PointToPress() {
        const std::optional<CPoint> knob = Below(4) == 0 ? Knob() : std::nullopt;
        if (knob) {
            return *knob;
        }
        const std::vector<CImgNode*> nodes = Order();
        if (nodes.empty() || Below(4) == 0) {
            return RandomPoint();
        }
        CRect rc(0, 0, 0, 0);
        Tool().GetNodeRect(nodes[Below(nodes.size())], &rc);
        return CPoint(Between(rc.left, rc.right), Between(rc.top, rc.bottom));
    }

    void Note(const char* pszWhat, CPoint from = {0, 0}, CPoint to = {0, 0}) {
        m_log << pszWhat << ' ' << from.x << ' ' << from.y << ' ' << to.x << ' ' << to.y << '\n';
    }

    void ClickSomewhere() {
        const CPoint point = PointToPress();
        const Ctrl ctrl = Below(3) == 0 ? Ctrl::Down : Ctrl::Up;
        Note(ctrl == Ctrl::Down ? "click ctrl" : "click", point);
        stage.Click(point, ctrl);
    }

    void DragSomething(Ctrl ctrl) {
        const CPoint from = PointToPress();
        const CPoint to = Below(4) == 0 ? from + CSize(Between(-4, 4), Between(-4, 4)) : RandomPoint();
        Note(ctrl == Ctrl::Down ? "drag ctrl" : "drag", from, to);
        stage.Drag(from, to, ctrl, Between(1, 4));
        if (ctrl == Ctrl::Down) {
            SelectionChangedUnrecorded();
        }
    }

    void DragAHandle() {
        const std::vector<CImgNode*> selected = Nodes(*stage.Desk().Document()->GetActList());
        if (selected.size() != 1) {
            ClickSomewhere();
            return;
        }
        const CPoint from = Handle(stage.Names().Of(selected[0]), Between(0, 7));
        const CPoint to = Below(3) == 0 ? RandomPoint() : from + CSize(Between(-30, 30), Between(-30, 30));
        Note("drag handle", from, to);
        stage.Drag(from, to, Ctrl::Up, Between(1, 3));
    }

    void NudgeIt() {
        const int nKey = Arrows[Below(Arrows.size())];
        const int nTimes = Between(1, 13);
        const std::size_t nEvents = stage.UndoClasses().size();
        Note("nudge", CPoint(nKey, nTimes));
        stage.Key(nKey, nTimes);
        m_bKeepsCapture = stage.UndoClasses().size() == nEvents && !stage.Selection().empty();
    }

    void SelectEverything() {
        Note("select all");
        stage.Key('A', 1, Ctrl::Down);
    }

    void QueueADrag() {
        const CPoint from = PointToPress();
        const CPoint to = RandomPoint();
        Note("queued drag", from, to);
        stage.QueuePress(from);
        stage.QueueMove(from + CSize(9, 3));
        stage.QueueMove(to);
        stage.QueueRelease(to);
        stage.Pump();
    }

    void SetAShadow() {
        IShadowSettings* pSettings = stage.ToolInterface<IShadowSettings>();
        if (!pSettings) {
            ClickSomewhere();
            return;
        }
        const std::size_t nWhat = Below(6);
        const COLORREF crColor = RGB(Between(0, 255), 60, 60);
        const int nX = Between(-30, 30);
        const int nY = Between(-30, 30);
        const int nSoftness = Between(-1, 6);
        Note("shadow", CPoint(static_cast<int>(nWhat), nSoftness), CPoint(nX, nY));
        switch (nWhat) {
        case 0: pSettings->ApplyShadow(nX, nY, &crColor, nSoftness, Between(0, 90)); break;
        case 1: pSettings->SetOffset(Between(0, 3), nX, nY); break;
        case 2: pSettings->SetColor(&crColor); break;
        case 3: pSettings->SetSoftness(nSoftness); break;
        case 4: pSettings->SetTransparency(Between(0, 100)); break;
        default: pSettings->RemoveShadows(); break;
        }
    }

    void SetDisplay() {
        ISelectionDisplay* pDisplay = stage.ToolInterface<ISelectionDisplay>();
        if (!pDisplay) {
            DragAHandle();
            return;
        }
        const int nBrightness = Between(-1, 120);
        const int nTransparency = Between(-1, 100);
        Note("display", CPoint(nBrightness, nTransparency));
        pDisplay->SetSelectionDisplay(nBrightness, -1, nTransparency);
    }

    void UseTheMenu(int nId) {
        if (Order().size() > MostNodes / 2) {
            nId = 0;
        }
        const CPoint point = PointToPress();
        MenuChoice choice{nId, std::nullopt};
        if (nId == 0 && Below(2) == 0) {
            choice.dismissPress = RandomPoint();
        }
        Note("menu", point, choice.dismissPress.value_or(CPoint(nId, 0)));
        m_bOrderMayChange = nId != 0; // pasted objects come to the front
        stage.RightPress(point, choice);
        EmptyAFullPage();
    }

    void CommandFromTheMenu() {
        UseTheMenu(103 + static_cast<int>(Below(27)));
        SelectionChangedUnrecorded();
    }

    void CopyAndPaste() {
        if (Order().size() > MostNodes / 2) {
            ClickSomewhere();
            return;
        }
        Note("copy and paste");
        stage.Key('C', 1, Ctrl::Down);
        stage.Key('V', 1, Ctrl::Down);
        m_bOrderMayChange = true;
        EmptyAFullPage();
    }

    void Arrange() {
        const std::size_t nOperation = Below(ArrangeOperations.size());
        Note("arrange", CPoint(static_cast<int>(nOperation), 0));
        (Tool().*ArrangeOperations[nOperation])();
        m_bOrderMayChange = nOperation < StackingOperations;
        if (nOperation < ForwardOperations) {
            m_bExcludedLeads = true;
            Recompose(); // nobody repaints where the excluded node stands
        }
    }

    void DeleteIt() {
        Note("delete");
        stage.Key(VK_DELETE);
        SelectionChangedUnrecorded();
    }

    void RightPressInMidDrag() {
        const CPoint from = PointToPress();
        const CPoint to = RandomPoint();
        Note("right press in mid-drag", from, to);
        stage.Press(from);
        stage.Move(from + CSize(5, 5));
        stage.RightPress(to);
        stage.Release(to);
    }

    void SwitchTool() {
        const char* pszClass = ToolClasses[Below(ToolClasses.size())];
        Note(pszClass);
        stage.UseTool(pszClass);
    }

    void UndoOrRedo() {
        const bool bUndo = Below(3) != 0;
        Note(bUndo ? "undo" : "redo");
        bUndo ? stage.Undo() : stage.Redo();
        m_bOrderMayChange = true; // what was pasted goes and comes
    }

    // What the host does on its own is no gesture of the tools: it repaints the page itself.
    void HostChange() {
        const std::vector<CImgNode*> nodes = Order();
        CImgNode* pNode = nodes.empty() ? nullptr : nodes[Below(nodes.size())];
        const std::size_t nChange = Below(5);
        Note("host", CPoint(static_cast<int>(nChange), 0));
        m_bOrderMayChange = true;
        if (nChange == 0) {
            stage.SetScroll(RandomScroll());
        } else if (nChange == 1) {
            CViewHost::SetZoom(*stage.Desk().View(), Zooms[Below(Zooms.size())]);
        } else if (nChange == 2) {
            const bool bPlain = pNode && !pNode->m_pOwner && !pNode->m_pFrameNode && !pNode->m_pShadowNode;
            stage.Exclude(bPlain ? pNode : nullptr);
        } else if (nChange == 3 && pNode && !pNode->m_pOwner && pNode != stage.Desk().ExcludedNode()) {
            Shadow(stage.Names().Of(pNode), Between(-9, 9), Between(-9, 9), Between(-1, 5));
            Ops().RefreshNodeShadow(pNode, 1);
        } else if (nodes.size() < MostNodes) {
            CImgNode* pCopy = nullptr;
            if (pNode && !pNode->m_pOwner) {
                Link().DuplicateNode(pNode, &pCopy, 1, nullptr);
            }
        }
        Recompose();
    }

    void LeaveInMidDrag() {
        const CPoint from = PointToPress();
        Note("leave in mid-drag", from);
        stage.Press(from);
        stage.Move(from + CSize(7, 2));
        stage.Move(from + CSize(20, 9));
        stage.UseTool(ToolClasses[Below(ToolClasses.size())]);
        stage.Release(from);
        SelectionChangedUnrecorded();
    }

    // Something happens between the press, often on a handle, and the release; or while an arrow is held.
    void InterruptIt() {
        const std::vector<CImgNode*> selected = Nodes(*stage.Desk().Document()->GetActList());
        const bool bHandle = selected.size() == 1 && Below(2) == 0;
        const CPoint from = bHandle ? Handle(stage.Names().Of(selected[0]), Between(0, 7)) : PointToPress();
        const std::size_t nWhat = Below(6);
        Note("interrupted", from, CPoint(static_cast<int>(nWhat), 0));
        if (nWhat == 5) {
            stage.KeyDown(VK_RIGHT);
        } else {
            stage.Press(from);
            stage.Move(from + CSize(8, 3));
            stage.Move(from + CSize(19, 11));
        }
        switch (nWhat) {
        case 0: stage.Key(VK_DELETE); break;
        case 1: stage.Key('A', 1, Ctrl::Down); break;
        case 2: stage.Key('C', 1, Ctrl::Down); break;
        case 3: stage.Key('V', 1, Ctrl::Down); break;
        case 4: TurnThePage(); break;
        default: stage.UseTool(ToolClasses[Below(ToolClasses.size())]); break;
        }
        stage.Release(from + CSize(19, 11));
        stage.KeyUp(VK_RIGHT);
        SelectionChangedUnrecorded();
    }

    void TurnThePage() {
        Page(ViewWidth, ViewHeight, 1.0, CPoint(0, 0));
        stage.SetViewSize(ViewWidth, ViewHeight);
        AddObjects();
    }

    // Events find their nodes by the selection as it was; they are of no use after a change that none
    // records.
    void SelectionChangedUnrecorded() {
        GetUndoMgr()->Clear();
        m_bOrderMayChange = true;
        Recompose(); // the excluded node may have come to the front
        EmptyAFullPage();
    }

    void EmptyAFullPage() {
        if (Order().size() > MostNodes && m_draw == Draw::Everything) {
            stage.Select({});
            stage.Key('A', 1, Ctrl::Down);
            stage.Key(VK_DELETE);
            GetUndoMgr()->Clear();
            m_bOrderMayChange = true;
            Recompose();
        }
    }

    void Recompose() {
        CViewHost::RecomposeAll(*stage.Desk().View());
        stage.Paint();
    }

    std::string BrokenGroup() {
        const std::vector<CImgNode*> order = Order();
        for (std::size_t n = 0; n < order.size(); ++n) {
            CImgNode* pNode = order[n];
            if (pNode->m_pOwner) {
                const CImgNode& owner = *pNode->m_pOwner;
                if (owner.m_pFrameNode != pNode && owner.m_pShadowNode != pNode) {
                    return "its owner does not know " + stage.Names().Of(pNode);
                }
                if (!stage.Desk().Document()->GetObjList()->Find(&owner)) {
                    return "on the page without its object: " + stage.Names().Of(pNode);
                }
                continue;
            }
            CImgNode* pBefore = n > 0 ? order[n - 1] : nullptr;
            CImgNode* pAfter = n + 1 < order.size() ? order[n + 1] : nullptr;
            const bool bWhole = (!pNode->m_pFrameNode || pBefore == pNode->m_pFrameNode) &&
                                (!pNode->m_pShadowNode || pAfter == pNode->m_pShadowNode);
            if (!bWhole && pNode != stage.Desk().ExcludedNode()) {
                return "the group does not read frame, object, shadow: " + stage.Names().Of(pNode);
            }
        }
        return "";
    }

    std::mt19937 m_random;
    Draw m_draw;
    std::ostringstream m_log;
    int m_nNames = 0;
    bool m_bOrderMayChange = false;
    bool m_bExcludedLeads = false;
    bool m_bKeepsCapture = false;
    std::vector<CImgNode*> m_orderBefore;
};

TEST(RandomGestures, KeepTheLawsOfThePage) {
    const unsigned nFirst = NumberFrom("PRADIX_SEED", DefaultSeed);
    const int nGestures = static_cast<int>(NumberFrom("PRADIX_GESTURES", DefaultGestures));
    RecordProperty("seed", static_cast<int>(nFirst));
    unsigned nSeed = nFirst;
    for (int nDone = 0; nDone < nGestures; nDone += GesturesPerPage, ++nSeed) {
        CRandomPage page(nSeed, Draw::Everything);
        for (int n = 0; n < GesturesPerPage; ++n) {
            page.Gesture();
            const std::string broken = page.BrokenLaw();
            ASSERT_EQ(broken, "") << "seed " << nSeed << ", gesture " << n << " of\n" << page.Log();
        }
    }
}

TEST(RandomGestures, AreUndoneAndRedoneToTheSamePages) {
    const unsigned nFirst = NumberFrom("PRADIX_SEED", DefaultSeed);
    const int nGestures = static_cast<int>(NumberFrom("PRADIX_GESTURES", DefaultGestures / 4));
    unsigned nSeed = nFirst;
    for (int nDone = 0; nDone < nGestures; nDone += GesturesPerPage, ++nSeed) {
        CRandomPage page(nSeed, Draw::RecordedOnly);
        const std::string first = page.Shape();
        for (int n = 0; n < GesturesPerPage && !page.KeepsCapture(); ++n) {
            page.Gesture();
        }
        const std::string last = page.Shape();
        const std::string story = "seed " + std::to_string(nSeed) + "\n" + page.Log();

        for (int nRound = 0; nRound < 2; ++nRound) {
            while (page.stage.Undo()) {}
            ASSERT_EQ(page.Shape(), first) << story;
            ASSERT_EQ(page.Screen(), page.FreshScreen()) << story;
            while (page.stage.Redo()) {}
            ASSERT_EQ(page.Shape(), last) << story;
            ASSERT_EQ(page.Screen(), page.FreshScreen()) << story;
        }
    }
}

} // namespace
