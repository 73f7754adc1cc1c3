// The base of the tools that set and drag shadows.
#pragma once

#include "tools/object_tool.h"

/// Kind 17.
class CShadowTool : public CObjectTool {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    const GUID& GetToolClassId() override;

    /// 52. Flushes the outline mark of an object that has a shadow. 1, or 0 when it has none.
    virtual int InvalidateShadowMark(CImgNode* pNode);
    /// 53. The bus kind of the host page that the tool pairs with.
    virtual int GetPanelKind();
};
