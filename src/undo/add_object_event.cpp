#include "undo/add_object_event.h"

#include "host/notifications.h"
#include "ops/bus.h"
#include "ops/canvas.h"
#include "ops/refresh.h"
#include "tools/object_tool.h"

IMPLEMENT_DYNCREATE(CAddObjectUndoEvent, CUndoEvent)

namespace {

template <class TList>
void CopyList(const TList& from, TList& to) {
    to.RemoveAll();
    for (POSITION position = from.GetHeadPosition(); position;) {
        to.AddTail(from.GetNext(position));
    }
}

void CopyPage(const PageSnapshot& from, PageSnapshot& to) {
    CopyList(from.objects, to.objects);
    CopyList(from.selection, to.selection);
    CopyList(from.values, to.values);
}

void Empty(PageSnapshot& page) {
    page.values.RemoveAll();
    page.objects.RemoveAll();
    page.selection.RemoveAll();
}

void CaptureNodes(const CCanvas& canvas, PageSnapshot& page) {
    const CImgNodeList& objects = canvas.Objects();
    for (POSITION position = objects.GetHeadPosition(); position;) {
        CImgNode* pNode = objects.GetNext(position);
        if (!pNode->m_pOwner) {
            page.objects.AddTail(pNode);
        }
    }
    const CImgNodeList& selection = canvas.Selection();
    for (POSITION position = selection.GetHeadPosition(); position;) {
        page.selection.AddTail(selection.GetNext(position));
    }
}

// From the front: frame, object, shadow.
void AppendGroup(CNodeRefList& nodes, CImgNode* pObject) {
    if (pObject->m_pFrameNode) {
        nodes.AddTail(pObject->m_pFrameNode);
    }
    nodes.AddTail(pObject);
    if (pObject->m_pShadowNode) {
        nodes.AddTail(pObject->m_pShadowNode);
    }
}

void AppendTo(CImgNodeList& list, const CNodeRefList& nodes) {
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        list.AddTail(nodes.GetNext(position));
    }
}

} // namespace

CAddObjectUndoEvent::~CAddObjectUndoEvent() {
    Empty(m_previous);
    Empty(m_restore);
}

void CAddObjectUndoEvent::m_fnSaveState(CObjectTool* pTool) {
    if (!pTool) {
        return;
    }
    m_pOwnerTool = pTool;
    Empty(m_previous);
    Empty(m_restore);
    const CCanvas canvas(*pTool);
    if (canvas.HasDocument()) {
        CaptureNodes(canvas, m_restore);
        CaptureNodes(canvas, m_previous);
        CaptureValues(canvas, m_restore);
        CaptureValues(canvas, m_previous);
    }
    SetAccumulate(FALSE);
}

void CAddObjectUndoEvent::CaptureValues(const CCanvas& canvas, PageSnapshot& page) {
    IPageObjects* pTable = bus::FindService<IPageObjects>(*m_pOwnerTool, kind::PageObjects);
    if (!pTable) {
        return;
    }
    const CImgNodeList& objects = canvas.Objects();
    for (POSITION position = objects.GetHeadPosition(); position;) {
        CImgNode* pNode = objects.GetNext(position);
        if (!pNode->m_pOwner) {
            page.values.AddTail(pTable->GetValue(pNode));
        }
    }
}

BOOL CAddObjectUndoEvent::Accumulate(CUndoEvent*) { return FALSE; }

BOOL CAddObjectUndoEvent::Undo() {
    CUndoEvent::Undo();
    m_bUndone = !m_bUndone;
    if (!m_pOwnerTool) {
        return FALSE;
    }
    CCanvas canvas(*m_pOwnerTool);
    if (!canvas.HasDocument()) {
        return FALSE;
    }
    m_pOwnerTool->SyncToolPanel();
    PageSnapshot live;
    CaptureNodes(canvas, live);
    CaptureValues(canvas, live);
    CRefresh refresh;
    refresh.Add(SelectionArea());
    RestoreNodes(canvas);
    RestoreValues();
    CopyPage(m_restore, m_previous);
    CopyPage(live, m_restore);
    refresh.Add(SelectionArea());
    if (canvas) {
        refresh.FlushMarkRepaint(canvas.View(), *m_pOwnerTool);
    }
    m_pOwnerTool->SyncAttributePanels();
    NotifyChangedThenRedrawn(*m_pOwnerTool);
    return TRUE;
}

void CAddObjectUndoEvent::RestoreNodes(const CCanvas& canvas) {
    CNodeRefList nodes;
    for (POSITION position = m_restore.objects.GetHeadPosition(); position;) {
        AppendGroup(nodes, m_restore.objects.GetNext(position));
    }
    canvas.Objects().RemoveAll();
    canvas.Selection().RemoveAll();
    AppendTo(canvas.Objects(), nodes);
    AppendTo(canvas.Selection(), m_restore.selection);
}

// The host keeps its table by the objects' places, so it is filled again in their order.
void CAddObjectUndoEvent::RestoreValues() {
    IPageObjects* pTable = bus::FindService<IPageObjects>(*m_pOwnerTool, kind::PageObjects);
    if (!pTable) {
        return;
    }
    pTable->ClearValues();
    for (POSITION position = m_restore.values.GetHeadPosition(); position;) {
        pTable->AppendValue(m_restore.values.GetNext(position));
    }
}

CRect CAddObjectUndoEvent::SelectionArea() {
    CRect rc(0, 0, 0, 0);
    m_pOwnerTool->GetSelectionOutlineRect(&rc);
    return rc;
}

BOOL CAddObjectUndoEvent::Redo() { return Undo(); }

void CAddObjectUndoEvent::Free() {}

void CAddObjectUndoEvent::Cancel() { Free(); }

BOOL CAddObjectUndoEvent::ToolTipNeedText(tagNMTTDISPIFNOA*) { return TRUE; }
