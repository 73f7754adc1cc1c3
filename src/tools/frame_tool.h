// The tools that put picture frames around objects.
#pragma once

#include "tools/object_tool.h"

/// Kind 16.
class CFrameToolBase : public CObjectTool {
  public:
    const GUID& GetToolClassId() override { return tool_class::FrameBase; }

    /// 52. The bus kind of the host page that the tool pairs with.
    virtual int GetPanelKind();
};

/// Kind 20: the one that the host receives.
class CFrameTool : public CFrameToolBase {
  public:
    const GUID& GetToolClassId() override { return tool_class::Frame; }
};
