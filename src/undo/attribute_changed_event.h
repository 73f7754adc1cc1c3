// Takes back a change of any attributes of objects, by whole copies of them.
#pragma once

#include "host/img_node_list.h"
#include "undo/undo_steps.h"

/// The copies are the event's, each with a copy of its node's frame; they hold no pixels of their own, and
/// their shadow link, which only tells that there was a shadow, is never followed.
///
/// A step gives each live node its copy's look and keeps a fresh copy of the node as it was. It answers FALSE
/// without a refresh when a node is off the page or cannot be copied. The walk ends there; nodes before it
/// have swapped with their copies and those behind it have not. So every copy stays usable, and the next call
/// swaps the same nodes back, and the rest as well if it then gets that far.
class CObjectAttributeChangedUndoEvent : public CUndoSteps<CObjectAttributeChangedUndoEvent> {
    DECLARE_DYNCREATE(CObjectAttributeChangedUndoEvent)

  public:
    ~CObjectAttributeChangedUndoEvent() override;

    /// Copies the listed nodes but companions, in place of what was saved before. A copy that cannot be made
    /// ends the capture; the pairs made so far stay.
    virtual void m_fnSaveState(CTool* pTool, const CNodeRefList& nodes);
    void Free() override;

    /// How many nodes the event holds a copy of.
    int CopyCount() const { return m_copies.GetCount(); }

  private:
    friend CUndoSteps;
    Restored Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area);
    bool Keep(CImgNode* pNode);

    CTool* m_pOwnerTool = nullptr; ///< not owned
    CNodeRefList m_copies;         ///< owned
    CNodeRefList m_liveNodes;      ///< not owned; the copies' nodes, in the same order
    BOOL m_bUndone = FALSE;
};
