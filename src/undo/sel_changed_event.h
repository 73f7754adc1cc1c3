// Takes back a change of which nodes are selected.
#pragma once

#include "host/img_node_list.h"
#include "undo/undo_steps.h"

/// The current tool becomes the owner at each step; nobody is notified.
class CSelChangedUndoEvent : public CUndoSteps<CSelChangedUndoEvent> {
    DECLARE_DYNCREATE(CSelChangedUndoEvent)

  public:
    ~CSelChangedUndoEvent() override;

    /// Saves the selection of the tool's document, in the order of selection. A null tool saves nothing.
    void m_fnSaveState(CTool* pTool);
    BOOL m_fnIsSameState(const CSelChangedUndoEvent* pOther) const;

  private:
    friend CUndoSteps;
    bool IsReady(CTool& tool, const CCanvas& canvas) const;
    Restored Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area);

    CNodeRefList m_saved;
    CTool* m_pOwnerTool = nullptr; ///< not owned
    BOOL m_bUndone = FALSE;
};
