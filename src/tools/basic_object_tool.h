// The plain base of the object page tool and of the text tools.
#pragma once

#include "tools/object_tool.h"

/// Kind 14.
class CBasicObjectTool : public CObjectTool, public ISelectOnly {
  public:
    int QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) override;
    const GUID& GetToolClassId() override { return tool_class::BasicObject; }

    /// 52. The bus kind of the host page that the tool pairs with.
    virtual int GetPanelKind();

    int SelectOnly(CImgNode* pNode) override;
};
