// Changing the selection, and what it consists of.
#pragma once

#include "host/tool.h"

class CCanvas;

/// Appends the node unless it is selected, and takes it out; nothing is drawn.
void Select(const CCanvas& canvas, CImgNode* pNode);
void Deselect(const CCanvas& canvas, CImgNode* pNode);
/// Empties the selection from its head; nothing is drawn.
void ClearSelection(const CCanvas& canvas);
/// Makes the node the only selected one and shows it; null deselects all.
void SelectOnly(CTool& tool, CImgNode* pNode);
/// Selects the node, or takes it out of the selection, and shows that.
void Toggle(CTool& tool, CImgNode* pNode);

/// The operations of the tools' tables.
namespace selection {
int ClearSelection(CTool& tool);
int DeselectAll(CTool& tool, int nRedraw);
int AddToSelection(CTool& tool, CNodeRefList& nodes);
int SetSelection(CTool& tool, CNodeRefList& nodes, int nToggle);
/// Replaces the list by the selection, in its order; without a document the list is empty.
void CopySelection(CTool& tool, CNodeRefList& nodes);
int ClassifySelection(CTool& tool);
int ClassifyNodes(const CNodeRefList& nodes);
} // namespace selection
