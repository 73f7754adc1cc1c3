#include "tools/object_page_tool.h"

#include "host/tool_ids.h"
#include "tools/identity_tables.h"

int CObjectPageTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CBasicObjectTool>(*this, {CategoryId, tool_kind::ObjectPage}, category, nKind,
                                           pResult, pExtra);
}

const GUID& CObjectPageTool::GetToolClassId() { return tool_class::ObjectPage; }

const GUID& CObjectPageTool::GetToolGroupId() { return GroupIdOr(tool_group::Object); }

int CObjectPageTool::GetPanelKind() { return panel_kind::Object; }
