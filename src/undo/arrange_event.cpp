#include "undo/arrange_event.h"

#include "ops/canvas.h"
#include "ops/refresh.h"
#include "tools/object_tool.h"

IMPLEMENT_DYNCREATE(CuArrangeUndoEvent, CUndoEvent)

namespace {

void CopyOrder(const CImgNodeList& objects, CNodeRefList& order) {
    for (POSITION position = objects.GetHeadPosition(); position;) {
        order.AddTail(objects.GetNext(position));
    }
}

} // namespace

CuArrangeUndoEvent::~CuArrangeUndoEvent() { m_saved.RemoveAll(); }

void CuArrangeUndoEvent::m_fnSaveState(CObjectTool* pTool) {
    m_pOwnerTool = pTool;
    if (!pTool) {
        return;
    }
    m_saved.RemoveAll();
    CCanvas canvas(*pTool);
    if (canvas.HasDocument()) {
        CopyOrder(canvas.Objects(), m_saved);
    }
    SetAccumulate(FALSE);
}

BOOL CuArrangeUndoEvent::Accumulate(CUndoEvent*) { return FALSE; }

BOOL CuArrangeUndoEvent::Undo() {
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
    CRefresh refresh;
    CRect rc(0, 0, 0, 0);
    m_pOwnerTool->GetSelectionOutlineRect(&rc);
    refresh.Add(rc);

    CNodeRefList live;
    CopyOrder(canvas.Objects(), live);
    canvas.Objects().RemoveAll();
    for (POSITION position = m_saved.GetHeadPosition(); position;) {
        canvas.Objects().AddTail(m_saved.GetNext(position));
    }
    ReplaceSaved(live);

    m_pOwnerTool->GetSelectionOutlineRect(&rc);
    refresh.Add(rc);
    refresh.FlushMarkRepaint(canvas.View(), *m_pOwnerTool);
    m_pOwnerTool->SyncAttributePanels();
    NotifyChangedThenRedrawn(*m_pOwnerTool);
    return TRUE;
}

void CuArrangeUndoEvent::Free() { m_saved.RemoveAll(); }

BOOL CuArrangeUndoEvent::ToolTipNeedText(tagNMTTDISPIFNOA* pText) {
    return CUndoEvent::ToolTipNeedText(pText);
}
