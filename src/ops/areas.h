// The client areas of nodes and of the selection.
#pragma once

#include "host/tool.h"
#include "ops/handles.h"

/// An only node is shown with its handles, several with plain outlines.
enum class Shown { Alone, Together };

template <class TList>
Shown ShownAs(const TList& nodes) {
    return nodes.GetCount() == 1 ? Shown::Alone : Shown::Together;
}

/// What the tool's own operation answers, by value; empty where it has no answer.
CRect NodeRect(CTool& tool, CImgNode* pNode);
CRect OutlineRect(CTool& tool, CImgNode* pNode);
CRect MarkArea(CTool& tool, CImgNode* pNode);
CRect SelectionRect(CTool& tool);
CRect SelectionOutlineRect(CTool& tool);
/// The node's mark rectangle, or its plain one.
CRect MarkRect(CTool& tool, CImgNode* pNode, Shown shown);
/// The same of its outline, which is its shadow's where it has one.
CRect OutlineRect(CTool& tool, CImgNode* pNode, Shown shown);
/// The area of a list of nodes with their shadows.
CRect AreaOf(CTool& tool, const CNodeRefList& nodes);
/// The corner points of the node's rectangle.
Corners CornersOfNode(CTool& tool, CImgNode* pNode);
/// The bounding rectangle of the corner points, every coordinate truncated.
CRect BoundsOf(Corners corners);

/// The operations of the tools' tables. Without a view they answer 0 and leave the rectangle alone.
namespace areas {
int GetNodeMarkRect(CTool& tool, CImgNode* pNode, RECT* pRect);
int GetNodeOutlineMarkRect(CTool& tool, CImgNode* pNode, RECT* pRect);
int GetNodeRect(CTool& tool, CImgNode* pNode, RECT* pRect);
int GetNodeOutlineRect(CTool& tool, CImgNode* pNode, RECT* pRect);
int GetSelectionRect(CTool& tool, RECT* pRect);
int GetSelectionOutlineRect(CTool& tool, RECT* pRect);
int GetNodesRect(CTool& tool, CNodeRefList& nodes, RECT* pRect);
int GetNodeMarkArea(CTool& tool, CImgNode* pNode, RECT* pRect);
RECT* GetNodeRectOf(CTool& tool, RECT* pRect, CImgNode* pNode);
RECT* GetNodeMarkAreaOf(CTool& tool, RECT* pRect, CImgNode* pNode);
} // namespace areas
