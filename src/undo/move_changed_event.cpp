#include "undo/move_changed_event.h"

#include "ops/nodes.h"
#include "ops/objects/offset.h"
#include "undo/same_records.h"

IMPLEMENT_DYNCREATE(CMoveChangedUndoEvent, CUndoEvent)

bool operator==(const NodeRectRecord& record, const NodeRectRecord& other) {
    return record.node == other.node && CoverEachOther(record.bounds, other.bounds);
}

CMoveChangedUndoEvent::~CMoveChangedUndoEvent() { m_saved.RemoveAll(); }

void CMoveChangedUndoEvent::m_fnSaveState(CTool* pTool) {
    m_pOwnerTool = pTool;
    if (!pTool) {
        return;
    }
    const CCanvas canvas(*pTool);
    if (canvas.HasDocument()) {
        for (CImgNode* pNode : Each(canvas.Selection())) {
            m_saved.AddTail({pNode->m_fnGetBoundRectWithFrame(), pNode});
        }
    }
    SetAccumulate(FALSE);
}

BOOL CMoveChangedUndoEvent::m_fnIsSameState(const CMoveChangedUndoEvent* pOther) const {
    return IsSameState(*this, pOther, &CMoveChangedUndoEvent::m_saved);
}

CRect CMoveChangedUndoEvent::Area(CTool& tool, const CCanvas&) const {
    CNodeRefList nodes;
    for (const NodeRectRecord& record : Each(m_saved)) {
        nodes.AddTail(record.node);
    }
    return AreaOf(tool, nodes);
}

// All places are read before any node moves. Only the corner counts: a node whose corner already matches is
// left alone, whatever its size.
Restored CMoveChangedUndoEvent::Restore(Way, CTool&, const CCanvas&, CRefresh&) {
    decltype(m_saved) live;
    for (const NodeRectRecord& record : Each(m_saved)) {
        live.AddTail({record.node->m_fnGetBoundRectWithFrame(), record.node});
    }
    for (const NodeRectRecord& record : Each(m_saved)) {
        const CSize offset = record.bounds.TopLeft() - record.node->m_fnGetBoundRectWithFrame().TopLeft();
        if (offset != CSize(0, 0)) {
            OffsetObject(record.node, offset);
        }
    }
    CopyList(live, m_saved);
    return Restored::Done;
}
