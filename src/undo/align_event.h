// Takes back a change of places and sizes by alignment or distribution. Those commands record none; a host
// may.
#pragma once

#include <memory>

#include "host/img_node_list.h"
#include "undo/move_changed_event.h"

class CuAlignUndoEvent : public CToggleUndoEvent<NodeRectRecord*, NodeRectRecord*> {
    DECLARE_DYNCREATE(CuAlignUndoEvent)

  public:
    ~CuAlignUndoEvent() override;

    /// Saves the selected nodes' rectangles in records that the event owns. A null tool saves nothing. FALSE
    /// when a record cannot be made; the records made so far stay.
    BOOL m_fnSaveState(CObjectTool* pTool);

    BOOL Accumulate(CUndoEvent* pNext) override;
    /// FALSE when the owner tool or its document is missing.
    BOOL Undo() override;
    void Free() override;
    BOOL ToolTipNeedText(tagNMTTDISPIFNOA* pText) override;

  private:
    void RestoreRect(NodeRectRecord& record);
};
