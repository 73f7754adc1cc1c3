// Objects with their companions: copying them, putting them on the page, taking them off it.
#pragma once

#include "host/img_node_list.h"

/// The node's own copy operation, `Duplicate` or `m_fnDuplicateImageNode`.
using CopyOperation = CImgNode* (CImgNode::*)();

/// A copy of the object with copies of its frame and its shadow, linked both ways and in no list. Null when
/// one of them cannot be made; the copies made so far are deleted then.
CImgNode* CopyObject(CImgNode& node, CopyOperation copy);

/// Adds the object with its companions at the head, so that the list reads frame, object, shadow from the
/// front.
void AddGroupAtHead(CImgNodeList& objects, CImgNode* pObject);

/// Takes the object, its frame and its shadow off the list; those that are not in it are passed over. Links
/// stay.
void TakeGroupOut(CImgNodeList& objects, CImgNode* pObject);
