// Moving objects with their companions.
#pragma once

#include "host/tool.h"

/// Moves the object with its frame and its shadow by (cx, cy) document units. 1 (also for null, which moves
/// nothing), or 0 for a shadow or frame node, which is never moved on its own.
int OffsetObject(CImgNode* pNode, CSize offset);
/// Moves an object that lies wholly outside the view, less a margin, back to its edge. The answer is 0 when
/// the part that the object covers before and after is as wide as the object was, and otherwise whether that
/// part's height differs from the object's.
int KeepInView(CTool& tool, CImgNode* pNode);
