// Takes back a change of where nodes stand.
#pragma once

#include "host/img_node_list.h"
#include "undo/toggle_event.h"

/// Where one node stood: its bounds with its frame, in document units.
struct NodeRectRecord {
    CRect bounds;
    CImgNode* node = nullptr;
};

class CMoveChangedUndoEvent : public CToggleUndoEvent<NodeRectRecord> {
    DECLARE_DYNCREATE(CMoveChangedUndoEvent)

  public:
    ~CMoveChangedUndoEvent() override;

    /// Saves the selected nodes' places, in the order of selection. A null tool saves nothing.
    void m_fnSaveState(CObjectTool* pTool);
    /// Places are the same when the two rectangles' intersection is as large as their union.
    BOOL m_fnIsSameState(const CMoveChangedUndoEvent* pOther) const;

    /// FALSE, with the flag as it was, when there is no owner tool.
    BOOL Undo() override;

  private:
    void RestorePlaces();
};
