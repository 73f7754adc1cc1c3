// The tools that set brightness, contrast and transparency.
#pragma once

#include "tools/object_tool.h"

/// Kind 15.
class CDisplayTool : public CObjectTool {
  public:
    const GUID& GetToolClassId() override { return tool_class::Display; }

    /// Presses and releases are always taken.
    int OnLButtonDown(UINT nFlags, CPoint point) override;
    int OnLButtonUp(UINT nFlags, CPoint point) override;

    /// 52. The bus kind of the host page that the tool pairs with.
    virtual int GetPanelKind();
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
    int ShowTextPage();
    IToolInput* OtherToolInput();

    bool m_bSelectedAtPress = false;
};
