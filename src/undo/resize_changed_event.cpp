#include "undo/resize_changed_event.h"

#include "host/text_node.h"
#include "ops/canvas.h"
#include "ops/refresh.h"
#include "tools/object_tool.h"
#include "undo/rect_match.h"

IMPLEMENT_DYNCREATE(CResizeChangedUndoEvent, CUndoEvent)

CResizeChangedUndoEvent::~CResizeChangedUndoEvent() { m_saved.RemoveAll(); }

void CResizeChangedUndoEvent::Capture(CObjectTool& tool, SavedList& records) {
    records.RemoveAll();
    CCanvas canvas(tool);
    if (!canvas.HasDocument()) {
        return;
    }
    CImgNodeList& selection = canvas.Selection();
    for (POSITION position = selection.GetHeadPosition(); position;) {
        CImgNode* pNode = selection.GetNext(position);
        const bool bText = pNode->m_nType == node_type::Text;
        records.AddTail({bText ? static_cast<CTextNode*>(pNode)->m_nFontSize : 0,
                         pNode->m_fnGetBoundRectWithFrame(), pNode});
    }
}

void CResizeChangedUndoEvent::m_fnSaveState(CObjectTool* pTool) {
    m_pOwnerTool = pTool;
    if (!pTool) {
        return;
    }
    Capture(*pTool, m_saved);
    SetAccumulate(FALSE);
}

BOOL CResizeChangedUndoEvent::m_fnIsSameState(const CResizeChangedUndoEvent* pOther) const {
    return HasSameRecords(
        pOther, [](const NodeSizeRecord& record) { return record.node; },
        [](const NodeSizeRecord& record, const NodeSizeRecord& other) {
            return record.node == other.node && CoverEachOther(record.bounds, other.bounds);
        });
}

BOOL CResizeChangedUndoEvent::Undo() {
    CUndoEvent::Undo();
    m_bUndone = !m_bUndone;
    if (!m_pOwnerTool) {
        return FALSE;
    }
    m_pOwnerTool->SyncToolPanel();
    CWaitCursor wait;
    CRefresh refresh;
    CRect rc(0, 0, 0, 0);
    m_pOwnerTool->GetSelectionOutlineRect(&rc);
    refresh.Add(rc);

    SavedList live;
    Capture(*m_pOwnerTool, live);
    RestoreSizes();
    ReplaceSaved(live);

    m_pOwnerTool->GetSelectionOutlineRect(&rc);
    refresh.Add(rc);
    CCanvas canvas(*m_pOwnerTool);
    if (canvas) {
        refresh.FlushMarkRepaint(canvas.View(), *m_pOwnerTool);
    }
    m_pOwnerTool->SyncAttributePanels();
    NotifyChangedThenRedrawn(*m_pOwnerTool);
    return TRUE;
}

void CResizeChangedUndoEvent::RestoreSizes() {
    for (POSITION position = m_saved.GetHeadPosition(); position;) {
        const NodeSizeRecord& record = m_saved.GetNext(position);
        if (record.node->m_nType == node_type::Text) {
            const CPoint ptCorner = record.bounds.TopLeft();
            m_pOwnerTool->m_fnRebuildTextAtSize(record.node, record.textSize, &ptCorner);
        } else {
            m_pOwnerTool->m_fnResizeObject(record.node, record.bounds);
        }
        m_pOwnerTool->OnNodeResized(record.node);
    }
}
