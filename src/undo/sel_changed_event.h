// Takes back a change of which nodes are selected.
#pragma once

#include "host/img_node_list.h"
#include "undo/toggle_event.h"

class CSelChangedUndoEvent : public CToggleUndoEvent<CImgNode*, CImgNode*> {
    DECLARE_DYNCREATE(CSelChangedUndoEvent)

  public:
    ~CSelChangedUndoEvent() override;

    /// Saves the selection of the tool's document, in the order of selection. A null tool saves nothing.
    void m_fnSaveState(CObjectTool* pTool);
    BOOL m_fnIsSameState(const CSelChangedUndoEvent* pOther) const;

    /// FALSE when the owner tool, its document or the current tool is missing; the flag has flipped all the
    /// same. The current tool becomes the owner. Notifies nobody.
    BOOL Undo() override;

  private:
    void RestoreSelection(const CRect& rcBefore);
};
