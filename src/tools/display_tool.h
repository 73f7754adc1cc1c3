// The tools that set brightness, contrast and transparency.
#pragma once

#include "tools/object_tool.h"

/// Kind 15.
class CDisplayTool : public CObjectTool, public ISelectionDisplay, public INodeDisplay {
  public:
    int QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) override;
    const GUID& GetToolClassId() override { return tool_class::Display; }

    /// Presses and releases are always taken.
    int OnLButtonDown(UINT nFlags, CPoint point) override;
    int OnLButtonUp(UINT nFlags, CPoint point) override;

    /// 52. The bus kind of the host page that the tool pairs with.
    virtual int GetPanelKind();

    int SetSelectionDisplay(int nBrightness, int nContrast, int nTransparency) override;
    int SetNodeDisplay(CImgNode* pNode, int nBrightness, int nContrast, int nTransparency,
                       std::int32_t* pError) override;
};

/// Kind 19: of the object page.
class CDisplayPageTool : public CDisplayTool {
  public:
    const GUID& GetToolClassId() override { return tool_class::DisplayPage; }
};

/// Kind 24: of the text page. A click on empty ground goes on to the tool that is current by then.
class CTextDisplayTool : public CDisplayTool {
  public:
    const GUID& GetToolClassId() override { return tool_class::TextDisplay; }

    int OnLButtonDblClk(UINT nFlags, CPoint point) override;
    int OnLButtonDown(UINT nFlags, CPoint point) override;
    int OnLButtonUp(UINT nFlags, CPoint point) override;

  private:
    bool IsClickOnNothing(CPoint point);

    bool m_bSelectedAtPress = false;
};
