// The drag of a shadow by its handle: start, steps, finish, cancel.
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "host/panels.h"
#include "ops/axis.h"
#include "ops/bus.h"
#include "tools/shadow_tool.h"

namespace {

constexpr int LeastStep = 2; ///< client pixels, on one axis at least

/// The offsets that the host allows, document units.
struct OffsetRange {
    int nMinX = 0;
    int nMaxX = 0;
    int nMinY = 0;
    int nMaxY = 0;
};

// False when the page that is showing sets no limits.
bool ReadRange(CTool& tool, OffsetRange& range) {
    IShadowPanel* const pPanel = bus::FindService<IShadowPanel>(tool, kind::PropertyArea);
    if (!pPanel) {
        return false;
    }
    pPanel->GetRangeX(&range.nMinX, &range.nMaxX);
    pPanel->GetRangeY(&range.nMinY, &range.nMaxY);
    return true;
}

// One axis: how far the shadow goes of the step that is wanted, document units.
int ClampedStep(int nShadow, int nStep, int nBase, int nMin, int nMax) {
    const long long nLeast = static_cast<long long>(nBase) + nMin;
    const long long nMost = static_cast<long long>(nBase) + nMax;
    const long long nWanted = static_cast<long long>(nShadow) + nStep;
    return Saturated(std::max(nLeast, std::min(nWanted, nMost)) - nShadow);
}

// The step's base is the frame's own position, where the object has a frame.
CSize ClampedStep(const CImgNode& object, CSize step, const OffsetRange& range) {
    const CTxParam& base = object.m_pFrameNode ? object.m_pFrameNode->m_tx : object.m_tx;
    const CTxParam& shadow = object.m_pShadowNode->m_tx;
    return CSize(ClampedStep(shadow.nX, step.cx, base.nX, range.nMinX, range.nMaxX),
                 ClampedStep(shadow.nY, step.cy, base.nY, range.nMinY, range.nMaxY));
}

// One axis: a client step whose way back to document units misses the wanted step is put right by a unit's
// width.
int Corrected(int nClient, int nBack, int nWanted, int nCorrection) {
    if (nBack == nWanted) {
        return nClient;
    }
    return Saturated(static_cast<long long>(nClient) + (nBack < nWanted ? nCorrection : -nCorrection));
}

CSize ToClientStep(const CCanvas& canvas, CSize docStep) {
    const CSize client = canvas.DeltaToClient(docStep);
    const CSize back = canvas.DeltaToDocument(client);
    const int nCorrection = Truncated(canvas.View().m_dZoom + 1.0);
    return CSize(Corrected(client.cx, back.cx, docStep.cx, nCorrection),
                 Corrected(client.cy, back.cy, docStep.cy, nCorrection));
}

// The only selected object where it has a shadow; else null.
CImgNode* DraggedObject(const CCanvas& canvas) {
    CImgNode* const pOnly = canvas ? canvas.OnlySelected() : nullptr;
    return pOnly && pOnly->m_pShadowNode ? pOnly : nullptr;
}

// The new offsets are measured from the object, or from the corner of object and frame.
void StoreOffset(CImgNode& object) {
    const CPoint ptBase = object.m_pFrameNode ? object.m_fnGetBoundRectWithFrame().TopLeft()
                                              : CPoint(object.m_tx.nX, object.m_tx.nY);
    const CTxParam& shadow = object.m_pShadowNode->m_tx;
    object.m_shadow.dOffsetX = static_cast<double>(shadow.nX) - ptBase.x;
    object.m_shadow.dOffsetY = static_cast<double>(shadow.nY) - ptBase.y;
}

} // namespace

int CShadowTool::StartShadowDrag(CPoint point) {
    m_nDragging = 1;
    CaptureMouse();
    m_ptPlaced = point;
    m_ptLatest = point;
    return m_shadowRecorder.CaptureBefore(*this) ? 1 : 0;
}

int CShadowTool::StepShadowDrag(CPoint point) {
    const CPoint ptClamped = Clamped(point);
    const CSize step = ptClamped - m_ptLatest;
    if (std::abs(step.cx) < LeastStep && std::abs(step.cy) < LeastStep) {
        return 1;
    }
    m_ptLatest = ptClamped;
    PlaceShadow();
    m_ptPlaced = m_ptLatest;
    return 1;
}

int CShadowTool::FinishShadowDrag(CPoint point) {
    m_nDragging = 0;
    ReleaseMouse();
    m_ptLatest = Clamped(point);
    PlaceShadow();
    const Recorded recorded = m_shadowRecorder.RecordChange(*this, m_pShadowAfter);
    if (recorded == Recorded::Recorded) {
        NotifyRedrawnThenChanged(*this);
    }
    return recorded == Recorded::NoCapture ? 0 : 1;
}

void CShadowTool::CancelShadowDrag() {
    if (IsDraggingShadow()) {
        m_nDragging = 0;
        ReleaseMouse();
    }
}

// The point up to which the host's limits let the shadow go.
CPoint CShadowTool::Clamped(CPoint point) {
    OffsetRange range;
    const CCanvas canvas(*this);
    const CImgNode* const pObject = DraggedObject(canvas);
    if (!pObject || !ReadRange(*this, range)) {
        return point;
    }
    const CSize step = canvas.DeltaToDocument(point - m_ptLatest);
    return Moved(m_ptLatest, ToClientStep(canvas, ClampedStep(*pObject, step, range)));
}

void CShadowTool::PlaceShadow() {
    const CCanvas canvas(*this);
    CImgNode* const pObject = DraggedObject(canvas);
    if (!pObject || m_ptLatest == m_ptPlaced) {
        return;
    }
    CRefresh refresh;
    refresh.Add(OutlineRect(*this, pObject, Shown::Alone));
    const CSize delta = canvas.DeltaToDocument(m_ptLatest - m_ptPlaced);
    pObject->m_pShadowNode->Move(delta.cx, delta.cy);
    StoreOffset(*pObject);
    ShowOffset(*pObject);
    refresh.Add(OutlineRect(*this, pObject, Shown::Alone));
    refresh.FlushMarkRepaint(canvas, *this);
}

// On the page that the tool pairs with.
void CShadowTool::ShowOffset(const CImgNode& object) {
    if (IShadowPanel* pPanel = bus::FindService<IShadowPanel>(*this, GetPanelKind())) {
        pPanel->SetOffset(Truncated(object.m_shadow.dOffsetX), Truncated(object.m_shadow.dOffsetY));
    }
}
