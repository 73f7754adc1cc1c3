// The operations by which a host records a change that it is about to make. Each answers 1, or 0 when there
// is no document or the event cannot be made.
#pragma once

#include "host/tool.h"

namespace records {
int RecordSelectionUndo(CTool& tool);
int RecordAttributeUndoForSelection(CTool& tool, UINT nDescriptionId);
int RecordAttributeUndo(CTool& tool, CNodeRefList& nodes, UINT nDescriptionId);
int RecordAddObjectUndo(CTool& tool);
} // namespace records
