#include "undo/display_event.h"

#include <memory>
#include <new>

#include "ops/canvas.h"
#include "ops/refresh.h"
#include "tools/object_tool.h"

IMPLEMENT_DYNCREATE(CuDisplayUndoEvent, CUndoEvent)

namespace {

constexpr int KeepValue = -1; ///< asks for the value that the node has

int Wanted(int nNew, int nLive) { return nNew == KeepValue ? nLive : nNew; }

} // namespace

CuDisplayUndoEvent::CuDisplayUndoEvent(CObjectTool* pTool, const CNodeRefList& nodes, int nBrightness,
                                       int nContrast, int nTransparency)
    : m_pOwnerTool(pTool), m_nNewBrightness(nBrightness), m_nNewContrast(nContrast),
      m_nNewTransparency(nTransparency) {
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        CImgNode* pNode = nodes.GetNext(position);
        if (!pNode) {
            continue;
        }
        std::unique_ptr<NodeDisplayRecord> pRecord(new (std::nothrow) NodeDisplayRecord{
            pNode->m_nBrightness, pNode->m_nContrast, pNode->m_nTransparency, pNode});
        if (!pRecord || !m_records.AddTail(pRecord.get())) {
            return;
        }
        pRecord.release();
    }
}

CuDisplayUndoEvent::~CuDisplayUndoEvent() { CuDisplayUndoEvent::Free(); }

BOOL CuDisplayUndoEvent::Accumulate(CUndoEvent*) { return FALSE; }

BOOL CuDisplayUndoEvent::Undo() {
    CUndoEvent::Undo();
    m_bUndone = TRUE;
    if (!m_pOwnerTool) {
        return FALSE;
    }
    m_pOwnerTool->SyncToolPanel();
    for (POSITION position = m_records.GetHeadPosition(); position;) {
        const NodeDisplayRecord& record = *m_records.GetNext(position);
        record.node->m_fnUpdateBCAndT(record.brightness, record.contrast, record.transparency);
    }
    RefreshPage();
    return TRUE;
}

BOOL CuDisplayUndoEvent::Redo() {
    CUndoEvent::Redo();
    m_bUndone = FALSE;
    if (!m_pOwnerTool) {
        return FALSE;
    }
    m_pOwnerTool->SyncToolPanel();
    for (POSITION position = m_records.GetHeadPosition(); position;) {
        ApplyNewValues(*m_records.GetNext(position)->node);
    }
    RefreshPage();
    return TRUE;
}

void CuDisplayUndoEvent::ApplyNewValues(CImgNode& node) const {
    node.m_fnUpdateBCAndT(Wanted(m_nNewBrightness, node.m_nBrightness),
                          Wanted(m_nNewContrast, node.m_nContrast),
                          Wanted(m_nNewTransparency, node.m_nTransparency));
}

// Display values change no bounds, so the one rectangle taken after the change is that of before, too.
void CuDisplayUndoEvent::RefreshPage() {
    CCanvas canvas(*m_pOwnerTool);
    if (canvas) {
        CRect rc(0, 0, 0, 0);
        m_pOwnerTool->GetSelectionRect(&rc);
        CRefresh refresh;
        refresh.Add(rc);
        refresh.FlushMarkRepaint(canvas.View(), *m_pOwnerTool);
    }
    m_pOwnerTool->SyncAttributePanels();
    NotifyChangedThenRedrawn(*m_pOwnerTool);
}

void CuDisplayUndoEvent::Free() {
    while (!m_records.IsEmpty()) {
        delete m_records.RemoveHead();
    }
}

void CuDisplayUndoEvent::Cancel() { Free(); }

BOOL CuDisplayUndoEvent::ToolTipNeedText(tagNMTTDISPIFNOA*) { return TRUE; }
