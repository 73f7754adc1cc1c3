// The plain select tool: an object tool with an identity of its own. It pairs with no page.
#pragma once

#include "tools/object_tool.h"

/// Kind 13.
class CSelectTool : public CObjectTool {
  public:
    const GUID& GetToolClassId() override { return tool_class::Select; }
};
