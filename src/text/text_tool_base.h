// The tool that holds the current text attributes.
#pragma once

#include "tools/basic_object_tool.h"

/// Kind 22. It is a tool in its own right as well as a base.
class CTextToolBase : public CBasicObjectTool {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    const GUID& GetToolClassId() override;
};
