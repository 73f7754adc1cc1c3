#include "undo/arrange_event.h"

#include "ops/nodes.h"
#include "undo/page_snapshot.h"

IMPLEMENT_DYNCREATE(CuArrangeUndoEvent, CUndoEvent)

CuArrangeUndoEvent::~CuArrangeUndoEvent() { CuArrangeUndoEvent::Free(); }

void CuArrangeUndoEvent::m_fnSaveState(CTool* pTool) {
    m_pOwnerTool = pTool;
    if (!pTool) {
        return;
    }
    m_saved.RemoveAll();
    const CCanvas canvas(*pTool);
    if (canvas.HasDocument()) {
        CaptureObjects(canvas, m_saved);
    }
    SetAccumulate(FALSE);
}

Restored CuArrangeUndoEvent::Restore(Way, CTool&, const CCanvas& canvas, CRefresh&) {
    CNodeRefList live;
    CaptureObjects(canvas, live);
    WriteBackObjects(canvas, m_saved);
    CopyList(live, m_saved);
    return Restored::Done;
}

void CuArrangeUndoEvent::Free() { m_saved.RemoveAll(); }
