// The headless host as the benchmarks use it: nothing is recorded, and repaints are counted.
#pragma once

#include "host/tool_interfaces.h"
#include "image/view_host.h"
#include "measure.h"
#include "page.h"
#include "platform/surface.h"
#include "stage.h"
#include "trace/trace.h"

#include <cmath>
#include <string>
#include <vector>

/// Counts what reaches the screen.
class CPaintCounter : public platform::IPresenter {
  public:
    CPaintCounter() { platform::SetPresenter(this); }
    ~CPaintCounter() { platform::SetPresenter(nullptr); }
    CPaintCounter(const CPaintCounter&) = delete;
    CPaintCounter& operator=(const CPaintCounter&) = delete;

    void Present(HWND, const RECT& dirty) override {
        m_nPaints++;
        m_nPixels += static_cast<long>(dirty.right - dirty.left) * (dirty.bottom - dirty.top);
    }
    long Paints() const { return m_nPaints; }
    long Pixels() const { return m_nPixels; }

  private:
    long m_nPaints = 0;
    long m_nPixels = 0;
};

/// A stage with the module's plain select tool on a white page. Spread, the page grows with the number of
/// items so that their density stays that of a hundred; the view shows its top-left 720 by 480.
class CCanvasStage : public CStage {
  public:
    explicit CCanvasStage(double dGrow = 1.0)
        : m_nWidth(static_cast<int>(page::Width * dGrow)), m_nHeight(static_cast<int>(page::Height * dGrow)) {
        LoadModule();
        NewPage(m_nWidth, m_nHeight);
        SetViewSize(page::Width, page::Height);
        SetBaseColor(RGB(255, 255, 255));
        measure::Check(UseTool("CSelectTool"), "the module's select tool");
        Paint();
        trace::TurnOn(false);
    }
    static double GrowthFor(int n) { return std::sqrt(n / 100.0); }

    CDeskView& View() { return *Desk().View(); }
    CVorDoc& Document() { return *Desk().Document(); }
    IToolObjectOps& Ops() { return *ToolInterface<IToolObjectOps>(); }
    int PageWidth() const { return m_nWidth; }
    int PageHeight() const { return m_nHeight; }

    /// Puts the node on the page in front of all others.
    void Add(CImgNode* pNode) {
        measure::Check(pNode && Document().GetObjList()->AddHead(pNode), "placing an item");
        m_nodes.push_back(pNode);
    }
    const std::vector<CImgNode*>& Nodes() const { return m_nodes; }
    void RecomposeAll() {
        CViewHost::RecomposeAll(View());
        Paint();
    }
    void SelectEvery() {
        Ops().ClearSelection();
        CNodeRefList nodes;
        for (CImgNode* pNode : m_nodes) {
            nodes.AddTail(pNode);
        }
        Ops().AddToSelection(nodes);
        RecomposeAll();
    }
    int SelectedCount() { return static_cast<int>(Document().GetActList()->GetCount()); }
    void ForgetSteps() { GetUndoMgr()->Clear(); }

  private:
    int m_nWidth;
    int m_nHeight;
    std::vector<CImgNode*> m_nodes; ///< back to front
};
