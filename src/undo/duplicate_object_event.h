// Takes back the objects that a duplication made. The module duplicates without an undo step; a host may
// record one.
#pragma once

#include "undo/page_snapshot.h"
#include "undo/undo_steps.h"

/// As with added objects, what an undo takes off the page stays the document's.
class CDuplicateObjectUndoEvent : public CUndoSteps<CDuplicateObjectUndoEvent> {
    DECLARE_DYNCREATE(CDuplicateObjectUndoEvent)

  public:
    /// Saves the tool's page in both snapshots. A null tool saves nothing.
    void m_fnSaveState(CTool* pTool);

  private:
    friend CUndoSteps;
    Restored Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area);

    CTool* m_pOwnerTool = nullptr; ///< not owned
    PageSwap m_pages;
    BOOL m_bUndone = FALSE;
};
