// The tools that set and drag shadows.
#pragma once

#include <memory>

#include "tools/object_tool.h"
#include "undo/recorder.h"
#include "undo/shadow_changed_event.h"

/// Kind 17. Marks the shadow of the only selected object and moves it by its round handle.
class CShadowTool : public CObjectTool, public IShadowSettings {
  public:
    int QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) override;
    void OnSetCursor(CPoint* pPoint) override;
    int GetNodeMarkRect(CImgNode* pNode, RECT* pRect) override;
    int GetNodeOutlineMarkRect(CImgNode* pNode, RECT* pRect) override;
    int DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) override;
    int DrawShadowMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) override;
    int InvalidateSelectionMark(CImgNode* pNode) override;
    int HitTestSelected(CPoint* pPoint, CImgNode* pNode) override;
    const GUID& GetToolClassId() override { return tool_class::Shadow; }

    int OnToolActivate(CListenerObject* pOther, int nActivate, int nRedraw) override;
    int OnLButtonDown(UINT nFlags, CPoint point) override;
    int OnLButtonUp(UINT nFlags, CPoint point) override;
    int OnMouseMove(UINT nFlags, CPoint point) override;
    int OnRButtonDown(UINT nFlags, CPoint point) override;
    int CanRunCommand() override { return IsDraggingShadow() ? 0 : CObjectTool::CanRunCommand(); }

    /// 52. Flushes the outline mark of an object that has a shadow. 1, or 0 when it has none.
    virtual int InvalidateShadowMark(CImgNode* pNode);
    /// 53. The bus kind of the host page that the tool pairs with.
    virtual int GetPanelKind();

    int GetCount() override;
    int ApplyShadow(int nOffsetX, int nOffsetY, const COLORREF* pcrColor, int nSoftness,
                    int nTransparency) override;
    int SetOffset(int nMask, int nX, int nY) override;
    int SetColor(const COLORREF* pcrColor) override;
    int SetSoftness(int nSoftness) override;
    int SetTransparency(int nTransparency) override;
    int RemoveShadows() override;

  protected:
    bool IsDraggingShadow() const { return m_nDragging == 1; }

  private:
    int StartShadowDrag(CPoint point);
    int StepShadowDrag(CPoint point);
    int FinishShadowDrag(CPoint point);
    void CancelShadowDrag();

    CPoint Clamped(CPoint point);
    void PlaceShadow();
    void ShowOffset(const CImgNode& object);

    int m_nDragging = 0;
    CPoint m_ptPlaced; ///< where the shadow was placed last, client pixels
    CPoint m_ptLatest; ///< the latest accepted point of the pointer, client pixels
    CUndoRecorder<CShadowMoveChangedUndoEvent> m_shadowRecorder;
    std::unique_ptr<CShadowMoveChangedUndoEvent> m_pShadowAfter;
};

/// Kind 21: of the object page. A text object has no shadow mark here; the others show theirs while the
/// host's shadow page is showing.
class CImageShadowTool : public CShadowTool {
  public:
    int GetNodeMarkRect(CImgNode* pNode, RECT* pRect) override;
    int DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) override;
    int InvalidateSelectionMark(CImgNode* pNode) override;
    int HitTestSelected(CPoint* pPoint, CImgNode* pNode) override;
    const GUID& GetToolClassId() override { return tool_class::ImageShadow; }

  private:
    bool ShowsShadowMark(CImgNode* pNode);
};

/// Kind 26: of the text page. Shadow marks are shown while the host's shadow page is. The composite tools are
/// built on it.
class CTextShadowTool : public CShadowTool {
  public:
    int DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) override;
    int HitTestSelected(CPoint* pPoint, CImgNode* pNode) override;
    const GUID& GetToolClassId() override { return tool_class::TextShadow; }

    int OnLButtonDblClk(UINT nFlags, CPoint point) override;
    int OnLButtonDown(UINT nFlags, CPoint point) override;

  private:
    bool IsShadowPress(CPoint point);
};
