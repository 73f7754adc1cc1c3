// Takes back a change of one text object's text and box. The tools record none; a host may make one by its
// run-time class.
#pragma once

#include <memory>

#include "host/text_node.h"
#include "host/undo.h"

class CObjectTool;

/// Members stand in this order: owner tool, saved text, saved box, undone flag.
class CTextEditChangedUndoEvent : public CUndoEvent {
    DECLARE_DYNCREATE(CTextEditChangedUndoEvent)

  public:
    /// Saves text and box of the first selected node. Another node than a text, and a null tool, leave what
    /// was saved before.
    virtual void m_fnSaveState(CObjectTool* pTool);

    BOOL Accumulate(CUndoEvent* pNext) override;
    /// Gives the saved text and box to the text that is selected first now, whichever it is, and keeps what
    /// it had. Its other attributes, its effect and its shadow stay; its link to a frame goes. FALSE, with
    /// nothing changed but the flag, when there is no owner tool, no text is selected first, or the text
    /// cannot be built.
    BOOL Undo() override;
    BOOL Redo() override;
    void Free() override;
    void Cancel() override;
    BOOL ToolTipNeedText(tagNMTTDISPIFNOA* pText) override;

    BOOL IsUndone() const { return m_bUndone; }
    CObjectTool* OwnerTool() const { return m_pOwnerTool; }

  private:
    std::unique_ptr<CTextNode> BuildSavedText(const CTextNode& like);
    void SwapWith(CTextNode& node, CTextNode& built);

    CObjectTool* m_pOwnerTool = nullptr; ///< not owned
    CString m_strText;
    CRect m_rcBox{0, 0, 0, 0}; ///< document units
    BOOL m_bUndone = FALSE;
};
