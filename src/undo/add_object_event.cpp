#include "undo/add_object_event.h"

IMPLEMENT_DYNCREATE(CAddObjectUndoEvent, CUndoEvent)

void CAddObjectUndoEvent::m_fnSaveState(CTool* pTool) {
    if (pTool) {
        m_pOwnerTool = pTool;
        m_pages.Capture(*pTool);
        SetAccumulate(FALSE);
    }
}

Restored CAddObjectUndoEvent::Restore(Way, CTool& tool, const CCanvas& canvas, CRefresh& area) {
    m_pages.Exchange(tool, canvas, area);
    return Restored::Done;
}
