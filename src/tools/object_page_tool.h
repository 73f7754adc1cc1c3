// The tool of the object page.
#pragma once

#include "tools/basic_object_tool.h"

/// Kind 18.
class CObjectPageTool : public CBasicObjectTool {
  public:
    const GUID& GetToolClassId() override { return tool_class::ObjectPage; }
};
