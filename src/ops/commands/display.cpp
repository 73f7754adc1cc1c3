#include "ops/commands/display.h"

#include "ops/canvas.h"
#include "ops/nodes.h"
#include "ops/refresh.h"
#include "ops/service_error.h"
#include "undo/display_event.h"
#include "undo/recorder.h"

namespace {

// Whether any object's values differed from those asked for; one that does not take them counts as set.
bool SetEach(const CNodeRefList& nodes, const DisplayValues& request) {
    bool bChanged = false;
    for (CImgNode* pNode : Each(nodes)) {
        const DisplayValues values = RequestedValues(request, *pNode);
        if (values != DisplayValuesOf(*pNode)) {
            SetDisplayValues(*pNode, values);
            bChanged = true;
        }
    }
    return bChanged;
}

} // namespace

int display::SetSelectionDisplay(CTool& tool, const DisplayValues& request) {
    const CCanvas canvas(tool);
    if (!canvas.HasSelection()) {
        return 0;
    }
    CNodeRefList nodes;
    CopyList(canvas.Selection(), nodes);
    std::unique_ptr<CuDisplayUndoEvent> pEvent(
        new CuDisplayUndoEvent(&tool, nodes, request.nBrightness, request.nContrast, request.nTransparency));
    if (!SetEach(nodes, request)) {
        return 1;
    }
    if (pEvent) {
        RecordEvent(pEvent);
    }
    CRefresh refresh;
    refresh.Add(SelectionRect(tool));
    refresh.FlushMarkRepaint(canvas, tool);
    NotifyRedrawnThenChanged(tool);
    return 1;
}

int display::SetNodeDisplay(CImgNode* pNode, const DisplayValues& values, std::int32_t* pError) {
    if (!pNode) {
        return AnswerWith(service_error::NullArgument, pError);
    }
    const bool bSet = values == DisplayValuesOf(*pNode) || SetDisplayValues(*pNode, values);
    return AnswerWith(bSet ? service_error::None : service_error::Failed, pError);
}
