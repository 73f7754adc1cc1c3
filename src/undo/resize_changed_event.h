// Takes back a change of how large nodes are.
#pragma once

#include <cstdint>

#include "host/img_node_list.h"
#include "undo/toggle_event.h"

/// How large one node was: its bounds with its frame, in document units, and a text's font size in pixels.
struct NodeSizeRecord {
    std::int32_t textSize = 0;
    CRect bounds;
    CImgNode* node = nullptr;
};

class CResizeChangedUndoEvent : public CToggleUndoEvent<NodeSizeRecord> {
    DECLARE_DYNCREATE(CResizeChangedUndoEvent)

  public:
    ~CResizeChangedUndoEvent() override;

    /// Saves the selected nodes' sizes, in the order of selection. A null tool saves nothing.
    void m_fnSaveState(CObjectTool* pTool);
    /// The text size is not compared.
    BOOL m_fnIsSameState(const CResizeChangedUndoEvent* pOther) const;

    /// Captures the current selection, not the saved nodes, for the next undo.
    BOOL Undo() override;

  private:
    static void Capture(CObjectTool& tool, SavedList& records);
    void RestoreSizes();
};
