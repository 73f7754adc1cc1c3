#include "undo/align_event.h"

#include "ops/nodes.h"
#include "ops/objects/offset.h"
#include "ops/objects/resize.h"
#include "undo/records.h"

IMPLEMENT_DYNCREATE(CuAlignUndoEvent, CUndoEvent)

namespace {

// The record keeps the rectangle that the node had until now, for the way back.
void RestoreRect(CTool& tool, NodeRectRecord& record) {
    const CRect rcLive = record.node->m_fnGetBoundRectWithFrame();
    OffsetObject(record.node, record.bounds.TopLeft() - rcLive.TopLeft());
    if (record.bounds.Size() != rcLive.Size()) {
        ResizeObject(tool, record.node, record.bounds);
    }
    record.bounds = rcLive;
}

} // namespace

CuAlignUndoEvent::~CuAlignUndoEvent() { CuAlignUndoEvent::Free(); }

BOOL CuAlignUndoEvent::m_fnSaveState(CTool* pTool) {
    m_pOwnerTool = pTool;
    if (!pTool) {
        return TRUE;
    }
    Free();
    const CCanvas canvas(*pTool);
    if (canvas.HasDocument()) {
        for (CImgNode* pNode : Each(canvas.Selection())) {
            if (!AddRecord(m_saved, NodeRectRecord{pNode->m_fnGetBoundRectWithFrame(), pNode})) {
                return FALSE;
            }
        }
    }
    SetAccumulate(FALSE);
    return TRUE;
}

CRect CuAlignUndoEvent::Area(CTool& tool, const CCanvas&) const {
    CNodeRefList nodes;
    for (const NodeRectRecord* pRecord : Each(m_saved)) {
        nodes.AddTail(pRecord->node);
    }
    return AreaOf(tool, nodes);
}

Restored CuAlignUndoEvent::Restore(Way, CTool& tool, const CCanvas&, CRefresh&) {
    for (NodeRectRecord* pRecord : Each(m_saved)) {
        RestoreRect(tool, *pRecord);
    }
    return Restored::Done;
}

void CuAlignUndoEvent::Free() { FreeRecords(m_saved); }
