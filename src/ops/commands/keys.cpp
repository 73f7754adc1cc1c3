#include "ops/commands/keys.h"

#include "ops/canvas.h"
#include "ops/excluded_node.h"
#include "ops/nodes.h"
#include "undo/recorder.h"
#include "undo/sel_changed_event.h"

namespace {

constexpr UINT DeleteKey = 46;
constexpr CPoint PasteOrigin = {8, 8}; ///< document units

void CollectObjects(CTool& tool, const CCanvas& canvas, CNodeRefList& objects) {
    CExcludedNodeScope excluded(canvas.Objects(), tool.GetExcludedNode());
    for (CImgNode* pNode : Each(canvas.Objects())) {
        if (!pNode->m_pOwner) {
            objects.AddTail(pNode);
        }
    }
}

// A running gesture selects what it moves again at its end, which would then be listed twice.
int SelectAll(CTool& tool, const CCanvas& canvas) {
    if (!tool.CanRunCommand()) {
        return 0;
    }
    CNodeRefList objects;
    CollectObjects(tool, canvas, objects);
    if (objects.GetCount() == canvas.Selection().GetCount()) {
        return 1;
    }
    CUndoRecorder<CSelChangedUndoEvent> recorder;
    if (!recorder.CaptureBefore(tool)) {
        return 0;
    }
    tool.SetSelection(objects, 1);
    if (recorder.RecordChange(tool) == Recorded::NoCapture) {
        return 0;
    }
    tool.SyncAttributePanels();
    return 1;
}

int Copy(CTool& tool, const CCanvas& canvas) {
    if (!canvas.HasSelection()) {
        return 1;
    }
    const CTxParam& tx = canvas.FirstSelected()->m_tx;
    return tool.m_fnCopy(canvas.ToClient(CPoint(tx.nX, tx.nY) + CSize(tx.nWidth / 2, tx.nHeight / 2)));
}

int Paste(CTool& tool, const CCanvas& canvas) { return tool.m_fnPaste(canvas.ToClient(PasteOrigin), 1); }

} // namespace

int keys::OnKeyDown(CTool& tool, UINT nChar) {
    if (nChar == DeleteKey && CCanvas(tool).HasSelection()) {
        tool.m_fnDelete();
    }
    return 0;
}

int keys::OnKeyUp(CTool& tool, UINT nChar) {
    const CCanvas canvas(tool);
    if (!canvas || !tool.IsCtrlDown()) {
        return 0;
    }
    switch (nChar) {
    case 'A':
    case 'a': return SelectAll(tool, canvas);
    case 'C':
    case 'c': return Copy(tool, canvas);
    case 'V':
    case 'v': return Paste(tool, canvas);
    default: return 0;
    }
}
