#include "desk/object_paste.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "desk/desk.h"
#include "host/tool_interfaces.h"
#include "image/node_host.h"
#include "trace/trace.h"

namespace {

constexpr std::int64_t Lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t Highest = std::numeric_limits<std::int32_t>::max();

/// Where the position goes so that the picture, which begins at an offset from it and has that size, stays
/// within 32 bits.
std::int32_t Moved(std::int64_t nPosition, std::int64_t nDistance, std::int64_t nOffset, std::int64_t nSize) {
    const std::int64_t nStart = std::clamp(nPosition + nDistance + nOffset, Lowest, Highest - nSize);
    return static_cast<std::int32_t>(std::clamp(nStart - nOffset, Lowest, Highest));
}

void MoveNode(CImgNode& node, std::int64_t nDx, std::int64_t nDy) {
    CTxParam& tx = node.m_tx;
    const bool bOffset = tx.nOffsetFlag == 1;
    tx.nX = Moved(tx.nX, nDx, bOffset ? tx.nOffsetX : 0, tx.nWidth);
    tx.nY = Moved(tx.nY, nDy, bOffset ? tx.nOffsetY : 0, tx.nHeight);
    CNodeBookkeeping::PlaceChanged(node);
}

/// Puts the group's nodes at the head; null ones are passed over.
void AddAtHead(CImgNodeList& objects, CImgNode* pFrame, CImgNode* pObject, CImgNode* pShadow) {
    for (CImgNode* pNode : {pShadow, pObject, pFrame}) {
        if (pNode) {
            objects.AddHead(pNode);
        }
    }
}

/// The node, or null when it was not in the list.
CImgNode* TakeOut(CImgNodeList& objects, CImgNode* pNode) {
    const POSITION place = objects.Find(pNode);
    objects.RemoveAt(place);
    return place ? pNode : nullptr;
}

/// The excluded node's group goes to the head, as far as it is on the page.
void KeepInFront(CImgNodeList& objects, CImgNode* pExcluded) {
    if (!objects.Find(pExcluded)) {
        return;
    }
    CImgNode* pFrame = TakeOut(objects, CNodeBookkeeping::LiveFrame(*pExcluded));
    CImgNode* pShadow = TakeOut(objects, CNodeBookkeeping::LiveShadow(*pExcluded));
    AddAtHead(objects, pFrame, TakeOut(objects, pExcluded), pShadow);
}

/// The host's own values stay with their objects.
void PutOnPage(CDesk& desk, NodeGroups groups) {
    const trace::CQuietScope quiet;
    CImgNodeList& objects = *desk.Document()->GetObjList();
    const auto values = desk.PageObjects().ValuesByObject();
    for (auto group = groups.rbegin(); group != groups.rend(); ++group) {
        CNodeBookkeeping::SetPasted(*group->pObject);
        AddAtHead(objects, group->pFrame.release(), group->pObject.release(), group->pShadow.release());
    }
    KeepInFront(objects, desk.ExcludedNode());
    desk.PageObjects().SetValuesByObject(values);
}

void SelectAlone(CVorDoc& doc, IToolObjectOps* pOps, CNodeRefList& nodes) {
    if (pOps) {
        pOps->DeselectAll(1);
        pOps->AddToSelection(nodes);
        return;
    }
    const trace::CQuietScope quiet;
    doc.GetActList()->RemoveAll();
    for (POSITION pos = nodes.GetHeadPosition(); pos;) {
        doc.GetActList()->AddTail(nodes.GetNext(pos));
    }
    doc.SetModifiedFlag(TRUE);
}

void AddBounds(CRect& rcDoc, CImgNode& node) {
    CRect rcNode;
    node.GetBoundRectEx(&rcNode);
    rcDoc.UnionRect(&rcDoc, &rcNode);
}

/// Client pixels: what the objects and the excluded node cover, and the marks.
CRect ChangedArea(CDesk& desk, IToolObjectOps* pOps, CNodeRefList& nodes) {
    CRect rcDoc(0, 0, 0, 0);
    for (POSITION pos = nodes.GetHeadPosition(); pos;) {
        AddBounds(rcDoc, *nodes.GetNext(pos));
    }
    if (desk.Document()->GetObjList()->Find(desk.ExcludedNode())) {
        AddBounds(rcDoc, *desk.ExcludedNode());
    }
    CRect rcArea;
    desk.View()->DocRectToView(rcDoc, rcArea);
    if (pOps) {
        CRect rcMarks(0, 0, 0, 0);
        pOps->GetSelectionOutlineRect(&rcMarks);
        rcArea.UnionRect(&rcArea, &rcMarks);
    }
    return rcArea;
}

void Show(CDesk& desk, IToolObjectOps* pOps, CRect rcArea) {
    {
        const trace::CQuietScope quiet;
        desk.View()->m_fnFlushCacheRect(rcArea);
    }
    if (pOps) {
        pOps->ShowSelectionMarks(1);
    }
    const trace::CQuietScope quiet;
    desk.View()->RepaintViewRect(rcArea, 1);
}

void Tell(IToolObjectOps* pOps) {
    if (pOps) {
        pOps->NotifyObjectsChanged();
        pOps->NotifyObjectsRedrawn();
    }
}

} // namespace

void MoveGroupsTo(const NodeGroups& groups, const CPoint& ptDoc) {
    std::int64_t nLeft = Highest;
    std::int64_t nTop = Highest;
    for (const NodeGroup& group : groups) {
        const CRect rcBound = group.pObject->m_fnGetBoundRectWithFrame();
        nLeft = std::min<std::int64_t>(nLeft, rcBound.left);
        nTop = std::min<std::int64_t>(nTop, rcBound.top);
    }
    for (const NodeGroup& group : groups) {
        for (CImgNode* pNode : {group.pFrame.get(), group.pObject.get(), group.pShadow.get()}) {
            if (pNode) {
                MoveNode(*pNode, ptDoc.x - nLeft, ptDoc.y - nTop);
            }
        }
    }
}

void PasteGroups(CDesk& desk, NodeGroups groups) {
    IToolObjectOps* pOps = CDesk::Query<IToolObjectOps>(desk.CurrentTool());
    CNodeRefList nodes;
    for (const NodeGroup& group : groups) {
        nodes.AddTail(group.pObject.get());
    }
    if (pOps) {
        pOps->RecordAddObjectUndo();
    }
    PutOnPage(desk, std::move(groups));
    SelectAlone(*desk.Document(), pOps, nodes);
    Show(desk, pOps, ChangedArea(desk, pOps, nodes));
    Tell(pOps);
}
