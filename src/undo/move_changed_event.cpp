#include "undo/move_changed_event.h"

#include "ops/canvas.h"
#include "ops/refresh.h"
#include "tools/object_tool.h"
#include "undo/rect_match.h"

IMPLEMENT_DYNCREATE(CMoveChangedUndoEvent, CUndoEvent)

CMoveChangedUndoEvent::~CMoveChangedUndoEvent() { m_saved.RemoveAll(); }

void CMoveChangedUndoEvent::m_fnSaveState(CObjectTool* pTool) {
    m_pOwnerTool = pTool;
    if (!pTool) {
        return;
    }
    CCanvas canvas(*pTool);
    if (canvas.HasDocument()) {
        CImgNodeList& selection = canvas.Selection();
        for (POSITION position = selection.GetHeadPosition(); position;) {
            CImgNode* pNode = selection.GetNext(position);
            m_saved.AddTail({pNode->m_fnGetBoundRectWithFrame(), pNode});
        }
    }
    SetAccumulate(FALSE);
}

BOOL CMoveChangedUndoEvent::m_fnIsSameState(const CMoveChangedUndoEvent* pOther) const {
    return HasSameRecords(
        pOther, [](const NodeRectRecord& record) { return record.node; },
        [](const NodeRectRecord& record, const NodeRectRecord& other) {
            return record.node == other.node && CoverEachOther(record.bounds, other.bounds);
        });
}

BOOL CMoveChangedUndoEvent::Undo() {
    CUndoEvent::Undo();
    if (!m_pOwnerTool) {
        return FALSE;
    }
    m_bUndone = !m_bUndone;
    m_pOwnerTool->SyncToolPanel();

    SavedList live;
    CNodeRefList nodes;
    for (POSITION position = m_saved.GetHeadPosition(); position;) {
        CImgNode* pNode = m_saved.GetNext(position).node;
        live.AddTail({pNode->m_fnGetBoundRectWithFrame(), pNode});
        nodes.AddTail(pNode);
    }
    CRefresh refresh;
    refresh.Add(m_pOwnerTool->AreaOf(nodes));
    RestorePlaces();
    ReplaceSaved(live);
    refresh.Add(m_pOwnerTool->AreaOf(nodes));

    CCanvas canvas(*m_pOwnerTool);
    if (canvas) {
        refresh.FlushMarkRepaint(canvas.View(), *m_pOwnerTool);
    }
    NotifyChangedThenRedrawn(*m_pOwnerTool);
    return TRUE;
}

// Only the corner counts: a node whose corner already matches is left alone, whatever its size.
void CMoveChangedUndoEvent::RestorePlaces() {
    for (POSITION position = m_saved.GetHeadPosition(); position;) {
        const NodeRectRecord& record = m_saved.GetNext(position);
        const CSize offset = record.bounds.TopLeft() - record.node->m_fnGetBoundRectWithFrame().TopLeft();
        if (offset.cx != 0 || offset.cy != 0) {
            m_pOwnerTool->m_fnOffsetObject(record.node, offset);
        }
    }
}
