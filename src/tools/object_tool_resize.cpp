// The resize drag: start, steps, finish, cancel.
#include "ops/drawing.h"
#include "ops/refresh.h"
#include "ops/resize_geometry.h"
#include "text/object/text_attributes.h"
#include "tools/object_tool.h"
#include "undo/recorder.h"
#include "undo/resize_changed_event.h"

namespace {

constexpr int OutlineMargin = 8; ///< client pixels repainted round the outline

CRect AreaRound(Corners corners) {
    CRect rc;
    ::GetBoundRect(corners.data(), static_cast<int>(corners.size()), &rc);
    rc.InflateRect(OutlineMargin, OutlineMargin);
    return rc;
}

} // namespace

void CObjectTool::StartResize(CPoint point, int nHandle) {
    m_nResizing = 1;
    m_nFirstStep = 1;
    m_ptPrevious = point;
    m_ptCurrent = point;
    m_nHandle = nHandle;
    CaptureMouse();
}

Corners CObjectTool::CornersAt(const CCanvas& canvas, CImgNode* pNode, CPoint point) {
    CRect rcNode(0, 0, 0, 0);
    GetNodeRect(pNode, &rcNode);
    return ResizedCorners(rcNode, ClampedPointer(point, m_nHandle, canvas.ClientRect()), m_nHandle);
}

void CObjectTool::StepResize(CImgNode* pNode) {
    CCanvas canvas(*this);
    if (!canvas) {
        return;
    }
    RemoveHandles(pNode);
    DrawOutline(canvas, CornersAt(canvas, pNode, m_ptCurrent));
}

// Before its first step a gesture takes the handles out of the picture.
void CObjectTool::RemoveHandles(CImgNode* pNode) {
    if (m_nFirstStep == 0) {
        return;
    }
    m_nFirstStep = 0;
    GetNodeMarkRect(pNode, &m_rcLastOutline);
    FlushViewRect(&m_rcLastOutline);
}

// The outline is painted from the cache, which gets its true picture back at once. The window keeps showing
// the outline until the next step or the finish paints over it.
void CObjectTool::DrawOutline(CCanvas& canvas, const Corners& corners) {
    CRect rcArea = AreaRound(corners);
    {
        CCachePicture picture(canvas, rcArea);
        if (picture) {
            DrawOutlineAndHandles(picture.DC(), Shifted(corners, picture.Origin()));
            picture.PutBack();
        }
    }
    CRefresh refresh;
    refresh.Add(rcArea);
    refresh.Add(m_rcLastOutline);
    canvas.View().InvalidateRect(&refresh.Area(), FALSE);
    canvas.View().UpdateWindow();
    canvas.View().m_fnFlushCacheRect(rcArea);
    canvas.View().ValidateRect(&rcArea);
    m_rcLastOutline = rcArea;
}

int CObjectTool::FinishResize(CPoint point) {
    m_nResizing = 0;
    m_ptPrevious = m_ptCurrent;
    m_ptCurrent = point;
    ReleaseMouse();
    CUndoRecorder<CResizeChangedUndoEvent> recorder(AsObjectTool());
    if (!recorder.CaptureBefore()) {
        return 0;
    }
    CCanvas canvas(*this);
    if (canvas && !canvas.Selection().IsEmpty()) {
        ApplyResize(canvas.Selection().GetHead());
    }
    return recorder.RecordChange() ? 1 : 0;
}

void CObjectTool::ApplyResize(CImgNode* pNode) {
    CCanvas canvas(*this);
    RemoveHandles(pNode);
    canvas.View().RepaintViewRect(AreaRound(CornersAt(canvas, pNode, m_ptPrevious)), 1);

    CWaitCursor wait;
    CNodeRefList nodes;
    nodes.AddTail(pNode);
    CRefresh refresh;
    refresh.Add(AreaOf(nodes));
    Corners corners = CornersAt(canvas, pNode, m_ptCurrent);
    CRect rcClient;
    ::GetBoundRect(corners.data(), static_cast<int>(corners.size()), &rcClient);
    const CRect rcDoc(canvas.ToDocument(rcClient.TopLeft()), canvas.ToDocument(rcClient).Size());
    if (CTextNode* pText = AsText(pNode)) {
        ResizeTextTo(*pText, rcDoc);
    } else {
        m_fnResizeObject(pNode, rcDoc);
    }

    refresh.Add(AreaOf(nodes));
    refresh.FlushMarkRepaint(canvas.View(), *this);
    OnNodeResized(pNode);
    SyncAttributePanels();
    NotifyChangedThenRedrawn(*this);
}

// The cache holds the true picture already; the window only has to show it again.
void CObjectTool::CancelResize() {
    if (!IsResizing()) {
        return;
    }
    m_nResizing = 0;
    ReleaseMouse();
    CCanvas canvas(*this);
    if (canvas && m_nFirstStep == 0) {
        canvas.View().InvalidateRect(&m_rcLastOutline, FALSE);
    }
}
