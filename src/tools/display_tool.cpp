#include "tools/display_tool.h"

#include "tools/identity_tables.h"
#include "tools/tool_ids.h"

int CDisplayTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CObjectTool>(*this, {CategoryId, tool_kind::Display}, category, nKind, pResult,
                                      pExtra);
}

const GUID& CDisplayTool::GetToolClassId() { return tool_class::Display; }

int CDisplayTool::GetPanelKind() { return panel_kind::DisplayTool; }

int CDisplayPageTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CDisplayTool>(*this, {CategoryId, tool_kind::DisplayPage}, category, nKind, pResult,
                                       pExtra);
}

const GUID& CDisplayPageTool::GetToolClassId() { return tool_class::DisplayPage; }

const GUID& CDisplayPageTool::GetToolGroupId() { return GroupIdOr(tool_group::Object); }

int CDisplayPageTool::GetPanelKind() { return panel_kind::Object; }

int CTextDisplayTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CDisplayTool>(*this, {CategoryId, tool_kind::TextDisplay}, category, nKind, pResult,
                                       pExtra);
}

const GUID& CTextDisplayTool::GetToolClassId() { return tool_class::TextDisplay; }

const GUID& CTextDisplayTool::GetToolGroupId() { return GroupIdOr(tool_group::Text); }

int CTextDisplayTool::GetPanelKind() { return panel_kind::Text; }
