#include "undo/align_event.h"

#include <new>

#include "ops/canvas.h"
#include "ops/refresh.h"
#include "tools/object_tool.h"

IMPLEMENT_DYNCREATE(CuAlignUndoEvent, CUndoEvent)

CuAlignUndoEvent::~CuAlignUndoEvent() { CuAlignUndoEvent::Free(); }

BOOL CuAlignUndoEvent::m_fnSaveState(CObjectTool* pTool) {
    m_pOwnerTool = pTool;
    if (!pTool) {
        return TRUE;
    }
    Free();
    CCanvas canvas(*pTool);
    if (canvas.HasDocument()) {
        CImgNodeList& selection = canvas.Selection();
        for (POSITION position = selection.GetHeadPosition(); position;) {
            CImgNode* pNode = selection.GetNext(position);
            auto* pRecord = new (std::nothrow) NodeRectRecord{pNode->m_fnGetBoundRectWithFrame(), pNode};
            if (!pRecord) {
                return FALSE;
            }
            m_saved.AddTail(pRecord);
        }
    }
    SetAccumulate(FALSE);
    return TRUE;
}

BOOL CuAlignUndoEvent::Accumulate(CUndoEvent*) { return FALSE; }

BOOL CuAlignUndoEvent::Undo() {
    CUndoEvent::Undo();
    if (!m_pOwnerTool) {
        return FALSE;
    }
    CCanvas canvas(*m_pOwnerTool);
    if (!canvas) {
        return FALSE;
    }
    m_bUndone = !m_bUndone;
    m_pOwnerTool->SyncToolPanel();
    CNodeRefList nodes;
    for (POSITION position = m_saved.GetHeadPosition(); position;) {
        nodes.AddTail(m_saved.GetNext(position)->node);
    }
    CRefresh refresh;
    refresh.Add(m_pOwnerTool->AreaOf(nodes));
    for (POSITION position = m_saved.GetHeadPosition(); position;) {
        RestoreRect(*m_saved.GetNext(position));
    }
    refresh.Add(m_pOwnerTool->AreaOf(nodes));
    refresh.FlushMarkRepaint(canvas.View(), *m_pOwnerTool);
    m_pOwnerTool->SyncAttributePanels();
    NotifyChangedThenRedrawn(*m_pOwnerTool);
    return TRUE;
}

// The record keeps the rectangle that the node had until now, for the way back.
void CuAlignUndoEvent::RestoreRect(NodeRectRecord& record) {
    const CRect rcLive = record.node->m_fnGetBoundRectWithFrame();
    m_pOwnerTool->m_fnOffsetObject(record.node, record.bounds.TopLeft() - rcLive.TopLeft());
    if (record.bounds.Size() != rcLive.Size()) {
        m_pOwnerTool->m_fnResizeObject(record.node, record.bounds);
    }
    record.bounds = rcLive;
}

void CuAlignUndoEvent::Free() {
    while (!m_saved.IsEmpty()) {
        delete m_saved.RemoveHead();
    }
}

BOOL CuAlignUndoEvent::ToolTipNeedText(tagNMTTDISPIFNOA* pText) { return CUndoEvent::ToolTipNeedText(pText); }
