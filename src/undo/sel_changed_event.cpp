#include "undo/sel_changed_event.h"

#include "ops/current_tool.h"
#include "ops/nodes.h"
#include "ops/selection.h"
#include "undo/same_records.h"

IMPLEMENT_DYNCREATE(CSelChangedUndoEvent, CUndoEvent)

namespace {

CTool* CurrentToolOf(CTool& tool) { return dynamic_cast<CTool*>(CurrentTool(tool)); }

} // namespace

CSelChangedUndoEvent::~CSelChangedUndoEvent() { m_saved.RemoveAll(); }

void CSelChangedUndoEvent::m_fnSaveState(CTool* pTool) {
    m_pOwnerTool = pTool;
    if (!pTool) {
        return;
    }
    const CCanvas canvas(*pTool);
    if (canvas.HasDocument()) {
        for (CImgNode* pNode : Each(canvas.Selection())) {
            m_saved.AddTail(pNode);
        }
    }
    SetAccumulate(FALSE);
}

BOOL CSelChangedUndoEvent::m_fnIsSameState(const CSelChangedUndoEvent* pOther) const {
    return IsSameState(*this, pOther, &CSelChangedUndoEvent::m_saved);
}

bool CSelChangedUndoEvent::IsReady(CTool& tool, const CCanvas&) const {
    return CurrentToolOf(tool) != nullptr;
}

// The marks that are on the page are the current tool's; those that come are the owner's.
Restored CSelChangedUndoEvent::Restore(Way, CTool& tool, const CCanvas& canvas, CRefresh& area) {
    CTool& current = *CurrentToolOf(tool);
    CNodeRefList live;
    CopyList(canvas.Selection(), live);
    area.Add(SelectionOutlineRect(current));
    current.ShowSelectionMarks(FALSE);
    ClearSelection(canvas);

    tool.SyncToolPanel();
    tool.SetSelection(m_saved, 0);
    area.Add(SelectionOutlineRect(tool));
    m_pOwnerTool = &current;
    CopyList(live, m_saved);
    return Restored::Done;
}
