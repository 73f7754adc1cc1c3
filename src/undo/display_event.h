// Takes back a change of display values: brightness, contrast and transparency.
#pragma once

#include <cstdint>

#include "host/img_node_list.h"
#include "undo/undo_steps.h"

/// One node's display values before the change.
struct NodeDisplayRecord {
    std::int32_t brightness = 0;
    std::int32_t contrast = 0;
    std::int32_t transparency = 0;
    CImgNode* node = nullptr; ///< not owned
};

/// Undo gives each node its saved values, redo gives every node the new ones.
class CuDisplayUndoEvent : public CUndoSteps<CuDisplayUndoEvent> {
    DECLARE_DYNCREATE(CuDisplayUndoEvent)

  public:
    CuDisplayUndoEvent() = default;
    /// Saves the nodes' values as they are, in the order of the list. The new values are what the change asks
    /// for; -1 keeps each node's own. When memory is out the nodes from there on have no record: undo and
    /// redo leave them alone.
    CuDisplayUndoEvent(CTool* pTool, const CNodeRefList& nodes, int nBrightness, int nContrast,
                       int nTransparency);
    ~CuDisplayUndoEvent() override;

    void Free() override;

  private:
    friend CUndoSteps;
    Restored Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area);
    CRect Area(CTool& tool, const CCanvas&) const { return SelectionRect(tool); }
    void ApplyNewValues(CImgNode& node) const;

    CTool* m_pOwnerTool = nullptr; ///< not owned
    CList<NodeDisplayRecord*, NodeDisplayRecord*> m_records;
    std::int32_t m_nNewBrightness = 0;
    std::int32_t m_nNewContrast = 0;
    std::int32_t m_nNewTransparency = 0;
    BOOL m_bUndone = FALSE; ///< TRUE after Undo, FALSE after Redo
};
