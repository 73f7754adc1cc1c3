// The composite tools: a shadow tool with text and display in one.
#pragma once

#include "tools/text_shadow_tool.h"

/// Kind 13 of the edit category.
class CTextComboTool : public CTextShadowTool {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    const GUID& GetToolClassId() override;
};

/// Kind 15 of the edit category. It pairs with whatever page is showing.
class CAdaptiveComboTool : public CTextShadowTool {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    /// The group that the showing page names, or null.
    const GUID* GetGroupIdOverride() override;
    const GUID& GetToolClassId() override;
    /// 7 or 12 as the showing page is of that kind, else 6.
    int GetPanelKind() override;
};
