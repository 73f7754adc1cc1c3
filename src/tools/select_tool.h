// The plain select tool: an object tool with an identity of its own. It pairs with no page.
#pragma once

#include "tools/object_tool.h"

/// Kind 13.
class CSelectTool : public CObjectTool {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    const GUID& GetToolClassId() override;
    const GUID& GetToolGroupId() override;
};
