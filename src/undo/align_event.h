// Takes back a change of places and sizes by alignment or distribution. Those commands record none; a host
// may.
#pragma once

#include "undo/move_changed_event.h"
#include "undo/undo_steps.h"

class CuAlignUndoEvent : public CUndoSteps<CuAlignUndoEvent> {
    DECLARE_DYNCREATE(CuAlignUndoEvent)

  public:
    ~CuAlignUndoEvent() override;

    /// Saves the selected nodes' rectangles in records that the event owns. A null tool saves nothing. FALSE
    /// when a record cannot be made; the records made so far stay.
    BOOL m_fnSaveState(CTool* pTool);
    void Free() override;

  private:
    friend CUndoSteps;
    Restored Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area);
    CRect Area(CTool& tool, const CCanvas& canvas) const;

    CList<NodeRectRecord*, NodeRectRecord*> m_saved;
    CTool* m_pOwnerTool = nullptr; ///< not owned
    BOOL m_bUndone = FALSE;
};
