#include "undo/shadow_changed_event.h"

#include "ops/canvas.h"
#include "ops/refresh.h"
#include "ops/saturate.h"
#include "tools/object_tool.h"

IMPLEMENT_DYNCREATE(CShadowChangedUndoEvent, CUndoEvent)
IMPLEMENT_DYNCREATE(CShadowMoveChangedUndoEvent, CUndoEvent)

CShadowChangedUndoEvent::~CShadowChangedUndoEvent() { m_saved.RemoveAll(); }

void CShadowChangedUndoEvent::Capture(CObjectTool& tool, SavedList& records) {
    records.RemoveAll();
    CCanvas canvas(tool);
    if (!canvas.HasDocument()) {
        return;
    }
    CImgNodeList& selection = canvas.Selection();
    for (POSITION position = selection.GetHeadPosition(); position;) {
        CImgNode* pNode = selection.GetNext(position);
        const CShadowParam& shadow = pNode->m_shadow;
        records.AddTail({pNode, shadow.dOffsetX, shadow.dOffsetY, shadow.dSoftness, shadow.nTransparency,
                         shadow.crColor, pNode->m_pShadowNode != nullptr});
    }
}

void CShadowChangedUndoEvent::m_fnSaveState(CObjectTool* pTool) {
    m_pOwnerTool = pTool;
    if (!pTool) {
        return;
    }
    Capture(*pTool, m_saved);
    SetAccumulate(FALSE);
}

BOOL CShadowChangedUndoEvent::m_fnIsSameState(const CShadowChangedUndoEvent* pOther) const {
    return HasSameRecords(
        pOther, [](const NodeShadowRecord& record) { return record.node; },
        [](const NodeShadowRecord& record, const NodeShadowRecord& other) {
            return record.node == other.node && record.offsetX == other.offsetX &&
                   record.offsetY == other.offsetY && record.softness == other.softness &&
                   record.transparency == other.transparency && record.color == other.color &&
                   record.hasShadow == other.hasShadow;
        });
}

BOOL CShadowChangedUndoEvent::Undo() {
    CUndoEvent::Undo();
    m_bUndone = !m_bUndone;
    if (!m_pOwnerTool) {
        return FALSE;
    }
    CRefresh refresh;
    CRect rc(0, 0, 0, 0);
    m_pOwnerTool->GetSelectionOutlineRect(&rc);
    refresh.Add(rc);

    SavedList live;
    Capture(*m_pOwnerTool, live);
    for (POSITION position = m_saved.GetHeadPosition(); position;) {
        RestoreShadow(m_saved.GetNext(position));
    }
    ReplaceSaved(live);

    m_pOwnerTool->GetSelectionOutlineRect(&rc);
    refresh.Add(rc);
    CCanvas canvas(*m_pOwnerTool);
    if (canvas) {
        refresh.FlushMarkRepaint(canvas.View(), *m_pOwnerTool);
    }
    m_pOwnerTool->SyncToolPanel();
    NotifyChangedThenRedrawn(*m_pOwnerTool);
    return TRUE;
}

void CShadowChangedUndoEvent::RestoreShadow(const NodeShadowRecord& record) {
    CImgNode* pNode = record.node;
    if (!record.hasShadow) {
        m_pOwnerTool->m_fnRemoveShadowOf(pNode);
        return;
    }
    if (!pNode->m_pShadowNode) {
        m_pOwnerTool->m_fnCreateShadow(pNode, Truncated(record.offsetX), Truncated(record.offsetY),
                                       &record.color, Truncated(record.softness), record.transparency);
        return;
    }
    pNode->m_shadow = {record.offsetX, record.offsetY, record.softness, record.transparency, record.color};
    m_pOwnerTool->RefreshNodeShadow(pNode, 0);
}

void CShadowMoveChangedUndoEvent::m_fnSaveState(CObjectTool* pTool) {
    CShadowChangedUndoEvent::m_fnSaveState(pTool);
    SetAccumulate(FALSE);
}
