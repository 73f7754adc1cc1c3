// Takes back the removal of shadows. The commands that remove them record none of this class; a host may.
#pragma once

#include "host/img_node_list.h"
#include "undo/undo_steps.h"

/// One node's shadow settings before the removal, and whether it had a shadow.
struct RemovedShadowRecord {
    CShadowParam shadow;
    CImgNode* node = nullptr; ///< not owned
    BOOL hadShadow = FALSE;
};

/// Undo makes the shadows again, redo takes them off.
class CuRemoveShadowUndoEvent : public CUndoSteps<CuRemoveShadowUndoEvent> {
    DECLARE_DYNCREATE(CuRemoveShadowUndoEvent)

  public:
    ~CuRemoveShadowUndoEvent() override;

    /// Saves the selected nodes' shadows in records that the event owns. A null tool saves nothing. FALSE
    /// when a record cannot be made; the records made so far stay.
    BOOL m_fnSaveState(CTool* pTool);
    void Free() override;

  private:
    friend CUndoSteps;
    Restored Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area);

    CTool* m_pOwnerTool = nullptr; ///< not owned
    CList<RemovedShadowRecord*, RemovedShadowRecord*> m_records;
    BOOL m_bUndone = FALSE;
};
