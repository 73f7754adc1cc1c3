#include "undo/resize_changed_event.h"

#include "ops/nodes.h"
#include "ops/objects/resize.h"
#include "text/object/text_attributes.h"
#include "text/object/text_replace.h"
#include "undo/same_records.h"

IMPLEMENT_DYNCREATE(CResizeChangedUndoEvent, CUndoEvent)

namespace {

void RestoreSize(CTool& tool, const NodeSizeRecord& record) {
    if (AsText(record.node)) {
        const CPoint ptCorner = record.bounds.TopLeft();
        RebuildTextAtSize(tool, record.node, record.textSize, &ptCorner);
    } else {
        ResizeObject(tool, record.node, record.bounds);
    }
    tool.OnNodeResized(record.node);
}

} // namespace

bool operator==(const NodeSizeRecord& record, const NodeSizeRecord& other) {
    return record.node == other.node && CoverEachOther(record.bounds, other.bounds);
}

CResizeChangedUndoEvent::~CResizeChangedUndoEvent() { m_saved.RemoveAll(); }

void CResizeChangedUndoEvent::Capture(const CCanvas& canvas, SavedList& records) {
    records.RemoveAll();
    if (!canvas.HasDocument()) {
        return;
    }
    for (CImgNode* pNode : Each(canvas.Selection())) {
        const CTextNode* pText = AsText(pNode);
        records.AddTail({pText ? pText->m_nFontSize : 0, pNode->m_fnGetBoundRectWithFrame(), pNode});
    }
}

void CResizeChangedUndoEvent::m_fnSaveState(CTool* pTool) {
    m_pOwnerTool = pTool;
    if (pTool) {
        Capture(CCanvas(*pTool), m_saved);
        SetAccumulate(FALSE);
    }
}

BOOL CResizeChangedUndoEvent::m_fnIsSameState(const CResizeChangedUndoEvent* pOther) const {
    return IsSameState(*this, pOther, &CResizeChangedUndoEvent::m_saved);
}

Restored CResizeChangedUndoEvent::Restore(Way, CTool& tool, const CCanvas& canvas, CRefresh&) {
    SavedList live;
    Capture(canvas, live);
    for (const NodeSizeRecord& record : Each(m_saved)) {
        RestoreSize(tool, record);
    }
    CopyList(live, m_saved);
    return Restored::Done;
}
