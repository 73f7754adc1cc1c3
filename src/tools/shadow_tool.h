// The tools that set and drag shadows.
#pragma once

#include "tools/object_tool.h"

/// Kind 17.
class CShadowTool : public CObjectTool {
  public:
    const GUID& GetToolClassId() override { return tool_class::Shadow; }

    /// 52. Flushes the outline mark of an object that has a shadow. 1, or 0 when it has none.
    virtual int InvalidateShadowMark(CImgNode* pNode);
    /// 53. The bus kind of the host page that the tool pairs with.
    virtual int GetPanelKind();
};

/// Kind 21: of the object page.
class CImageShadowTool : public CShadowTool {
  public:
    const GUID& GetToolClassId() override { return tool_class::ImageShadow; }
};

/// Kind 26: of the text page. The composite tools are built on it.
class CTextShadowTool : public CShadowTool {
  public:
    const GUID& GetToolClassId() override { return tool_class::TextShadow; }
};
