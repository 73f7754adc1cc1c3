// Shadows by hand, display values and the context menu.
// Usage: bench_shadow
#include "buffer/buffer_host.h"
#include "canvas.h"
#include "host/mask.h"
#include "image/picture_node.h"

#include <cstring>

namespace {

using measure::Check;

constexpr char Peer[] = "pradix";
constexpr int Samples = 40;
constexpr int MoveSamples = 400;
constexpr int ShadowPage = 2;
constexpr COLORREF ShadowColor = RGB(0x20, 0x20, 0x30);
constexpr int Softness = 4;

CImgNode* MakeItem(CVorDoc& doc, int i, const CRect& rect) {
    Picture picture;
    Check(SolidPicture(page::RgbAt(i % page::Pictures, 7, 9), rect.Width(), rect.Height(), picture),
          "making a picture");
    return MakePictureNode(doc, std::move(picture), rect);
}

/// A page of n pictures of 60 by 45 as thick as a hundred lie, in the hand of a shadow tool.
class CShadowStage : public CCanvasStage {
  public:
    explicit CShadowStage(int n, const char* pszTool = "CImageShadowTool")
        : CCanvasStage(GrowthFor(std::max(n, 100))) {
        Check(UseTool(pszTool), "the tool");
        Desk().Panels().nPageShown = ShadowPage;
        for (int i = 0; i < n; i++) {
            const page::Place at = i == n - 1 ? page::Place{page::TopX, page::TopY}
                                              : page::PlaceOf(i, n, PageWidth(), PageHeight());
            Add(MakeItem(Document(), i, CRect(CPoint(at.x, at.y), CSize(page::ItemWidth, page::ItemHeight))));
        }
        RecomposeAll();
    }
    IShadowSettings& Settings() { return *ToolInterface<IShadowSettings>(); }
    void SelectTop() {
        Ops().ClearSelection();
        CNodeRefList nodes;
        nodes.AddTail(Nodes().back());
        Ops().AddToSelection(nodes);
        RecomposeAll();
    }
    /// The mean of one step of a drag that goes to and fro.
    void MeasureDrag(const char* pszCase, CPoint ptFrom) {
        std::vector<double> us;
        Press(ptFrom);
        Move(ptFrom + CSize(10, 4));
        for (int i = 0; i < MoveSamples; i++) {
            const CPoint ptTo = ptFrom + (i % 2 == 0 ? CSize(14, 8) : CSize(10, 4));
            const double dStart = measure::NowUs();
            Move(ptTo);
            Paint();
            us.push_back(measure::NowUs() - dStart);
        }
        Release(ptFrom);
        measure::Figure(Peer, pszCase, static_cast<int>(Nodes().size()), us);
    }
};

// One of many shadowed pictures: its shadow by the knob, and the picture itself on the same page.
void DragAmong(int n) {
    CShadowStage stage(n);
    stage.SelectEvery();
    Check(stage.Settings().ApplyShadow(6, 6, &ShadowColor, Softness, 40) == 1, "shadows");
    stage.ForgetSteps();
    stage.SelectTop();
    CImgNode* const pShadow = stage.Nodes().back()->m_pShadowNode;
    Check(pShadow != nullptr, "a shadow");
    const CPoint ptKnob(pShadow->m_tx.nX + page::ItemWidth + 18, pShadow->m_tx.nY + page::ItemHeight / 2);
    const int nBefore = pShadow->m_tx.nX;
    stage.Press(ptKnob);
    stage.Move(ptKnob + CSize(10, 0));
    Check(pShadow->m_tx.nX == nBefore + 10, "dragging the knob");
    stage.Move(ptKnob);
    stage.Release(ptKnob);
    stage.MeasureDrag("shadow_drag_step", ptKnob);
    stage.Desk().Panels().nPageShown = 0;
    Check(stage.UseTool("CSelectTool"), "the select tool");
    stage.SelectTop();
    stage.MeasureDrag("move_drag_step", CPoint(page::PressX, page::PressY));
}

// Against the least that it needs: the soft mask and one composition of each.
void ApplyTo(int n) {
    CShadowStage stage(n);
    stage.SelectEvery();
    measure::Figure(Peer, "shadow_apply", n,
                    measure::TimedAfter(
                        Samples,
                        [&] {
                            stage.Settings().RemoveShadows();
                            stage.ForgetSteps();
                            stage.Paint();
                        },
                        [&] {
                            stage.Settings().ApplyShadow(6, 6, &ShadowColor, Softness, 40);
                            stage.Paint();
                        }));
    stage.ForgetSteps();
    HBUF32 hHard = 0;
    Check(buf32Alloc(&hHard, 8, page::ItemWidth, page::ItemHeight, 1, nullptr) == 1, "a mask");
    const CBufferPtr hard(hHard);
    std::memset(buf32Lock(hHard, BufReadWrite), 0xFF,
                static_cast<std::size_t>(page::ItemWidth) * page::ItemHeight);
    buf32Unlock(hHard);
    std::vector<CBufferPtr> kept;
    int nTransparency = 40;
    const auto soften = [&] {
        for (int i = 0; i < n; i++) {
            CTxParam block;
            block.hMask = hHard;
            sel32SoftEdgeMakeMask(&block, 0, Softness, 0, 0, 0, 0);
            kept.emplace_back(block.hMask);
        }
        // What has changed is composed, so every shadow does.
        nTransparency = 40 - nTransparency;
        for (CImgNode* pNode : stage.Nodes()) {
            pNode->m_pShadowNode->m_fnUpdateBCAndT(0, 0, nTransparency);
        }
        stage.RecomposeAll();
    };
    measure::Figure(Peer, "soft_masks_and_one_composition", n,
                    measure::TimedAfter(
                        Samples, [&] { kept.clear(); }, soften));
}

void OpenTheMenu(int n) {
    CShadowStage stage(n, "CSelectTool");
    stage.Ops().ClearSelection();
    CNodeRefList half;
    for (int i = 0; i < n; i += 2) {
        half.AddTail(stage.Nodes()[static_cast<std::size_t>(i)]);
    }
    half.AddTail(stage.Nodes().back());
    stage.Ops().AddToSelection(half);
    stage.RecomposeAll();
    measure::Figure(Peer, "context_menu", n,
                    measure::Timed(Samples, [&] { stage.RightPress(CPoint(page::PressX, page::PressY)); }));
    Check(stage.LastMenu().has_value(), "a menu");
    stage.Paint();
}

void SetDisplayOf(int n) {
    CShadowStage stage(n, "CDisplayPageTool");
    stage.SelectEvery();
    ISelectionDisplay& display = *stage.ToolInterface<ISelectionDisplay>();
    int nBrightness = 0;
    measure::Figure(Peer, "display_values", n,
                    measure::TimedAfter(
                        Samples, [&] { stage.ForgetSteps(); },
                        [&] {
                            display.SetSelectionDisplay(nBrightness = 30 - nBrightness, -1, -1);
                            stage.Paint();
                        }));
}

} // namespace

int main() {
    DragAmong(1000);
    for (const int n : {1, 100, 1000}) {
        ApplyTo(n);
    }
    OpenTheMenu(10000);
    SetDisplayOf(1000);
    return 0;
}
