// An object with its companions, on the page and off it. From the front a group reads frame, object, shadow.
#pragma once

#include <array>
#include <memory>

#include "host/img_node_list.h"

class CCanvas;

/// The nodes of the object's group from the front; null where it has no such companion.
inline std::array<CImgNode*, 3> GroupOf(CImgNode& object) {
    return {object.m_pFrameNode, &object, object.m_pShadowNode};
}

/// The node's own copy operation, `Duplicate` or `m_fnDuplicateImageNode`.
using CopyOperation = CImgNode* (CImgNode::*)();

/// A copy of the object with copies of its frame and its shadow, linked both ways and in no list. Null when
/// one of them cannot be made; the copies made so far are deleted then.
CImgNode* CopyGroup(CImgNode& object, CopyOperation copy);
/// Moves the object and its companions by (cx, cy) document units.
void MoveGroup(CImgNode& object, CSize offset);

void AddGroupAtHead(CImgNodeList& objects, CImgNode& object);
/// `nodes` is a document's list or a plain one.
template <class TList>
void AddGroupAtTail(TList& nodes, CImgNode& object) {
    for (CImgNode* pNode : GroupOf(object)) {
        if (pNode) {
            nodes.AddTail(pNode);
        }
    }
}
/// Takes the group off the list; nodes that are not in it are passed over. Links stay.
void TakeGroupOut(CImgNodeList& objects, CImgNode& object);
/// Takes the object's group off the list and puts it back directly in front of, or behind, the other's group.
void PutGroupInFrontOf(CImgNodeList& objects, CImgNode& object, CImgNode& other);
void PutGroupBehind(CImgNodeList& objects, CImgNode& object, CImgNode& other);
/// The nearest object in front of it, or behind it; companions do not count. Null when there is none, and for
/// an object off the page.
CImgNode* ObjectInFrontOf(const CImgNodeList& objects, const CImgNode& object);
CImgNode* ObjectBehind(const CImgNodeList& objects, const CImgNode& object);

/// Takes the companion that the link names out of the page's list, clears the link, and gives it to the
/// caller. Null when there is none.
std::unique_ptr<CImgNode> DetachCompanion(const CCanvas& canvas, CImgNode*& pLink);
/// The same, and frees it.
inline void FreeCompanion(const CCanvas& canvas, CImgNode*& pLink) { DetachCompanion(canvas, pLink); }
