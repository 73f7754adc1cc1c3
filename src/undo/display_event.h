// Takes back a change of display values: brightness, contrast and transparency.
#pragma once

#include <cstdint>

#include "host/img_node_list.h"
#include "host/undo.h"

class CObjectTool;

/// One node's display values before the change.
struct NodeDisplayRecord {
    std::int32_t brightness = 0;
    std::int32_t contrast = 0;
    std::int32_t transparency = 0;
    CImgNode* node = nullptr; ///< not owned
};

/// Members stand in this order: owner tool, records, new values, undone flag.
class CuDisplayUndoEvent : public CUndoEvent {
    DECLARE_DYNCREATE(CuDisplayUndoEvent)

  public:
    CuDisplayUndoEvent() = default;
    /// Saves the nodes' values as they are, in the order of the list. The new values are what the change asks
    /// for; -1 keeps each node's own. When memory is out the nodes from there on have no record: undo and
    /// redo leave them alone.
    CuDisplayUndoEvent(CObjectTool* pTool, const CNodeRefList& nodes, int nBrightness, int nContrast,
                       int nTransparency);
    ~CuDisplayUndoEvent() override;

    BOOL Accumulate(CUndoEvent* pNext) override;
    /// Gives each node its saved values. FALSE, with the flag set, when there is no owner tool.
    BOOL Undo() override;
    /// Gives every node the new values. FALSE like `Undo`.
    BOOL Redo() override;
    void Free() override;
    void Cancel() override;
    BOOL ToolTipNeedText(tagNMTTDISPIFNOA* pText) override;

    BOOL IsUndone() const { return m_bUndone; }
    CObjectTool* OwnerTool() const { return m_pOwnerTool; }

  private:
    void ApplyNewValues(CImgNode& node) const;
    void RefreshPage();

    CObjectTool* m_pOwnerTool = nullptr; ///< not owned
    CList<NodeDisplayRecord*, NodeDisplayRecord*> m_records;
    std::int32_t m_nNewBrightness = 0;
    std::int32_t m_nNewContrast = 0;
    std::int32_t m_nNewTransparency = 0;
    BOOL m_bUndone = FALSE; ///< TRUE after Undo, FALSE after Redo
};
