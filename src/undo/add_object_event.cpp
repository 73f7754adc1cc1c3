#include "undo/add_object_event.h"

IMPLEMENT_DYNCREATE(CAddObjectUndoEvent, CUndoEvent)

void CAddObjectUndoEvent::m_fnSaveState(CTool* pTool) {
    if (!pTool) {
        return;
    }
    m_pOwnerTool = pTool;
    const CCanvas canvas(*pTool);
    if (canvas.HasDocument()) {
        CapturePage(*pTool, canvas, m_restore);
        CapturePage(*pTool, canvas, m_previous);
    } else {
        CopyPage(PageSnapshot(), m_restore);
        CopyPage(PageSnapshot(), m_previous);
    }
    SetAccumulate(FALSE);
}

Restored CAddObjectUndoEvent::Restore(Way, CTool& tool, const CCanvas& canvas, CRefresh& area) {
    PageSnapshot live;
    CapturePage(tool, canvas, live);
    area.Add(Area(tool, canvas));
    WriteBackPage(tool, canvas, m_restore);
    CopyPage(m_restore, m_previous);
    CopyPage(live, m_restore);
    area.Add(Area(tool, canvas));
    return Restored::Done;
}
