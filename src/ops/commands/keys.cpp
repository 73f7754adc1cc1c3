// The keyboard shortcuts, which act when a key is released while Ctrl is held.
#include "host/object_clipboard.h"
#include "ops/bus.h"
#include "ops/excluded_node.h"
#include "tools/tool_core.h"
#include "undo/recorder.h"
#include "undo/sel_changed_event.h"

namespace {

constexpr CPoint PasteOrigin = {8, 8}; ///< document units

IObjectClipboard* FindClipboard(CListenerObject& seeker) {
    return bus::Query<IObjectClipboard>(bus::FindObject(seeker, EditCategoryId, edit_kind::ObjectClipboard));
}

} // namespace

int CToolCore::OnKeyUp(UINT nChar, UINT, UINT) {
    CCanvas canvas(*this);
    // A command in the middle of a gesture would select what the gesture selects again at its end.
    if (!canvas || !IsCtrlDown() || !CanRunCommand()) {
        return 0;
    }
    switch (nChar) {
    case 'A':
    case 'a': return SelectAll(canvas);
    case 'C':
    case 'c': return CopyByKey(canvas);
    case 'V':
    case 'v': return PasteByKey(canvas);
    default: return 0;
    }
}

int CToolCore::SelectAll(CCanvas& canvas) {
    CNodeRefList objects;
    {
        CExcludedNodeScope excluded(canvas.Objects(), GetExcludedNode());
        for (POSITION position = canvas.Objects().GetHeadPosition(); position;) {
            CImgNode* pNode = canvas.Objects().GetNext(position);
            if (!pNode->m_pOwner) {
                objects.AddTail(pNode);
            }
        }
    }
    if (objects.GetCount() == canvas.Selection().GetCount()) {
        return 1;
    }
    CUndoRecorder<CSelChangedUndoEvent> recorder(AsObjectTool());
    if (!recorder.CaptureBefore()) {
        return 0;
    }
    SetSelection(objects, 1);
    if (!recorder.RecordChange()) {
        return 0;
    }
    SyncAttributePanels();
    return 1;
}

int CToolCore::CopyByKey(CCanvas& canvas) {
    if (canvas.Selection().IsEmpty()) {
        return 1;
    }
    const CTxParam& tx = canvas.Selection().GetHead()->m_tx;
    return m_fnCopy(canvas.ToClient(CPoint(tx.nX, tx.nY) + CSize(tx.nWidth / 2, tx.nHeight / 2)));
}

int CToolCore::PasteByKey(CCanvas& canvas) { return m_fnPaste(canvas.ToClient(PasteOrigin), 1); }

int CToolCore::m_fnCopy(CPoint point) {
    IObjectClipboard* pClipboard = FindClipboard(*this);
    return pClipboard ? pClipboard->Copy(point) : 0;
}

int CToolCore::m_fnPaste(CPoint point, int nFlag) {
    IObjectClipboard* pClipboard = FindClipboard(*this);
    return pClipboard ? pClipboard->Paste(point, nFlag) : 0;
}
