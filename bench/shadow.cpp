// Shadows, display values and the context menu: dragging a shadow, giving many objects one, setting values of
// many, and opening the menu among many.
// Usage: bench_shadow
#include "canvas.h"
#include "host/buffer.h"
#include "host/mask.h"
#include "image/node_host.h"
#include "image/picture_node.h"

namespace {

using measure::Check;
using measure::NowUs;

constexpr char Peer[] = "pradix";
constexpr int ShadowPage = 2; ///< the number that the host's page area answers while its shadow page shows
constexpr CSize ShadowOffset = {6, 5};
constexpr COLORREF ShadowColor = RGB(16, 32, 48);
constexpr int Softness = 4;
constexpr int Transparency = 40;
constexpr int HandleFromEdge = 18; ///< client pixels from a shadow's right edge to its handle's centre
constexpr CPoint Press = {page::PressX, page::PressY};
constexpr CSize MoveStep = {3, 2}; ///< client pixels
constexpr int Moves = 60;
constexpr int Rounds = 10;
constexpr CSize ItemSize = {page::ItemWidth, page::ItemHeight};

enum class Spread { No, Yes };

int Growing(int n) { return std::max(n, 100); }

/// Round pictures of 60 by 45 on a page; `n` of them lie on 720 by 480, or as thick as a hundred do.
class CShadowBench {
  public:
    CShadowBench(int n, Spread spread, const char* pszTool);

    void DragShadow(const std::string& suffix);
    void Apply();
    void Display();
    void OpenMenu(const std::string& suffix);

  private:
    CImgNode& Top() { return *m_stage.Nodes().back(); }
    IShadowSettings& Settings() { return *m_stage.ToolInterface<IShadowSettings>(); }
    void ShowWholePage() { m_stage.SetViewSize(m_stage.PageWidth(), m_stage.PageHeight()); }
    int ApplyToSelected() {
        return Settings().ApplyShadow(ShadowOffset.cx, ShadowOffset.cy, &ShadowColor, Softness, Transparency);
    }
    void SelectTop();
    double Step(CPoint point);
    template <class Place>
    double Drag(const std::string& name, CPoint ptFrom, Place place);
    void SoftMaskOfEach();
    void ComposeEach();

