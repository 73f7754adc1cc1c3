// What lies under a point. Points are client pixels.
#pragma once

#include "host/tool.h"

/// The topmost node under the point, companions included; the tool's excluded node is passed over. Null also
/// when that node is off the page.
CImgNode* NodeUnderPoint(CTool& tool, CPoint point);
/// What a click on that node is meant for: a frame stands for its object, a shadow is nothing.
CImgNode* ClickedObject(CImgNode* pNode);
/// The same of the node under the point.
CImgNode* ClickedNode(CTool& tool, CPoint point);
bool IsOnExcludedNode(CTool& tool, CPoint point);
bool IsOnSelection(CTool& tool, CPoint point);
/// 0 to 7, or NoHandle: also when the node is not the only selected one.
int HandleUnderPoint(CTool& tool, CImgNode* pNode, CPoint point);
/// 1 when the point lies within the node's corners or on their edge, else 0.
int PtInNodeOutline(CTool& tool, const CPoint* pPoint, CImgNode* pNode);
