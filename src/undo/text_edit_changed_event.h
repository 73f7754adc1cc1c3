// Takes back a change of one text object's text and box. The tools record none; a host may make one by its
// run-time class.
#pragma once

#include <memory>

#include "host/text_node.h"
#include "undo/undo_steps.h"

/// A step gives the saved text and box to the text that is selected first by then, whichever it is, and keeps
/// what it had. Its other attributes, its effect and its shadow stay; its link to a frame goes. FALSE, with
/// nothing changed but the flag, when no text is selected first or the text cannot be built.
class CTextEditChangedUndoEvent : public CUndoSteps<CTextEditChangedUndoEvent> {
    DECLARE_DYNCREATE(CTextEditChangedUndoEvent)

  public:
    /// Saves text and box of the first selected node. Another node than a text, and a null tool, leave what
    /// was saved before.
    virtual void m_fnSaveState(CTool* pTool);

  private:
    friend CUndoSteps;
    bool IsReady(CTool& tool, const CCanvas& canvas) const;
    Restored Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area);
    CRect Area(CTool& tool, const CCanvas& canvas) const;

    std::unique_ptr<CTextNode> BuildSavedText(CTool& tool, const CTextNode& like);

    CTool* m_pOwnerTool = nullptr; ///< not owned
    CString m_strText;
    CRect m_rcBox{0, 0, 0, 0}; ///< document units
    BOOL m_bUndone = FALSE;
};
