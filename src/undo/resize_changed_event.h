// Takes back a change of how large nodes are.
#pragma once

#include <cstdint>

#include "host/img_node_list.h"
#include "undo/undo_steps.h"

/// How large one node was: its bounds with its frame, in document units, and a text's font size in pixels.
struct NodeSizeRecord {
    std::int32_t textSize = 0;
    CRect bounds;
    CImgNode* node = nullptr;
};
/// The same node, and rectangles whose intersection is as large as their union. The text size does not count.
bool operator==(const NodeSizeRecord& record, const NodeSizeRecord& other);

/// Each step captures the current selection, not the saved nodes, for the next one.
class CResizeChangedUndoEvent : public CUndoSteps<CResizeChangedUndoEvent> {
    DECLARE_DYNCREATE(CResizeChangedUndoEvent)

  public:
    ~CResizeChangedUndoEvent() override;

    /// Saves the selected nodes' sizes, in the order of selection. A null tool saves nothing.
    void m_fnSaveState(CTool* pTool);
    BOOL m_fnIsSameState(const CResizeChangedUndoEvent* pOther) const;

  private:
    friend CUndoSteps;
    using SavedList = CList<NodeSizeRecord, const NodeSizeRecord&>;

    static void Capture(const CCanvas& canvas, SavedList& records);
    Restored Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area);

    SavedList m_saved;
    CTool* m_pOwnerTool = nullptr; ///< not owned
    BOOL m_bUndone = FALSE;
};
