// Takes back a change of the stacking order. The stacking moves record none; a host may.
#pragma once

#include "host/img_node_list.h"
#include "undo/toggle_event.h"

class CuArrangeUndoEvent : public CToggleUndoEvent<CImgNode*, CImgNode*> {
    DECLARE_DYNCREATE(CuArrangeUndoEvent)

  public:
    ~CuArrangeUndoEvent() override;

    /// Saves the order of the page's nodes. A null tool saves nothing.
    void m_fnSaveState(CObjectTool* pTool);

    BOOL Accumulate(CUndoEvent* pNext) override;
    /// FALSE when the owner tool or its document is missing.
    BOOL Undo() override;
    void Free() override;
    BOOL ToolTipNeedText(tagNMTTDISPIFNOA* pText) override;
};
