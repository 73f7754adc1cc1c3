#include "tools/basic_object_tool.h"

#include "host/tool_ids.h"
#include "tools/identity_tables.h"

int CBasicObjectTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CObjectTool>(*this, {CategoryId, tool_kind::BasicObject}, category, nKind, pResult,
                                      pExtra);
}

int CBasicObjectTool::QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) {
    static constexpr std::array<InterfaceRow<CBasicObjectTool>, 1> Interfaces = {
        {RowOf<ISelectOnly, CBasicObjectTool>()}};
    if (MatchInterface(Interfaces, this, iid, ppInterface, pExtra)) {
        return 1;
    }
    return CObjectTool::QueryInterface(iid, ppInterface, pExtra);
}

const GUID& CBasicObjectTool::GetToolClassId() { return tool_class::BasicObject; }

int CBasicObjectTool::GetPanelKind() { return panel_kind::BasicTool; }

// Every other selected node is toggled off on its own, each with its redraw.
int CBasicObjectTool::SelectOnly(CImgNode* pNode) {
    CCanvas canvas(*this);
    if (!canvas) {
        return 0;
    }
    if (!pNode) {
        DeselectAll(1);
        return 1;
    }
    CNodeRefList selected;
    m_fnCopySelection(canvas, selected);
    for (POSITION position = selected.GetHeadPosition(); position;) {
        CImgNode* pOther = selected.GetNext(position);
        if (pOther != pNode) {
            ToggleNode(pOther);
        }
    }
    if (!canvas.IsSelected(pNode)) {
        ToggleNode(pNode);
    }
    return 1;
}
