// Takes back a change of where nodes stand.
#pragma once

#include "host/img_node_list.h"
#include "undo/undo_steps.h"

/// Where one node stood: its bounds with its frame, in document units.
struct NodeRectRecord {
    CRect bounds;
    CImgNode* node = nullptr;
};
/// The same node, and rectangles whose intersection is as large as their union.
bool operator==(const NodeRectRecord& record, const NodeRectRecord& other);

class CMoveChangedUndoEvent : public CUndoSteps<CMoveChangedUndoEvent> {
    DECLARE_DYNCREATE(CMoveChangedUndoEvent)

  public:
    ~CMoveChangedUndoEvent() override;

    /// Saves the selected nodes' places, in the order of selection. A null tool saves nothing.
    void m_fnSaveState(CTool* pTool);
    BOOL m_fnIsSameState(const CMoveChangedUndoEvent* pOther) const;

  private:
    friend CUndoSteps;
    Restored Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area);
    CRect Area(CTool& tool, const CCanvas& canvas) const;

    CList<NodeRectRecord, const NodeRectRecord&> m_saved;
    CTool* m_pOwnerTool = nullptr; ///< not owned
    BOOL m_bUndone = FALSE;
};
