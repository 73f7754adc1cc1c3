// The shadow tool of the object page.
#pragma once

#include "tools/shadow_tool.h"

/// Kind 21.
class CImageShadowTool : public CShadowTool {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    const GUID& GetToolClassId() override;
    const GUID& GetToolGroupId() override;
    int GetPanelKind() override;
};
