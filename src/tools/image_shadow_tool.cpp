#include "tools/image_shadow_tool.h"

#include "host/tool_ids.h"
#include "tools/identity_tables.h"

int CImageShadowTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CShadowTool>(*this, {CategoryId, tool_kind::ImageShadow}, category, nKind, pResult,
                                      pExtra);
}

const GUID& CImageShadowTool::GetToolClassId() { return tool_class::ImageShadow; }

const GUID& CImageShadowTool::GetToolGroupId() { return GroupIdOr(tool_group::Object); }

int CImageShadowTool::GetPanelKind() { return panel_kind::Object; }
