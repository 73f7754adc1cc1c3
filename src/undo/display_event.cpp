#include "undo/display_event.h"

#include "ops/display_values.h"
#include "ops/nodes.h"
#include "undo/records.h"

IMPLEMENT_DYNCREATE(CuDisplayUndoEvent, CUndoEvent)

CuDisplayUndoEvent::CuDisplayUndoEvent(CTool* pTool, const CNodeRefList& nodes, int nBrightness,
                                       int nContrast, int nTransparency)
    : m_pOwnerTool(pTool), m_nNewBrightness(nBrightness), m_nNewContrast(nContrast),
      m_nNewTransparency(nTransparency) {
    for (CImgNode* pNode : Each(nodes)) {
        if (pNode && !AddRecord(m_records, NodeDisplayRecord{pNode->m_nBrightness, pNode->m_nContrast,
                                                             pNode->m_nTransparency, pNode})) {
            return;
        }
    }
}

CuDisplayUndoEvent::~CuDisplayUndoEvent() { CuDisplayUndoEvent::Free(); }

Restored CuDisplayUndoEvent::Restore(Way way, CTool&, const CCanvas&, CRefresh&) {
    for (const NodeDisplayRecord* pRecord : Each(m_records)) {
        if (way == Way::Undo) {
            pRecord->node->m_fnUpdateBCAndT(pRecord->brightness, pRecord->contrast, pRecord->transparency);
        } else {
            ApplyNewValues(*pRecord->node);
        }
    }
    return Restored::Done;
}

void CuDisplayUndoEvent::ApplyNewValues(CImgNode& node) const {
    SetDisplayValues(node, RequestedValues({m_nNewBrightness, m_nNewContrast, m_nNewTransparency}, node));
}

void CuDisplayUndoEvent::Free() { FreeRecords(m_records); }
