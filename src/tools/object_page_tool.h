// The tool of the object page.
#pragma once

#include "tools/basic_object_tool.h"

/// Kind 18.
class CObjectPageTool : public CBasicObjectTool {
  public:
    const GUID& GetToolClassId() override { return tool_class::ObjectPage; }

    /// A press that leaves this the current tool tells the object page of it.
    int OnLButtonDown(UINT nFlags, CPoint point) override;
};
