#include "undo/attribute_changed_event.h"

#include <array>

#include "ops/canvas.h"
#include "ops/refresh.h"
#include "tools/object_tool.h"

IMPLEMENT_DYNCREATE(CObjectAttributeChangedUndoEvent, CUndoEvent)

namespace {

/// A node's image buffers, each owned by the node or 0.
std::array<HBUF32*, 5> BuffersOf(CImgNode& node) {
    return {&node.m_hImage, &node.m_tx.hMask, &node.m_hTransSrcImage, &node.m_hTransSrcMask,
            &node.m_hMergeBuf};
}

void FreeBuffers(CImgNode& node) {
    for (HBUF32* phBuf : BuffersOf(node)) {
        if (*phBuf) {
            buf32Free(*phBuf);
            *phBuf = 0;
        }
    }
}

// The copy is left with fewer buffers when one cannot be made: its look is used all the same.
void CopyBuffers(CImgNode& from, CImgNode& to) {
    const auto target = BuffersOf(to);
    std::size_t n = 0;
    for (const HBUF32* phBuf : BuffersOf(from)) {
        HBUF32& hCopy = *target[n++];
        if (*phBuf) {
            hCopy = buf32DupBuf(*phBuf);
            if (!hCopy) {
                return;
            }
        }
    }
}

void DeleteCopy(CImgNode* pCopy) {
    delete pCopy->m_pFrameNode;
    delete pCopy;
}

// Null when the node or its frame cannot be copied.
CImgNode* CopyWithFrame(CImgNode& node) {
    CImgNode* pCopy = node.Duplicate();
    if (!pCopy) {
        return nullptr;
    }
    if (node.m_pFrameNode) {
        pCopy->m_pFrameNode = node.m_pFrameNode->Duplicate();
        if (!pCopy->m_pFrameNode) {
            delete pCopy;
            return nullptr;
        }
        pCopy->m_pFrameNode->m_pOwner = pCopy;
    }
    pCopy->m_pShadowNode = node.m_pShadowNode;
    FreeBuffers(*pCopy);
    return pCopy;
}

} // namespace

CObjectAttributeChangedUndoEvent::~CObjectAttributeChangedUndoEvent() {
    CObjectAttributeChangedUndoEvent::Free();
}

void CObjectAttributeChangedUndoEvent::m_fnSaveState(CObjectTool* pTool, const CNodeRefList& nodes) {
    m_pOwnerTool = pTool;
    Free();
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        CImgNode* pNode = nodes.GetNext(position);
        if (pNode && !pNode->m_pOwner && !Keep(pNode)) {
            return;
        }
    }
    SetAccumulate(FALSE);
}

// False, and nothing kept of the node, when memory is out.
bool CObjectAttributeChangedUndoEvent::Keep(CImgNode* pNode) {
    CImgNode* pCopy = CopyWithFrame(*pNode);
    if (!pCopy) {
        return false;
    }
    if (!m_liveNodes.AddTail(pNode)) {
        DeleteCopy(pCopy);
        return false;
    }
    if (!m_copies.AddTail(pCopy)) {
        m_liveNodes.RemoveTail();
        DeleteCopy(pCopy);
        return false;
    }
    return true;
}

BOOL CObjectAttributeChangedUndoEvent::Accumulate(CUndoEvent*) { return TRUE; }

BOOL CObjectAttributeChangedUndoEvent::Undo() {
    CUndoEvent::Undo();
    CWaitCursor wait;
    if (!m_pOwnerTool) {
        return FALSE;
    }
    CCanvas canvas(*m_pOwnerTool);
    if (!canvas.HasDocument()) {
        return FALSE;
    }
    m_bUndone = !m_bUndone;
    CRefresh refresh;
    POSITION copy = m_copies.GetHeadPosition();
    for (POSITION live = m_liveNodes.GetHeadPosition(); live;) {
        CImgNode* pNode = m_liveNodes.GetNext(live);
        if (!canvas.Objects().Find(pNode) || !SwapLook(*pNode, m_copies.GetNext(copy), refresh)) {
            return FALSE;
        }
    }
    if (m_copies.IsEmpty()) {
        return TRUE;
    }
    m_pOwnerTool->FlushViewRect(&refresh.Area());
    m_pOwnerTool->ShowSelectionMarks(TRUE);
    m_pOwnerTool->RedrawRect(&refresh.Area());
    m_pOwnerTool->SyncToolPanel();
    m_pOwnerTool->SyncAttributePanels();
    NotifyChangedThenRedrawn(*m_pOwnerTool);
    return TRUE;
}

// The fresh copy takes the used one's place at once, so that the list holds live copies wherever the walk
// ends. False, with the node and its copy as they were, when the fresh copy cannot be made.
bool CObjectAttributeChangedUndoEvent::SwapLook(CImgNode& node, CImgNode*& pSaved, CRefresh& refresh) {
    AddMarkArea(node, refresh);
    CImgNode* pFresh = CopyWithFrame(node);
    if (!pFresh) {
        return false;
    }
    CopyBuffers(node, *pSaved);
    m_pOwnerTool->CopyNodeLook(pSaved, &node);
    DeleteCopy(pSaved);
    pSaved = pFresh;
    AddMarkArea(node, refresh);
    return true;
}

void CObjectAttributeChangedUndoEvent::AddMarkArea(CImgNode& node, CRefresh& refresh) {
    CRect rc(0, 0, 0, 0);
    m_pOwnerTool->GetNodeMarkArea(&node, &rc);
    refresh.Add(rc);
}

BOOL CObjectAttributeChangedUndoEvent::Redo() { return Undo(); }

void CObjectAttributeChangedUndoEvent::Free() {
    while (!m_copies.IsEmpty()) {
        DeleteCopy(m_copies.RemoveHead());
    }
    m_liveNodes.RemoveAll();
}

void CObjectAttributeChangedUndoEvent::Cancel() { Free(); }

BOOL CObjectAttributeChangedUndoEvent::ToolTipNeedText(tagNMTTDISPIFNOA* pText) {
    return CUndoEvent::ToolTipNeedText(pText);
}
