// Takes back that objects were added to the page.
#pragma once

#include "undo/page_snapshot.h"
#include "undo/undo_steps.h"

/// The event deletes no node: what an undo takes off the page stays the document's, and comes back on redo.
class CAddObjectUndoEvent : public CUndoSteps<CAddObjectUndoEvent> {
    DECLARE_DYNCREATE(CAddObjectUndoEvent)

  public:
    /// Saves the tool's page in both snapshots. A null tool saves nothing.
    virtual void m_fnSaveState(CTool* pTool);

  private:
    friend CUndoSteps;
    Restored Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area);

    CTool* m_pOwnerTool = nullptr; ///< not owned
    PageSwap m_pages;
    BOOL m_bUndone = FALSE;
};
