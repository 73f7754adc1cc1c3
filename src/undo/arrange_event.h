// Takes back a change of the stacking order. The stacking moves record none; a host may.
#pragma once

#include "host/img_node_list.h"
#include "undo/undo_steps.h"

/// The order is that of the top-level objects: each brings the companions that it has by then.
class CuArrangeUndoEvent : public CUndoSteps<CuArrangeUndoEvent> {
    DECLARE_DYNCREATE(CuArrangeUndoEvent)

  public:
    ~CuArrangeUndoEvent() override;

    /// Saves the order of the page's objects. A null tool saves nothing.
    void m_fnSaveState(CTool* pTool);
    void Free() override;

  private:
    friend CUndoSteps;
    Restored Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area);

    CNodeRefList m_saved;
    CTool* m_pOwnerTool = nullptr; ///< not owned
    BOOL m_bUndone = FALSE;
};
