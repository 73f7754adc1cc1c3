#include "ops/groups.h"

#include <memory>

namespace {

using NodePtr = std::unique_ptr<CImgNode>;

void TakeOut(CImgNodeList& objects, CImgNode* pNode) {
    POSITION position = pNode ? objects.Find(pNode) : nullptr;
    if (position) {
        objects.RemoveAt(position);
    }
}

} // namespace

CImgNode* CopyObject(CImgNode& node, CopyOperation copy) {
    NodePtr pCopy((node.*copy)());
    if (!pCopy) {
        return nullptr;
    }
    NodePtr pFrame(node.m_pFrameNode ? (node.m_pFrameNode->*copy)() : nullptr);
    if (node.m_pFrameNode && !pFrame) {
        return nullptr;
    }
    NodePtr pShadow(node.m_pShadowNode ? (node.m_pShadowNode->*copy)() : nullptr);
    if (node.m_pShadowNode && !pShadow) {
        return nullptr;
    }
    if (pFrame) {
        pFrame->m_pOwner = pCopy.get();
    }
    if (pShadow) {
        pShadow->m_pOwner = pCopy.get();
    }
    pCopy->m_pFrameNode = pFrame.release();
    pCopy->m_pShadowNode = pShadow.release();
    return pCopy.release();
}

void AddGroupAtHead(CImgNodeList& objects, CImgNode* pObject) {
    if (pObject->m_pShadowNode) {
        objects.AddHead(pObject->m_pShadowNode);
    }
    objects.AddHead(pObject);
    if (pObject->m_pFrameNode) {
        objects.AddHead(pObject->m_pFrameNode);
    }
}

void TakeGroupOut(CImgNodeList& objects, CImgNode* pObject) {
    TakeOut(objects, pObject);
    TakeOut(objects, pObject->m_pFrameNode);
    TakeOut(objects, pObject->m_pShadowNode);
}
