#include "tools/select_tool.h"

#include "host/tool_ids.h"
#include "tools/identity_tables.h"

int CSelectTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CObjectTool>(*this, {CategoryId, tool_kind::Select}, category, nKind, pResult,
                                      pExtra);
}

const GUID& CSelectTool::GetToolClassId() { return tool_class::Select; }

const GUID& CSelectTool::GetToolGroupId() { return GroupIdOr(tool_group::Select); }
