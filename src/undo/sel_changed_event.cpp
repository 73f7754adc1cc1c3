#include "undo/sel_changed_event.h"

#include "host/document_service.h"
#include "host/tool_interfaces.h"
#include "ops/bus.h"
#include "ops/canvas.h"
#include "ops/refresh.h"
#include "tools/object_tool.h"

IMPLEMENT_DYNCREATE(CSelChangedUndoEvent, CUndoEvent)

namespace {

CListenerObject* CurrentToolOf(CListenerObject& seeker) {
    ICurrentToolService* pService = bus::FindService<ICurrentToolService>(seeker, kind::Document);
    return pService ? pService->GetCurrentTool() : nullptr;
}

void CopyNodes(const CImgNodeList& from, CNodeRefList& to) {
    for (POSITION position = from.GetHeadPosition(); position;) {
        to.AddTail(from.GetNext(position));
    }
}

} // namespace

CSelChangedUndoEvent::~CSelChangedUndoEvent() { m_saved.RemoveAll(); }

void CSelChangedUndoEvent::m_fnSaveState(CObjectTool* pTool) {
    m_pOwnerTool = pTool;
    if (!pTool) {
        return;
    }
    CCanvas canvas(*pTool);
    if (canvas.HasDocument()) {
        CopyNodes(canvas.Selection(), m_saved);
    }
    SetAccumulate(FALSE);
}

BOOL CSelChangedUndoEvent::m_fnIsSameState(const CSelChangedUndoEvent* pOther) const {
    return HasSameRecords(
        pOther, [](const CImgNode* pNode) { return pNode; },
        [](const CImgNode* pNode, const CImgNode* pOtherNode) { return pNode == pOtherNode; });
}

BOOL CSelChangedUndoEvent::Undo() {
    CUndoEvent::Undo();
    m_bUndone = !m_bUndone;
    if (!m_pOwnerTool) {
        return FALSE;
    }
    CCanvas canvas(*m_pOwnerTool);
    auto* pCurrent = dynamic_cast<CObjectTool*>(CurrentToolOf(*m_pOwnerTool));
    if (!canvas.HasDocument() || !pCurrent) {
        return FALSE;
    }
    CNodeRefList live;
    CopyNodes(canvas.Selection(), live);

    CRect rcBefore(0, 0, 0, 0);
    pCurrent->GetSelectionOutlineRect(&rcBefore);
    pCurrent->ShowSelectionMarks(FALSE);
    while (!canvas.Selection().IsEmpty()) {
        canvas.Selection().RemoveHead();
    }
    RestoreSelection(rcBefore);

    m_pOwnerTool = pCurrent;
    ReplaceSaved(live);
    return TRUE;
}

void CSelChangedUndoEvent::RestoreSelection(const CRect& rcBefore) {
    m_pOwnerTool->SyncToolPanel();
    m_pOwnerTool->SetSelection(m_saved, 0);
    CRect rcAfter(0, 0, 0, 0);
    m_pOwnerTool->GetSelectionOutlineRect(&rcAfter);
    CRefresh refresh;
    refresh.Add(rcBefore);
    refresh.Add(rcAfter);
    m_pOwnerTool->RedrawRect(&refresh.Area());
    m_pOwnerTool->SyncAttributePanels();
}
