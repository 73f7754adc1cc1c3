// The text tool inside a composite tool.
#pragma once

#include "text/tools/text_tool.h"
#include "tools/listener_linker.h"

/// Works for its owner, and is linked on the bus only while it does. Without an owner it declines all input.
class CEmbeddedTextTool : public CListenerLinker, public CTextTool {
  public:
    CTool* GetEmbedded() override { return this; }

    void OnObjectHook(CImgNode* pNode) override;
    /// Also reads the transparency that the text page shows.
    int ResetHost() override;
    int GetNodeMarkRect(CImgNode* pNode, RECT* pRect) override;
    int GetNodeOutlineMarkRect(CImgNode* pNode, RECT* pRect) override;
    int DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) override;
    int DrawShadowMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) override;
    int InvalidateSelectionMark(CImgNode* pNode) override;
    int HitTestSelected(CPoint* pPoint, CImgNode* pNode) override;

    /// Each answers 1 when the text tool takes the event; 0 leaves it to the owner.
    int OnLButtonDblClk(UINT nFlags, CPoint point) override;
    int OnLButtonDown(UINT nFlags, CPoint point) override;
    int OnLButtonUp(UINT nFlags, CPoint point) override;

    int SetFontName(const CString& strName) override;
    int SetFontSize(int nPoints) override;
    int SetAlignment(int nIndex) override;
    int SetStyle(int nBits) override;
    int SetColor(COLORREF crText) override;

    void OnInputEnded(CInplaceEditor* pEditor) override;
    using CTextTool::EditTextNode;
    int EditTextNode(CImgNode* pNode, const CPoint* pPoint) override;

    /// The transparency last shown by the text page; -1 before.
    int ShownTransparency() const { return m_nTransparency; }

  private:
    int m_nTransparency = -1;
};
