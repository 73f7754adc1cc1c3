#include "undo/shadow_changed_event.h"

#include "ops/nodes.h"
#include "shadows/shadow_build.h"
#include "undo/same_records.h"

IMPLEMENT_DYNCREATE(CShadowChangedUndoEvent, CUndoEvent)
IMPLEMENT_DYNCREATE(CShadowMoveChangedUndoEvent, CUndoEvent)

namespace {

void RestoreShadow(CTool& tool, const NodeShadowRecord& record) {
    CImgNode* pNode = record.node;
    const CShadowParam saved = {record.offsetX, record.offsetY, record.softness, record.transparency,
                                record.color};
    if (!record.hasShadow) {
        RemoveShadow(tool, pNode);
    } else if (!pNode->m_pShadowNode) {
        CreateShadow(tool, pNode, saved);
    } else {
        pNode->m_shadow = saved;
        tool.RefreshNodeShadow(pNode, 0);
    }
}

} // namespace

CShadowChangedUndoEvent::~CShadowChangedUndoEvent() { m_saved.RemoveAll(); }

void CShadowChangedUndoEvent::Capture(const CCanvas& canvas, SavedList& records) {
    records.RemoveAll();
    if (!canvas.HasDocument()) {
        return;
    }
    for (CImgNode* pNode : Each(canvas.Selection())) {
        const CShadowParam& shadow = pNode->m_shadow;
        records.AddTail({pNode, shadow.dOffsetX, shadow.dOffsetY, shadow.dSoftness, shadow.nTransparency,
                         shadow.crColor, pNode->m_pShadowNode != nullptr});
    }
}

void CShadowChangedUndoEvent::m_fnSaveState(CTool* pTool) {
    m_pOwnerTool = pTool;
    if (pTool) {
        Capture(CCanvas(*pTool), m_saved);
        SetAccumulate(FALSE);
    }
}

BOOL CShadowChangedUndoEvent::m_fnIsSameState(const CShadowChangedUndoEvent* pOther) const {
    return IsSameState(*this, pOther, &CShadowChangedUndoEvent::m_saved);
}

Restored CShadowChangedUndoEvent::Restore(Way, CTool& tool, const CCanvas& canvas, CRefresh&) {
    SavedList live;
    Capture(canvas, live);
    for (const NodeShadowRecord& record : Each(m_saved)) {
        RestoreShadow(tool, record);
    }
    CopyList(live, m_saved);
    return Restored::Done;
}

void CShadowMoveChangedUndoEvent::m_fnSaveState(CTool* pTool) {
    CShadowChangedUndoEvent::m_fnSaveState(pTool);
    SetAccumulate(FALSE);
}
