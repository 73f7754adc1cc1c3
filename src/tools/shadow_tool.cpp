#include "tools/shadow_tool.h"

#include "host/tool_ids.h"
#include "tools/identity_tables.h"

int CShadowTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CObjectTool>(*this, {CategoryId, tool_kind::Shadow}, category, nKind, pResult,
                                      pExtra);
}

const GUID& CShadowTool::GetToolClassId() { return tool_class::Shadow; }

int CShadowTool::GetPanelKind() { return panel_kind::ShadowTool; }

int CShadowTool::InvalidateShadowMark(CImgNode* pNode) {
    CRect rc;
    if (!pNode || !pNode->m_pShadowNode || !GetNodeOutlineMarkRect(pNode, &rc)) {
        return 0;
    }
    return FlushViewRect(&rc);
}
