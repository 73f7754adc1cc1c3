#include "undo/duplicate_object_event.h"

IMPLEMENT_DYNCREATE(CDuplicateObjectUndoEvent, CUndoEvent)

void CDuplicateObjectUndoEvent::m_fnSaveState(CTool* pTool) {
    if (pTool) {
        m_pOwnerTool = pTool;
        m_pages.Capture(*pTool);
        SetAccumulate(FALSE);
    }
}

Restored CDuplicateObjectUndoEvent::Restore(Way, CTool& tool, const CCanvas& canvas, CRefresh& area) {
    m_pages.Exchange(tool, canvas, area);
    return Restored::Done;
}
