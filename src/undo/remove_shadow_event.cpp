#include "undo/remove_shadow_event.h"

#include "ops/nodes.h"
#include "shadows/shadow_build.h"
#include "undo/records.h"

IMPLEMENT_DYNCREATE(CuRemoveShadowUndoEvent, CUndoEvent)

CuRemoveShadowUndoEvent::~CuRemoveShadowUndoEvent() { CuRemoveShadowUndoEvent::Free(); }

BOOL CuRemoveShadowUndoEvent::m_fnSaveState(CTool* pTool) {
    m_pOwnerTool = pTool;
    if (!pTool) {
        return TRUE;
    }
    Free();
    const CCanvas canvas(*pTool);
    if (canvas.HasDocument()) {
        for (CImgNode* pNode : Each(canvas.Selection())) {
            if (!AddRecord(m_records,
                           RemovedShadowRecord{pNode->m_shadow, pNode, pNode->m_pShadowNode != nullptr})) {
                return FALSE;
            }
        }
    }
    SetAccumulate(FALSE);
    return TRUE;
}

Restored CuRemoveShadowUndoEvent::Restore(Way way, CTool& tool, const CCanvas&, CRefresh&) {
    for (const RemovedShadowRecord* pRecord : Each(m_records)) {
        if (!pRecord->hadShadow) {
            continue;
        }
        if (way == Way::Undo) {
            CreateShadow(tool, pRecord->node, pRecord->shadow);
        } else {
            RemoveShadow(tool, pRecord->node);
        }
    }
    return Restored::Done;
}

void CuRemoveShadowUndoEvent::Free() { FreeRecords(m_records); }
