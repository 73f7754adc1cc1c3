// Takes back that objects were added to the page.
#pragma once

#include <cstdint>

#include "host/img_node_list.h"
#include "host/undo.h"

class CCanvas;
class CObjectTool;

/// A page as it was: its top-level objects from front to back and the value that the host kept for each, and
/// its selection in the order of selection. Nodes are not owned.
struct PageSnapshot {
    CList<std::int32_t, std::int32_t> values;
    CNodeRefList objects;
    CNodeRefList selection;
};

/// Members stand in this order: owner tool, the two snapshots, undone flag. The event deletes no node: what
/// an undo takes off the page stays the document's, and comes back on redo.
class CAddObjectUndoEvent : public CUndoEvent {
    DECLARE_DYNCREATE(CAddObjectUndoEvent)

  public:
    ~CAddObjectUndoEvent() override;

    /// Saves the tool's page in both snapshots. A null tool saves nothing.
    virtual void m_fnSaveState(CObjectTool* pTool);

    BOOL Accumulate(CUndoEvent* pNext) override;
    /// Puts the page back as the snapshot has it, each object with the companions that it has now, and keeps
    /// the page as it was for the next call. FALSE when the owner tool or its document is missing; the flag
    /// has flipped all the same.
    BOOL Undo() override;
    BOOL Redo() override;
    void Free() override;
    void Cancel() override;
    BOOL ToolTipNeedText(tagNMTTDISPIFNOA* pText) override;

    BOOL IsUndone() const { return m_bUndone; }
    CObjectTool* OwnerTool() const { return m_pOwnerTool; }

  private:
    void CaptureValues(const CCanvas& canvas, PageSnapshot& page);
    void RestoreNodes(const CCanvas& canvas);
    void RestoreValues();
    CRect SelectionArea();

    CObjectTool* m_pOwnerTool = nullptr; ///< not owned
    PageSnapshot m_previous;             ///< what the last undo put back
    PageSnapshot m_restore;              ///< what the next undo puts back
    BOOL m_bUndone = FALSE;
};
