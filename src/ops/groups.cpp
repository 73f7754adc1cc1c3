#include "ops/groups.h"

#include <utility>

#include "ops/canvas.h"
#include "ops/nodes.h"

namespace {

using NodePtr = std::unique_ptr<CImgNode>;

// The place of the companion when it is on the page, else the object's own.
POSITION PlaceOf(const CImgNodeList& objects, const CImgNode& object, const CImgNode* pCompanion) {
    POSITION place = pCompanion ? objects.Find(pCompanion) : nullptr;
    return place ? place : objects.Find(&object);
}

} // namespace

CImgNode* CopyGroup(CImgNode& object, CopyOperation copy) {
    NodePtr pCopy((object.*copy)());
    if (!pCopy) {
        return nullptr;
    }
    NodePtr pFrame(object.m_pFrameNode ? (object.m_pFrameNode->*copy)() : nullptr);
    if (object.m_pFrameNode && !pFrame) {
        return nullptr;
    }
    NodePtr pShadow(object.m_pShadowNode ? (object.m_pShadowNode->*copy)() : nullptr);
    if (object.m_pShadowNode && !pShadow) {
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

void MoveGroup(CImgNode& object, CSize offset) {
    for (CImgNode* pNode : {&object, object.m_pFrameNode, object.m_pShadowNode}) {
        if (pNode) {
            pNode->Move(offset.cx, offset.cy);
        }
    }
}

void AddGroupAtHead(CImgNodeList& objects, CImgNode& object) {
    for (CImgNode* pNode : {object.m_pShadowNode, &object, object.m_pFrameNode}) {
        if (pNode) {
            objects.AddHead(pNode);
        }
    }
}

void TakeGroupOut(CImgNodeList& objects, CImgNode& object) {
    for (CImgNode* pNode : {&object, object.m_pFrameNode, object.m_pShadowNode}) {
        TakeOut(objects, pNode);
    }
}

void PutGroupInFrontOf(CImgNodeList& objects, CImgNode& object, CImgNode& other) {
    TakeGroupOut(objects, object);
    const POSITION place = PlaceOf(objects, other, other.m_pFrameNode);
    for (CImgNode* pNode : GroupOf(object)) {
        if (pNode) {
            objects.InsertBefore(place, pNode);
        }
    }
}

void PutGroupBehind(CImgNodeList& objects, CImgNode& object, CImgNode& other) {
    TakeGroupOut(objects, object);
    const POSITION place = PlaceOf(objects, other, other.m_pShadowNode);
    for (CImgNode* pNode : {object.m_pShadowNode, &object, object.m_pFrameNode}) {
        if (pNode) {
            objects.InsertAfter(place, pNode);
        }
    }
}

CImgNode* ObjectInFrontOf(const CImgNodeList& objects, const CImgNode& object) {
    POSITION place = objects.Find(&object);
    if (place) {
        objects.GetPrev(place);
    }
    while (place) {
        CImgNode* pNode = objects.GetPrev(place);
        if (!pNode->m_pOwner) {
            return pNode;
        }
    }
    return nullptr;
}

CImgNode* ObjectBehind(const CImgNodeList& objects, const CImgNode& object) {
    POSITION place = objects.Find(&object);
    if (place) {
        objects.GetNext(place);
    }
    while (place) {
        CImgNode* pNode = objects.GetNext(place);
        if (!pNode->m_pOwner) {
            return pNode;
        }
    }
    return nullptr;
}

std::unique_ptr<CImgNode> DetachCompanion(const CCanvas& canvas, CImgNode*& pLink) {
    if (canvas.HasDocument()) {
        TakeOut(canvas.Objects(), pLink);
    }
    return NodePtr(std::exchange(pLink, nullptr));
}
