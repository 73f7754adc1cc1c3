// The resize drag: start, steps, finish, cancel.
#include "ops/drawing.h"
#include "ops/objects/handle_resize.h"
#include "ops/objects/resize.h"
#include "ops/resize_geometry.h"
#include "ops/view_margin.h"
#include "text/object/text_attributes.h"
#include "tools/object_tool.h"
#include "undo/recorder.h"
#include "undo/resize_changed_event.h"

namespace {

CRect AreaRound(const Corners& corners) {
    CRect rc = BoundsOf(corners);
    rc.InflateRect(ViewMargin, ViewMargin);
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
    return ResizedCorners(NodeRect(*this, pNode), ClampedPointer(point, m_nHandle, canvas.ClientRect()),
                          m_nHandle);
}

void CObjectTool::StepResize(CImgNode* pNode) {
    const CCanvas canvas(*this);
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
void CObjectTool::DrawOutline(const CCanvas& canvas, const Corners& corners) {
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
    CUndoRecorder<CResizeChangedUndoEvent> recorder;
    if (!recorder.CaptureBefore(*this)) {
        return 0;
    }
    if (CImgNode* pNode = CCanvas(*this).FirstSelected()) {
        ApplyResize(pNode);
    }
    return recorder.RecordChange(*this) == Recorded::NoCapture ? 0 : 1;
}

void CObjectTool::ApplyResize(CImgNode* pNode) {
    const CCanvas canvas(*this);
    if (!canvas) {
        return;
    }
    RemoveHandles(pNode);
    canvas.View().RepaintViewRect(AreaRound(CornersAt(canvas, pNode, m_ptPrevious)), 1);

    CWaitCursor wait;
    CNodeRefList nodes;
    nodes.AddTail(pNode);
    CRefresh refresh;
    refresh.Add(AreaOf(*this, nodes));
    ResizeNode(pNode, ResizedRect(canvas, pNode));
    refresh.Add(AreaOf(*this, nodes));
    refresh.FlushMarkRepaint(canvas, *this);
    OnNodeResized(pNode);
    SyncAttributePanels();
    NotifyChangedThenRedrawn(*this);
}

// Document units: the corner converts as a point, the size as that of the converted rectangle.
CRect CObjectTool::ResizedRect(const CCanvas& canvas, CImgNode* pNode) {
    const CRect rcClient = BoundsOf(CornersAt(canvas, pNode, m_ptCurrent));
    return CRect(canvas.ToDocument(rcClient.TopLeft()), canvas.ToDocument(rcClient).Size());
}

// A text object's size is its font's: only a rebuilt text can take the place of the old one.
void CObjectTool::ResizeNode(CImgNode* pNode, CRect rcDoc) {
    CTextNode* const pText = AsText(pNode);
    if (!pText) {
        ResizeObject(*this, pNode, rcDoc);
        return;
    }
    const std::unique_ptr<CTextNode> pResized(ResizeTextNode(pText, &rcDoc, m_nHandle));
    if (pResized) {
        PlaceResizedText(*this, *pText, *pResized);
    }
}

void CObjectTool::CancelResize() {
    EraseOutline();
    if (IsResizing()) {
        m_nResizing = 0;
        ReleaseMouse();
    }
}

// The cache holds the true picture already; the window only has to show it again.
void CObjectTool::EraseOutline() {
    const CCanvas canvas(*this);
    if (IsResizing() && m_nFirstStep == 0 && canvas) {
        canvas.View().InvalidateRect(&m_rcLastOutline, FALSE);
    }
}
