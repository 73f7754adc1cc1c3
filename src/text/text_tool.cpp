#include "text/text_tool.h"

#include "tools/identity_tables.h"
#include "tools/tool_ids.h"

int CTextTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CTextToolBase>(*this, {CategoryId, tool_kind::Text}, category, nKind, pResult,
                                        pExtra);
}

const GUID& CTextTool::GetToolClassId() { return tool_class::Text; }

const GUID& CTextTool::GetToolGroupId() { return GroupIdOr(tool_group::Text); }

int CTextTool::GetPanelKind() { return panel_kind::Text; }
