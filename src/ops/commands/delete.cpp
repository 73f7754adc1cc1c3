// The object commands of the context menu and the keyboard.
#include "host/panels.h"
#include "ops/bus.h"
#include "ops/groups.h"
#include "ops/refresh.h"
#include "tools/tool_core.h"

// Nothing is recorded and nothing is freed; the companions' links stay.
void CToolCore::m_fnDelete() {
    CCanvas canvas(*this);
    if (!canvas) {
        return;
    }
    CRefresh refresh;
    CRect rcBefore(0, 0, 0, 0);
    GetSelectionOutlineRect(&rcBefore);
    refresh.Add(rcBefore);

    CNodeRefList selected;
    m_fnCopySelection(canvas, selected);
    for (POSITION position = selected.GetHeadPosition(); position;) {
        CImgNode* pNode = selected.GetNext(position);
        if (!pNode->m_pOwner) {
            TakeGroupOut(canvas.Objects(), pNode);
            SelectNode(canvas, pNode, 0);
        }
    }

    refresh.FlushMarkRepaint(canvas.View(), *this);
    if (IPropertyArea* pArea = bus::FindService<IPropertyArea>(*this, kind::PropertyArea)) {
        pArea->OnObjectsChanged(1);
        NotifyChangedThenRedrawn(*this);
    }
}

void CToolCore::Empty30() {}

void CToolCore::Empty31() {}
