// How a left click changes the selection, and how presses and releases reach the current tool.
#pragma once

#include "host/tool.h"

namespace click {
int OnLButtonDown(CTool& tool, UINT nFlags, CPoint point);
int OnLButtonUp(CTool& tool, UINT nFlags, CPoint point);
/// Makes the node the only selected one, one toggle a node, each with its redraw; null deselects all.
int SelectOnly(CTool& tool, CImgNode* pNode);
} // namespace click
