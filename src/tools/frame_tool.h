// The tools that put picture frames around objects.
#pragma once

#include "tools/object_tool.h"

/// Kind 16.
class CFrameToolBase : public CObjectTool {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    const GUID& GetToolClassId() override;

    /// 52. The bus kind of the host page that the tool pairs with.
    virtual int GetPanelKind();
};

/// Kind 20: the one that the host receives.
class CFrameTool : public CFrameToolBase {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    const GUID& GetToolClassId() override;
    const GUID& GetToolGroupId() override;
    int GetPanelKind() override;
};
