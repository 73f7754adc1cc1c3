// The four stacking moves. Each acts on whole groups: frame, object, shadow from the front.
#include "ops/excluded_node.h"
#include "ops/groups.h"
#include "ops/refresh.h"
#include "tools/tool_core.h"

namespace {

void AddGroupAtTail(CImgNodeList& objects, CImgNode* pObject) {
    for (CImgNode* pNode : {pObject->m_pFrameNode, pObject, pObject->m_pShadowNode}) {
        if (pNode) {
            objects.AddTail(pNode);
        }
    }
}

// The place of the companion when it is on the page, else the object's own.
POSITION PlaceOf(const CImgNodeList& objects, CImgNode* pObject, CImgNode* pCompanion) {
    POSITION position = pCompanion ? objects.Find(pCompanion) : nullptr;
    return position ? position : objects.Find(pObject);
}

CImgNode* TopLevelInFrontOf(const CImgNodeList& objects, CImgNode* pObject) {
    POSITION position = objects.Find(pObject);
    objects.GetPrev(position);
    while (position) {
        CImgNode* pNode = objects.GetPrev(position);
        if (!pNode->m_pOwner) {
            return pNode;
        }
    }
    return nullptr;
}

CImgNode* TopLevelBehind(const CImgNodeList& objects, CImgNode* pObject) {
    POSITION position = objects.Find(pObject);
    objects.GetNext(position);
    while (position) {
        CImgNode* pNode = objects.GetNext(position);
        if (!pNode->m_pOwner) {
            return pNode;
        }
    }
    return nullptr;
}

void PutGroupInFrontOf(CImgNodeList& objects, CImgNode* pObject, CImgNode* pOther) {
    TakeGroupOut(objects, pObject);
    const POSITION place = PlaceOf(objects, pOther, pOther->m_pFrameNode);
    for (CImgNode* pNode : {pObject->m_pFrameNode, pObject, pObject->m_pShadowNode}) {
        if (pNode) {
            objects.InsertBefore(place, pNode);
        }
    }
}

void PutGroupBehind(CImgNodeList& objects, CImgNode* pObject, CImgNode* pOther) {
    TakeGroupOut(objects, pObject);
    const POSITION place = PlaceOf(objects, pOther, pOther->m_pShadowNode);
    for (CImgNode* pNode : {pObject->m_pShadowNode, pObject, pObject->m_pFrameNode}) {
        if (pNode) {
            objects.InsertAfter(place, pNode);
        }
    }
}

} // namespace

// Companions in the selection are left out: they go where their object goes.
void CToolCore::m_fnSortByStacking(CCanvas& canvas, CNodeRefList& nodes) {
    nodes.RemoveAll();
    for (POSITION position = canvas.Objects().GetHeadPosition(); position;) {
        CImgNode* pNode = canvas.Objects().GetNext(position);
        if (!pNode->m_pOwner && canvas.IsSelected(pNode)) {
            nodes.AddTail(pNode);
        }
    }
}

void CToolCore::m_fnBringForward() {
    CCanvas canvas(*this);
    if (!canvas) {
        return;
    }
    CNodeRefList sorted;
    m_fnSortByStacking(canvas, sorted);
    bool bOneStayed = false;
    for (POSITION position = sorted.GetHeadPosition(); position;) {
        CImgNode* pObject = sorted.GetNext(position);
        CImgNode* pOther = TopLevelInFrontOf(canvas.Objects(), pObject);
        if (pOther) {
            PutGroupInFrontOf(canvas.Objects(), pObject, pOther);
        }
        bOneStayed = bOneStayed || !pOther;
    }
    if (bOneStayed) {
        TakeGroupOut(canvas.Objects(), sorted.GetHead());
        AddGroupAtHead(canvas.Objects(), sorted.GetHead());
    }
    m_fnKeepExcludedNodeInFront(canvas);
    FinishStacking(canvas);
}

void CToolCore::m_fnSendBackward() {
    CCanvas canvas(*this);
    if (!canvas) {
        return;
    }
    CNodeRefList sorted;
    m_fnSortByStacking(canvas, sorted);
    bool bOneStayed = false;
    for (POSITION position = sorted.GetTailPosition(); position;) {
        CImgNode* pObject = sorted.GetPrev(position);
        CImgNode* pOther = TopLevelBehind(canvas.Objects(), pObject);
        if (pOther) {
            PutGroupBehind(canvas.Objects(), pObject, pOther);
        }
        bOneStayed = bOneStayed || !pOther;
    }
    if (bOneStayed) {
        TakeGroupOut(canvas.Objects(), sorted.GetTail());
        AddGroupAtTail(canvas.Objects(), sorted.GetTail());
    }
    FinishStacking(canvas);
}

void CToolCore::m_fnBringToFront() {
    CCanvas canvas(*this);
    if (!canvas) {
        return;
    }
    CNodeRefList sorted;
    m_fnSortByStacking(canvas, sorted);
    for (POSITION position = sorted.GetTailPosition(); position;) {
        CImgNode* pObject = sorted.GetPrev(position);
        TakeGroupOut(canvas.Objects(), pObject);
        AddGroupAtHead(canvas.Objects(), pObject);
    }
    m_fnKeepExcludedNodeInFront(canvas);
    FinishStacking(canvas);
}

void CToolCore::m_fnSendToBack() {
    CCanvas canvas(*this);
    if (!canvas) {
        return;
    }
    CNodeRefList sorted;
    m_fnSortByStacking(canvas, sorted);
    for (POSITION position = sorted.GetHeadPosition(); position;) {
        CImgNode* pObject = sorted.GetNext(position);
        TakeGroupOut(canvas.Objects(), pObject);
        AddGroupAtTail(canvas.Objects(), pObject);
    }
    FinishStacking(canvas);
}

void CToolCore::m_fnKeepExcludedNodeInFront(CCanvas& canvas) {
    KeepExcludedNodeInFront(canvas.Objects(), GetExcludedNode());
}

// Stacking changes no rectangle, so the area is taken once, afterwards.
void CToolCore::FinishStacking(CCanvas& canvas) {
    CRefresh refresh;
    CRect rc(0, 0, 0, 0);
    GetSelectionOutlineRect(&rc);
    refresh.Add(rc);
    refresh.FlushMarkRepaint(canvas.View(), *this);
    NotifyChangedThenRedrawn(*this);
}
