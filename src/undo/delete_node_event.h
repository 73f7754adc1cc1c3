// Takes back a deletion. The delete command records none; a host may.
#pragma once

#include "undo/page_snapshot.h"
#include "undo/undo_steps.h"

/// Captured before the deletion. The first undo finds the page as the deletion left it and keeps that for
/// redo. The event deletes no node.
class CuDeleteNodeUndoEvent : public CUndoSteps<CuDeleteNodeUndoEvent> {
    DECLARE_DYNCREATE(CuDeleteNodeUndoEvent)

  public:
    /// Saves the tool's page. A null tool saves nothing.
    void m_fnSaveState(CTool* pTool);

  private:
    friend CUndoSteps;
    Restored Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area);

    CTool* m_pOwnerTool = nullptr; ///< not owned
    PageSnapshot m_before;
    PageSnapshot m_after;
    BOOL m_bUndone = FALSE;
};
