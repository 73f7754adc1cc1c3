// The tool that writes text on the page.
#pragma once

#include "text/text_tool_base.h"

/// Kind 23.
class CTextTool : public CTextToolBase {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    const GUID& GetToolClassId() override;
    const GUID& GetToolGroupId() override;
    int GetPanelKind() override;
};
