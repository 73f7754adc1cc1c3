#include "tools/text_shadow_tool.h"

#include "host/tool_ids.h"
#include "tools/identity_tables.h"

int CTextShadowTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CShadowTool>(*this, {CategoryId, tool_kind::TextShadow}, category, nKind, pResult,
                                      pExtra);
}

const GUID& CTextShadowTool::GetToolClassId() { return tool_class::TextShadow; }

const GUID& CTextShadowTool::GetToolGroupId() { return GroupIdOr(tool_group::Text); }

int CTextShadowTool::GetPanelKind() { return panel_kind::Text; }
