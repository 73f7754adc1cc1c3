#include "ops/commands/records.h"

#include "ops/canvas.h"
#include "ops/nodes.h"
#include "undo/add_object_event.h"
#include "undo/attribute_changed_event.h"
#include "undo/recorder.h"
#include "undo/sel_changed_event.h"

int records::RecordSelectionUndo(CTool& tool) {
    return CCanvas(tool).HasDocument() ? RecordState<CSelChangedUndoEvent>(tool) : 0;
}

int records::RecordAttributeUndoForSelection(CTool& tool, UINT nDescriptionId) {
    const CCanvas canvas(tool);
    if (!canvas.HasDocument()) {
        return 0;
    }
    if (!canvas.HasSelection()) {
        return 1;
    }
    CNodeRefList nodes;
    CopyList(canvas.Selection(), nodes);
    return tool.RecordAttributeUndo(nodes, nDescriptionId);
}

int records::RecordAttributeUndo(CTool& tool, CNodeRefList& nodes, UINT nDescriptionId) {
    if (!CCanvas(tool).HasDocument()) {
        return 0;
    }
    std::unique_ptr<CObjectAttributeChangedUndoEvent> pEvent(new CObjectAttributeChangedUndoEvent);
    if (!pEvent) {
        return 0;
    }
    pEvent->m_fnSaveState(&tool, nodes);
    pEvent->m_fnSetUndoEventDescriptionText(nDescriptionId);
    RecordEvent(pEvent);
    return 1;
}

int records::RecordAddObjectUndo(CTool& tool) {
    return CCanvas(tool).HasDocument() ? RecordState<CAddObjectUndoEvent>(tool) : 0;
}
