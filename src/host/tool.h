// A tool as everybody sees it: its main table and the five interfaces.
#pragma once

#include <afxwin.h>

#include "host/listener.h"
#include "host/tool_interfaces.h"

/// Declares the main table of every tool. Main operation n is the n-th virtual operation counted from
/// `IsKindOf`, the destructor counted once: 1 to 4 are the listener's, 5 to 50 stand here, in order and
/// before anything else, and derived classes append theirs. Every tool that a module hands over is one.
/// Points, rectangles and origins are client pixels of the view.
class CTool : public CListenerObject,
              public IToolIdentity,
              public IToolObjectOps,
              public IToolInput,
              public IToolLink,
              public IToolAux {
  public:
    /// 5. A group GUID that replaces the class's own, or null.
    virtual const GUID* GetGroupIdOverride() = 0;
    virtual int GetToolRect(RECT* pRect) = 0;
    /// 7. Told of the one object that an activation or the host concerns.
    virtual void OnObjectHook(CImgNode* pNode) = 0;
    virtual int ResetHost() = 0;
    virtual void OnSetCursor(CPoint* pPoint) = 0;
    /// 10. 1 while Ctrl is down (asynchronous key state).
    virtual int IsCtrlDown() = 0;
    /// The node's mark rectangle; the view's client rectangle for null.
    virtual int GetNodeMarkRect(CImgNode* pNode, RECT* pRect) = 0;
    virtual int GetNodeOutlineMarkRect(CImgNode* pNode, RECT* pRect) = 0;
    /// 13. The node's bounds joined with those of its frame (for a frame: of what it frames).
    virtual int GetNodeRect(CImgNode* pNode, RECT* pRect) = 0;
    /// The bounds of the corner points of the node's shadow, else of the node.
    virtual int GetNodeOutlineRect(CImgNode* pNode, RECT* pRect) = 0;
    /// 15. Draws the mark of the only selected node.
    virtual int DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) = 0;
    virtual int DrawShadowMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) = 0;
    /// 17. Draws the mark of one of several selected nodes.
    virtual int DrawMarkRect(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) = 0;
    virtual int Reserved18(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) = 0;
    virtual int InvalidateSelectionMark(CImgNode* pNode) = 0;
    /// 20.
    virtual int InvalidateMarkRect(CImgNode* pNode) = 0;
    virtual int HitTestSelected(CPoint* pPoint, CImgNode* pNode) = 0;
    virtual int PtInNodeOutline(CPoint* pPoint, CImgNode* pNode) = 0;
    /// 23.
    virtual void m_fnBringForward() = 0;
    virtual void m_fnSendBackward() = 0;
    virtual void m_fnBringToFront() = 0;
    virtual void m_fnSendToBack() = 0;
    virtual int m_fnCopy(CPoint point) = 0;
    virtual int m_fnPaste(CPoint point, int nFlag) = 0;
    virtual void m_fnDelete() = 0;
    /// 30.
    virtual void Empty30() = 0;
    virtual void Empty31() = 0;
    virtual void m_fnRemoveFrame() = 0;
    virtual void m_fnRemoveShadow() = 0;
    virtual void m_fnEditTextAt(CPoint point) = 0;
    virtual void m_fnRemoveTextEffect(CPoint point) = 0;
    /// 36.
    virtual void m_fnAlignLeft() = 0;
    virtual void m_fnAlignTop() = 0;
    virtual void m_fnAlignRight() = 0;
    virtual void m_fnAlignBottom() = 0;
    virtual void m_fnAlignMiddle() = 0;
    virtual void m_fnAlignCenter() = 0;
    virtual void m_fnAlignCenters() = 0;
    virtual void m_fnDistributeVertically() = 0;
    virtual void m_fnDistributeHorizontally() = 0;
    virtual void m_fnSameWidth() = 0;
    virtual void m_fnSameHeight() = 0;
    virtual void m_fnSameSize() = 0;
    /// 48.
    virtual void Reserved48(CPoint point) = 0;
    virtual void Reserved49(CPoint point) = 0;
    /// 50. Called after every resize of the node.
    virtual void OnNodeResized(CImgNode* pNode) = 0;
};

/// A received tool by its main table; null for null.
inline CTool* AsTool(CListenerObject* pTool) { return static_cast<CTool*>(pTool); }
