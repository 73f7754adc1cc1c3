#include "undo/delete_node_event.h"

IMPLEMENT_DYNCREATE(CuDeleteNodeUndoEvent, CUndoEvent)

void CuDeleteNodeUndoEvent::m_fnSaveState(CTool* pTool) {
    if (!pTool) {
        return;
    }
    m_pOwnerTool = pTool;
    CopyPage(PageSnapshot(), m_before);
    const CCanvas canvas(*pTool);
    if (canvas.HasDocument()) {
        CapturePage(*pTool, canvas, m_before);
    }
    CopyPage(m_before, m_after);
    SetAccumulate(FALSE);
}

Restored CuDeleteNodeUndoEvent::Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area) {
    area.Add(Area(tool, canvas));
    if (way == Way::Undo) {
        CapturePage(tool, canvas, m_after);
    }
    WriteBackPage(tool, canvas, way == Way::Undo ? m_before : m_after);
    area.Add(Area(tool, canvas));
    return Restored::Done;
}
