// The composite tools: a shadow tool with text and display in one.
#pragma once

#include "tools/shadow_tool.h"

/// Kind 13 of the edit category.
class CTextComboTool : public CTextShadowTool {
  public:
    const GUID& GetToolClassId() override { return tool_class::TextCombo; }
};

/// Kind 15 of the edit category. It pairs with whatever page is showing.
class CAdaptiveComboTool : public CTextShadowTool {
  public:
    /// The group that the showing page names, or null.
    const GUID* GetGroupIdOverride() override;
    const GUID& GetToolClassId() override { return tool_class::AdaptiveCombo; }
    /// 7 or 12 as the showing page is of that kind, else 6.
    int GetPanelKind() override;
};
