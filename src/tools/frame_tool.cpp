#include "tools/frame_tool.h"

#include "host/tool_ids.h"
#include "tools/identity_tables.h"

int CFrameToolBase::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CObjectTool>(*this, {CategoryId, tool_kind::FrameBase}, category, nKind, pResult,
                                      pExtra);
}

const GUID& CFrameToolBase::GetToolClassId() { return tool_class::FrameBase; }

int CFrameToolBase::GetPanelKind() { return panel_kind::FrameTool; }

int CFrameTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CFrameToolBase>(*this, {CategoryId, tool_kind::Frame}, category, nKind, pResult,
                                         pExtra);
}

const GUID& CFrameTool::GetToolClassId() { return tool_class::Frame; }

const GUID& CFrameTool::GetToolGroupId() { return GroupIdOr(tool_group::Object); }

int CFrameTool::GetPanelKind() { return panel_kind::Object; }
