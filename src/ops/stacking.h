// The four stacking moves of the selection. Each acts on whole groups and shows the result.
#pragma once

#include "host/tool.h"

namespace stacking {
void BringForward(CTool& tool);
void SendBackward(CTool& tool);
void BringToFront(CTool& tool);
void SendToBack(CTool& tool);
/// The selected objects, front-most first. Companions in the selection are left out: they go where their
/// object goes.
void SortByStacking(CTool& tool, CNodeRefList& nodes);
/// 1 when the selected objects are exactly the front-most of the page, or the rearmost, companions not
/// counted; else 0.
int IsSelectionAtFront(CTool& tool);
int IsSelectionAtBack(CTool& tool);
} // namespace stacking
