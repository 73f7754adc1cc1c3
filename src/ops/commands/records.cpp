// Recording what objects look like, and what the page holds, before a change.
#include "tools/tool_core.h"
#include "undo/add_object_event.h"
#include "undo/attribute_changed_event.h"
#include "undo/recorder.h"

int CToolCore::RecordAttributeUndoForSelection(UINT nDescriptionId) {
    CCanvas canvas(*this);
    if (!canvas.HasDocument() || canvas.Selection().IsEmpty()) {
        return 1;
    }
    CNodeRefList nodes;
    m_fnCopySelection(canvas, nodes);
    return RecordAttributeUndo(nodes, nDescriptionId);
}

int CToolCore::RecordAttributeUndo(CNodeRefList& nodes, UINT nDescriptionId) {
    std::unique_ptr<CObjectAttributeChangedUndoEvent> pEvent(new CObjectAttributeChangedUndoEvent);
    if (!pEvent) {
        return 0;
    }
    pEvent->m_fnSaveState(AsObjectTool(), nodes);
    pEvent->m_fnSetUndoEventDescriptionText(nDescriptionId);
    RecordEvent(pEvent);
    return 1;
}

int CToolCore::RecordAddObjectUndo() {
    std::unique_ptr<CAddObjectUndoEvent> pEvent = CaptureState<CAddObjectUndoEvent>(AsObjectTool());
    if (!pEvent) {
        return 0;
    }
    RecordEvent(pEvent);
    return 1;
}
