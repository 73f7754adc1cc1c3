// The shadow tool of the text page, on which the composite tools are built.
#pragma once

#include "tools/shadow_tool.h"

/// Kind 26.
class CTextShadowTool : public CShadowTool {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    const GUID& GetToolClassId() override;
    const GUID& GetToolGroupId() override;
    int GetPanelKind() override;
};
