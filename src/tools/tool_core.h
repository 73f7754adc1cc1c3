// The click behaviour that all tools share: selecting, handing a press or release to the current tool, marks,
// cursors, notifications, and the object commands.
#pragma once

#include "ops/axis.h"
#include "ops/canvas.h"
#include "ops/handles.h"
#include "tools/tool_listener.h"

class CObjectTool;
class CRefresh;
struct TextAttributes;

class CToolCore : public CToolListener {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    int QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) override;
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

    // What undo events and derived tools use besides the interfaces.

    /// Moves the object with its frame and its shadow by (cx, cy) document units. 1 (also for null, which
    /// moves nothing), or 0 for a shadow or frame node, which is never moved on its own.
    int m_fnOffsetObject(CImgNode* pNode, CSize offset);
    /// Resizes the object to the rectangle (document units) together with its frame, and rebuilds its shadow.
    /// 1 (also for null), or 0 for a shadow or frame node and for a text that cannot be rebuilt.
    int m_fnResizeObject(CImgNode* pNode, const CRect& rcTarget);
    /// The reference object of an alignment, in client pixels and the order of the list: the first that is
    /// most extreme. Rules: 0 smallest left, 1 smallest right, 2 smallest top, 3 smallest bottom, 4 largest
    /// right, 6 largest bottom, 7 largest top, else largest left. Null for an empty list.
    CImgNode* m_fnPickReference(const CNodeRefList& nodes, int nRule);

    /// Gives the object a shadow: offsets and softness in document units, `pcrColor` its colour, transparency
    /// 0 (opaque) to 100. A shadow that it has goes first. 1 (also for null), or 0 when it cannot be made;
    /// the object has no shadow then.
    int m_fnCreateShadow(CImgNode* pNode, int nOffsetX, int nOffsetY, const COLORREF* pcrColor, int nSoftness,
                         int nTransparency);
    /// Takes the object's shadow off and frees it; the parameters stay. Answers 1.
    int m_fnRemoveShadowOf(CImgNode* pNode);
    /// Builds the object's shadow again from its parameters; one that was off the page stays off it. 1, or 0
    /// without a document.
    int m_fnRegenerateShadow(CImgNode* pNode);
    /// A copy of the object with copies of its companions, put at the front of the page when `nAdd` is 1;
    /// null on failure.
    CImgNode* m_fnDuplicateObject(CImgNode* pNode, int nAdd);
    /// The area of a list of nodes with their shadows: mark rectangles for a single node, plain ones for
    /// several.
    CRect AreaOf(const CNodeRefList& nodes);
    /// The same with stored settings, offsets and softness truncated.
    int m_fnCreateShadow(CImgNode* pNode, const CShadowParam& param);

    /// CreateTextNode with the attributes together, and with those of another text object.
    CTextNode* m_fnCreateText(const CString& strText, const TextAttributes& attributes);
    CTextNode* m_fnCreateTextLike(const CTextNode& node);
    /// Rebuilds the text object at a font size in pixels, with its look, and puts the top-left of its bounds
    /// with frame at the point (document units). 1, also when it has that size already; 0 for null, for
    /// another object and when it cannot be rebuilt; then it stays as it is.
    int m_fnRebuildTextAtSize(CImgNode* pNode, int nPixelSize, const CPoint* pptCorner);

    /// This tool as undo events know it.
    CObjectTool* AsObjectTool();

  protected:
    /// The override's group GUID when there is one, else the class's own.
    const GUID& GroupIdOr(const GUID& classGroup);

    // Selection.
    void SelectOnlyNode(CImgNode* pNode);
    void ToggleNode(CImgNode* pNode);
    void ToggleNodes(CCanvas& canvas, CNodeRefList& nodes);
    static void SelectNode(CCanvas& canvas, CImgNode* pNode, int nAdd);
    static void m_fnCopySelection(CCanvas& canvas, CNodeRefList& nodes);
    /// The selected top-level objects, front-most first.
    static void m_fnSortByStacking(CCanvas& canvas, CNodeRefList& nodes);
    void m_fnKeepExcludedNodeInFront(CCanvas& canvas);
    CImgNode* OnlySelectedNode(CCanvas& canvas);

    // Hit tests, in client pixels.
    CImgNode* NodeUnderPoint(CPoint point);
    /// What a click there is meant for: a frame stands for its object, a shadow is nothing.
    CImgNode* ClickedNode(CPoint point);
    bool IsOnExcludedNode(CPoint point);
    bool IsOnSelection(CPoint point);
    Corners CornersOfNode(CImgNode* pNode);

    // Marks.
    /// Adds the node's mark area, its shadow's included.
    void AddMarkArea(CImgNode* pNode, CRefresh& refresh);
    void DrawMarkIntoCache(CCanvas& canvas, CRect rcMark, CImgNode* pNode, bool bOnly);
    int InvalidateStrips(const CRect& rc, int nWidth);
    /// Shows a system cursor now and makes it the view's class cursor, so that it stays while the pointer is
    /// still.
    void ShowCursor(int nCursorId);

  private:
    enum class Click { Plain, Text, NewObject };

    void Toggle(CCanvas& canvas, CNodeRefList& nodes);

    int ClickEmptyGround();
    int ClickObject(CCanvas& canvas, CImgNode* pNode, UINT nFlags, CPoint point);
    Click ClassifyClick(const CCanvas& canvas, const CImgNode* pNode);
    bool AnnounceClick(CCanvas& canvas, Click click, const CImgNode* pNode);
    void SelectByClick(CImgNode* pNode);
    static int HandOverPress(IToolInput& input, UINT nFlags, CPoint point);

    void TakeOverMarks(CListenerObject* pOther);
    int SelectAll(CCanvas& canvas);
    int CopyByKey(CCanvas& canvas);
    int PasteByKey(CCanvas& canvas);
    bool FillPanels(CListenerObject& page, bool bTextValues);

    static HBUF32 m_fnMakeSoftMask(HBUF32 hMask, int nSoftness, CTxParam& block, CSize offset, CPoint ptBase,
                                   CPoint& ptShadow);
    static CImgNode* MakeShadowNode(CCanvas& canvas, CImgNode& object, const CTxParam& block, HBUF32 hSoft,
                                    COLORREF crColor);

    int ResizeText(CTextNode& node, const CRect& rcTarget);
    bool RemoveEffect(CTextNode& node, CRefresh& refresh);
    CTextNode* TextInLookOf(const CTextNode& target, const CTextNode& source);
    void TakeTextLook(CTextNode& target, CTextNode& rebuilt, const CTextNode& source);
    void ShowReplaced(const CRect& rcArea, int nRedraw);
    void MoveRebuilt(CTextNode& node, CPoint ptCorner);

    void FinishStacking(CCanvas& canvas);
    void AlignEdge(int nRule);
    void AlignToMiddle(bool bHorizontally, bool bVertically);
    void Distribute(Axis axis);
    void KeepBetween(const CCanvas& canvas, Axis axis, CImgNode* pNode, const CRect& rcFirst,
                     const CRect& rcLast);
    void MatchSizes(bool bWidth, bool bHeight);
};
