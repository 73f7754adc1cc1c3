// What every tool answers, a line for each place of its tables: the shared operations do the work.
#pragma once

#include "ops/canvas.h"
#include "tools/tool_listener.h"

class CToolCore : public CToolListener {
  public:
    int QueryState(const GUID& category, int nState) override;

    const GUID* GetGroupIdOverride() override;
    int GetToolRect(RECT* pRect) override;
    void OnObjectHook(CImgNode* pNode) override;
    int ResetHost() override;
    void OnSetCursor(CPoint* pPoint) override;
    int IsCtrlDown() override;
    int GetNodeMarkRect(CImgNode* pNode, RECT* pRect) override;
    int GetNodeOutlineMarkRect(CImgNode* pNode, RECT* pRect) override;
    int GetNodeRect(CImgNode* pNode, RECT* pRect) override;
    int GetNodeOutlineRect(CImgNode* pNode, RECT* pRect) override;
    int DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) override;
    int DrawShadowMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) override;
    int DrawMarkRect(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) override;
    int Reserved18(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) override;
    int InvalidateSelectionMark(CImgNode* pNode) override;
    int InvalidateMarkRect(CImgNode* pNode) override;
    int HitTestSelected(CPoint* pPoint, CImgNode* pNode) override;
    int PtInNodeOutline(CPoint* pPoint, CImgNode* pNode) override;
    void m_fnBringForward() override;
    void m_fnSendBackward() override;
    void m_fnBringToFront() override;
    void m_fnSendToBack() override;
    int m_fnCopy(CPoint point) override;
    int m_fnPaste(CPoint point, int nFlag) override;
    void m_fnDelete() override;
    void Empty30() override;
    void Empty31() override;
    void m_fnRemoveFrame() override;
    void m_fnRemoveShadow() override;
    void m_fnEditTextAt(CPoint point) override;
    void m_fnRemoveTextEffect(CPoint point) override;
    void m_fnAlignLeft() override;
    void m_fnAlignTop() override;
    void m_fnAlignRight() override;
    void m_fnAlignBottom() override;
    void m_fnAlignMiddle() override;
    void m_fnAlignCenter() override;
    void m_fnAlignCenters() override;
    void m_fnDistributeVertically() override;
    void m_fnDistributeHorizontally() override;
    void m_fnSameWidth() override;
    void m_fnSameHeight() override;
    void m_fnSameSize() override;
    void Reserved48(CPoint point) override;
    void Reserved49(CPoint point) override;
    void OnNodeResized(CImgNode* pNode) override;

    const GUID& GetToolClassId() override;
    const GUID& GetToolGroupId() override;

    int OnToolActivate(CListenerObject* pOther, int nActivate, int nRedraw) override;
    int ClearSelection() override;
    int DeselectAll(int nRedraw) override;
    int AddToSelection(CNodeRefList& nodes) override;
    int SetSelection(CNodeRefList& nodes, int nToggle) override;
    int ShowSelectionMarks(int nShow) override;
    int RefreshNodeShadow(CImgNode* pNode, int nRedraw) override;
    int FlushSelectionArea() override;
    int RedrawSelectionArea() override;
    int GetSelectionRect(RECT* pRect) override;
    int GetSelectionOutlineRect(RECT* pRect) override;
    int FlushViewRect(const RECT* pRect) override;
    int RedrawRect(const RECT* pRect) override;
    int KeepNodeInView(CImgNode* pNode) override;
    int GetNodesRect(CNodeRefList& nodes, RECT* pRect) override;
    int GetNodeMarkArea(CImgNode* pNode, RECT* pRect) override;
    int ClassifySelection() override;
    CTextNode* CreateTextNode(const CString& strText, const CString& strFontName, COLORREF crColor,
                              int nPixelSize, int nAlignment, int nStyle) override;
    CTextNode* RecolorTextNode(CTextNode* pNode, COLORREF crColor) override;
    int ReplaceTextNode(CTextNode* pOld, CTextNode* pRebuilt, int nRedraw) override;
    int RebuildTextNodeInPlace(CTextNode* pOld, CTextNode* pRebuilt, int nRedraw) override;
    int SyncAttributePanels() override;
    int SetSharedValue(int nValue) override;
    int CopyNodeLook(CImgNode* pSource, CImgNode* pTarget) override;
    int HookNode(CImgNode* pNode) override;
    int RecordSelectionUndo() override;
    int RecordAttributeUndoForSelection(UINT nDescriptionId) override;
    int RecordAttributeUndo(CNodeRefList& nodes, UINT nDescriptionId) override;
    int RecordAddObjectUndo() override;
    int NotifyObjectsChanged() override;
    int NotifyObjectsRedrawn() override;
    int ClassifyNodes(CNodeRefList& nodes) override;
    int SyncToolPanel() override;
    int ShowNodeFrame(CImgNode* pNode, int nShow) override;
    RECT* GetNodeRectOf(RECT* pRect, CImgNode* pNode) override;
    RECT* GetNodeMarkAreaOf(RECT* pRect, CImgNode* pNode) override;
    int CanRunCommand() override;
    int MakePlaceholderFrame(CImgNode* pObject, const RECT* pRect) override;

    int OnLButtonDblClk(UINT nFlags, CPoint point) override;
    int OnLButtonDown(UINT nFlags, CPoint point) override;
    int OnLButtonUp(UINT nFlags, CPoint point) override;
    int OnMouseMove(UINT nFlags, CPoint point) override;
    int OnRButtonDown(UINT nFlags, CPoint point) override;
    int Reserved6(UINT nFlags, CPoint point) override;
    int Reserved7(UINT nFlags, CPoint point) override;
    int OnKeyDown(UINT nChar, UINT nRepeat, UINT nFlags) override;
    int OnKeyUp(UINT nChar, UINT nRepeat, UINT nFlags) override;
    int Reserved10(int nValue) override;

    int MergeIntoBaseImage(HBUF32 hImage, HBUF32 hMask, int nPercent, int nRedraw,
                           std::int32_t* pError) override;
    int DuplicateNode(CImgNode* pNode, CImgNode** ppCopy, int nAdd, std::int32_t* pError) override;
    int IsPointOnSelection(CPoint* pPoint, std::int32_t* pnAnswer, std::int32_t* pError) override;
    int CreateNodeShadow(CImgNode* pNode, int nOffsetX, int nOffsetY, COLORREF* pcrColor, int nSoftness,
                         int nTransparency, std::int32_t* pError) override;

    // The shared operations under the names by which a tool's own code and its host know them.

    int m_fnOffsetObject(CImgNode* pNode, CSize offset);
    int m_fnResizeObject(CImgNode* pNode, const CRect& rcTarget);
    CImgNode* m_fnDuplicateObject(CImgNode* pNode, int nAdd);
    CImgNode* m_fnPickReference(const CNodeRefList& nodes, int nRule);
    void m_fnCopySelection(CNodeRefList& nodes);
    void m_fnSortByStacking(CNodeRefList& nodes);
    int m_fnIsSelectionAtFront();
    int m_fnIsSelectionAtBack();
    void m_fnPrepareContextSelection(CPoint point);
    void m_fnEnableContextMenu(CMenu& menu, CPoint point);
    void m_fnKeepExcludedNodeInFront();
    int m_fnCreateShadow(CImgNode* pNode, int nOffsetX, int nOffsetY, const COLORREF* pcrColor, int nSoftness,
                         int nTransparency);
    int m_fnRemoveShadowOf(CImgNode* pNode);
    int m_fnRegenerateShadow(CImgNode* pNode);
    static HBUF32 m_fnMakeSoftMask(HBUF32 hMask, int nSoftness, CTxParam& block, CSize offset, CPoint ptBase,
                                   CPoint& ptShadow);
    int m_fnRebuildTextAtSize(CImgNode* pNode, int nPixelSize, const CPoint* pptCorner);
};
