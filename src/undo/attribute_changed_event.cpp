#include "undo/attribute_changed_event.h"

#include <array>

#include "ops/nodes.h"

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

// The fresh copy takes the used one's place at once, so that the list holds live copies wherever the walk
// ends. False, with the node and its copy as they were, when the fresh copy cannot be made.
bool SwapLook(CTool& tool, CImgNode& node, CImgNode*& pSaved, CRefresh& area) {
    area.Add(MarkArea(tool, &node));
    CImgNode* pFresh = CopyWithFrame(node);
    if (!pFresh) {
        return false;
    }
    CopyBuffers(node, *pSaved);
    tool.CopyNodeLook(pSaved, &node);
    DeleteCopy(pSaved);
    pSaved = pFresh;
    area.Add(MarkArea(tool, &node));
    return true;
}

} // namespace

CObjectAttributeChangedUndoEvent::~CObjectAttributeChangedUndoEvent() {
    CObjectAttributeChangedUndoEvent::Free();
}

void CObjectAttributeChangedUndoEvent::m_fnSaveState(CTool* pTool, const CNodeRefList& nodes) {
    m_pOwnerTool = pTool;
    Free();
    for (CImgNode* pNode : Each(nodes)) {
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

Restored CObjectAttributeChangedUndoEvent::Restore(Way, CTool& tool, const CCanvas& canvas, CRefresh& area) {
    POSITION copy = m_copies.GetHeadPosition();
    for (CImgNode* pNode : Each(m_liveNodes)) {
        if (!canvas.Objects().Find(pNode) || !SwapLook(tool, *pNode, m_copies.GetNext(copy), area)) {
            return Restored::Failed;
        }
    }
    return m_copies.IsEmpty() ? Restored::Nothing : Restored::Done;
}

void CObjectAttributeChangedUndoEvent::Free() {
    while (!m_copies.IsEmpty()) {
        DeleteCopy(m_copies.RemoveHead());
    }
    m_liveNodes.RemoveAll();
}