    int m_n;
    CPaintCounter m_paints;
    CCanvasStage m_stage;
};

CShadowBench::CShadowBench(int n, Spread spread, const char* pszTool)
    : m_n(n), m_stage(spread == Spread::Yes ? CCanvasStage::GrowthFor(Growing(n)) : 1.0) {
    Check(m_stage.UseTool(pszTool), pszTool);
    for (int i = 0; i < n; i++) {
        const page::Place at = page::PlaceOf(i, n, m_stage.PageWidth(), m_stage.PageHeight());
        Picture picture;
        Check(SolidPicture(page::RgbAt(i % page::Pictures, 7, 9), ItemSize.cx, ItemSize.cy, picture) &&
                  AddEllipseMask(picture),
              "making a picture");
        m_stage.Add(
            MakePictureNode(m_stage.Document(), std::move(picture), CRect(CPoint(at.x, at.y), ItemSize)));
    }
    m_stage.RecomposeAll();
}

void CShadowBench::SelectTop() {
    m_stage.Ops().ClearSelection();
    CNodeRefList nodes;
    nodes.AddTail(&Top());
    m_stage.Ops().AddToSelection(nodes);
    m_stage.RecomposeAll();
}

/// One mouse move and all the painting that it causes; answers its time.
double CShadowBench::Step(CPoint point) {
    const long nPaints = m_paints.Paints();
    const double dStart = NowUs();
    m_stage.Move(point);
    m_stage.Paint();
    const double dTime = NowUs() - dStart;
    Check(m_paints.Paints() == nPaints + 1, "one repaint per move");
    return dTime;
}

// `place` tells where the dragged node stands.
template <class Place>
double CShadowBench::Drag(const std::string& name, CPoint ptFrom, Place place) {
    std::vector<double> us;
    long nPixels = 0;
    for (int nRound = -1; nRound < Rounds; nRound++) {
        const CPoint from = place();
        m_stage.Press(ptFrom);
        m_stage.Paint();
        const long nBefore = m_paints.Pixels();
        CSize way;
        for (int nMove = 1; nMove <= Moves; nMove++) {
            way = CSize(MoveStep.cx * nMove, MoveStep.cy * nMove);
            const double dTime = Step(ptFrom + way);
            Check(nMove == 1 || place() == from + way, "the dragged node's place during the drag");
            if (nRound >= 0) {
                us.push_back(dTime);
            }
        }
        nPixels = (m_paints.Pixels() - nBefore) / Moves;
        m_stage.Release(ptFrom + way);
        m_stage.Paint();
        Check(GetUndoMgr()->GetUndoEvent(0) && !GetUndoMgr()->GetUndoEvent(1), "one step of one drag");
        m_stage.Undo();
        m_stage.Paint();
        m_stage.ForgetSteps();
        Check(place() == from, "the undone place");
    }
    return measure::Figure(Peer, name, m_n, us, ",\"pixels_per_move\":" + std::to_string(nPixels));
}

// The same object's move, its shadow with it, stands beside it.
void CShadowBench::DragShadow(const std::string& suffix) {
    m_stage.Desk().Panels().nPageShown = ShadowPage;
    m_stage.SelectEvery();
    Check(ApplyToSelected() == 1, "the shadows");
    SelectTop();
    m_stage.ForgetSteps();
    const auto shadowPlace = [this] {
        return CPoint(Top().m_pShadowNode->m_tx.nX, Top().m_pShadowNode->m_tx.nY);
    };
    const auto objectPlace = [this] { return CPoint(Top().m_tx.nX, Top().m_tx.nY); };
    const CPoint ptHandle = shadowPlace() + CSize(page::ItemWidth + HandleFromEdge, page::ItemHeight / 2);
    const double dMove = Drag("move_shadowed" + suffix, Press, objectPlace);
    const double dDrag = Drag("drag_shadow" + suffix, ptHandle, shadowPlace);
    std::fprintf(stderr, "drag of a shadow by move of its object%s: %.2f\n", suffix.c_str(), dDrag / dMove);
}

void CShadowBench::SoftMaskOfEach() {
    for (const CImgNode* pNode : m_stage.Nodes()) {
        CTxParam block;
        block.hMask = pNode->m_tx.hMask;
        Check(sel32SoftEdgeMakeMask(&block, 0, Softness, 0, 0, 0, 0) == 1, "softening");
        buf32Free(block.hMask);
    }
}

// Composes once, and paints, what a change of every object and shadow leaves out of date.
void CShadowBench::ComposeEach() {
    CRect rcAll(0, 0, 0, 0);
    for (const CImgNode* pNode : m_stage.Nodes()) {
        CRect rc = CNodeBookkeeping::NodeRect(*pNode);
        rc.UnionRect(&rc, CNodeBookkeeping::NodeRect(*pNode->m_pShadowNode));
        CNodeBookkeeping::Changed(m_stage.Document()).Add(rc);
        rcAll.UnionRect(&rcAll, &rc);
    }
    m_stage.View().m_fnFlushCacheRect(rcAll);
    m_stage.Paint();
}

void CShadowBench::Apply() {
    const int nSamples = m_n >= 1000 ? 15 : 50;
    ShowWholePage();
    m_stage.SelectEvery();
    const auto reset = [this] {
        Check(Settings().RemoveShadows() == 1, "taking the shadows off");
        m_stage.ForgetSteps();
        m_stage.Paint();
    };
    const auto applied = measure::TimedAfter(nSamples, reset, [this] {
        Check(ApplyToSelected() == 1, "applying");
        m_stage.Paint();
    });
    Check(m_stage.Document().GetObjList()->GetCount() == 2 * m_n && GetUndoMgr()->GetUndoEvent(0),
          "a shadow for each");
    const double dApplied = measure::Figure(Peer, "apply_shadow", m_n, applied);
    const double dMasks =
        measure::Figure(Peer, "soft_masks", m_n, measure::Timed(nSamples, [this] { SoftMaskOfEach(); }));
    const double dComposed =
        measure::Figure(Peer, "compose_shadowed", m_n, measure::Timed(nSamples, [this] { ComposeEach(); }));
    std::fprintf(stderr, "%d shadows by masks and composition: %.2f\n", m_n, dApplied / (dMasks + dComposed));
}

// Both settings differ from what the objects have, so that every command changes all of them.
void CShadowBench::Display() {
    ShowWholePage();
    m_stage.SelectEvery();
    ISelectionDisplay* const pDisplay = m_stage.ToolInterface<ISelectionDisplay>();
    Check(pDisplay != nullptr, "a tool that sets display values");
    int nBrightness = 20;
    const auto us = measure::TimedAfter(
        31, [this] { m_stage.ForgetSteps(); },
        [&] {
            nBrightness = -nBrightness;
            Check(pDisplay->SetSelectionDisplay(nBrightness, 10, 30) == 1, "the values");
            m_stage.Paint();
        });
    Check(Top().m_nBrightness == nBrightness && GetUndoMgr()->GetUndoEvent(0), "the values of every object");
    measure::Figure(Peer, "set_display", m_n, us);
}

// Every second object is selected, the one under the point among them. The person chooses nothing.
void CShadowBench::OpenMenu(const std::string& suffix) {
    m_stage.Desk().Panels().bRealClipboard = true;
    CNodeRefList nodes;
    for (std::size_t i = m_stage.Nodes().size() % 2 == 0 ? 1 : 0; i < m_stage.Nodes().size(); i += 2) {
        nodes.AddTail(m_stage.Nodes()[i]);
    }
    m_stage.Ops().AddToSelection(nodes);
    m_stage.RecomposeAll();
    const auto us = measure::Timed(101, [this] {
        m_stage.RightPress(Press);
        m_stage.Paint();
    });
    Check(m_stage.LastMenu().has_value() && m_stage.SelectedCount() == static_cast<int>(nodes.GetCount()),
          "the menu on the selection");
    measure::Figure(Peer, "open_menu" + suffix, m_n, us,
                    ",\"selected\":" + std::to_string(m_stage.SelectedCount()));
}

} // namespace

int main() {
    // One stage lives at a time.
    CShadowBench(1000, Spread::No, "CImageShadowTool").DragShadow("");
    CShadowBench(1000, Spread::Yes, "CImageShadowTool").DragShadow("_spread");
    for (const int n : {1, 100, 1000}) {
        CShadowBench(n, Spread::Yes, "CImageShadowTool").Apply();
    }
    CShadowBench(1000, Spread::Yes, "CDisplayPageTool").Display();
    CShadowBench(10000, Spread::No, "CSelectTool").OpenMenu("");
    CShadowBench(10000, Spread::Yes, "CSelectTool").OpenMenu("_spread");
    return 0;
}
