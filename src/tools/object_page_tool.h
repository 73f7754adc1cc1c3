// The tool of the object page.
#pragma once

#include "tools/basic_object_tool.h"

/// Kind 18.
class CObjectPageTool : public CBasicObjectTool {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    const GUID& GetToolClassId() override;
    const GUID& GetToolGroupId() override;
    int GetPanelKind() override;
};
