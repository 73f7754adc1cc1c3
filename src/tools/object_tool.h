// Resizing one selected object with its eight handles. Every tool that the host receives is one of these.
#pragma once

#include "tools/tool_base.h"

class CObjectTool : public CToolBase {
  public:
    void OnSetCursor(CPoint* pPoint) override;
    int GetNodeMarkRect(CImgNode* pNode, RECT* pRect) override;
    int DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) override;
    int InvalidateSelectionMark(CImgNode* pNode) override;
    int HitTestSelected(CPoint* pPoint, CImgNode* pNode) override;
    void m_fnDelete() override;
    const GUID& GetToolClassId() override { return tool_class::Object; }

    int OnToolActivate(CListenerObject* pOther, int nActivate, int nRedraw) override;
    int OnLButtonDown(UINT nFlags, CPoint point) override;
    int OnLButtonUp(UINT nFlags, CPoint point) override;
    int OnMouseMove(UINT nFlags, CPoint point) override;
    int OnRButtonDown(UINT nFlags, CPoint point) override;
    int CanRunCommand() override { return IsResizing() ? 0 : CToolBase::CanRunCommand(); }

    /// 51. A new text object for the rectangle (document units) that a drag of the handle gave, owned by the
    /// caller; null for anything but a text object.
    virtual CTextNode* ResizeTextNode(CImgNode* pNode, RECT* pRect, int nHandle);

  protected:
    bool IsResizing() const { return m_nResizing == 1; }

  private:
    void StartResize(CPoint point, int nHandle);
    void StepResize(CImgNode* pNode);
    int FinishResize(CPoint point);
    void CancelResize();
    void EraseOutline();

    Corners CornersAt(const CCanvas& canvas, CImgNode* pNode, CPoint point);
    void RemoveHandles(CImgNode* pNode);
    void DrawOutline(const CCanvas& canvas, const Corners& corners);
    void ApplyResize(CImgNode* pNode);
    CRect ResizedRect(const CCanvas& canvas, CImgNode* pNode);
    void ResizeNode(CImgNode* pNode, CRect rcDoc);

    int m_nFirstStep = 1;
    CPoint m_ptPrevious; ///< client pixels; so the next
    CPoint m_ptCurrent;
    int m_nResizing = 0;
    int m_nHandle = 0;     ///< the active handle, 0 to 7
    CRect m_rcLastOutline; ///< the client area where the outline was drawn last
};
