// The main operations of a tool as a host calls them.
#pragma once

#include <afxwin.h>

#include "host/listener.h"

class CImgNode;

/// The common part of every tool's main table, in the order of the contract: operation n is the n-th virtual
/// one, the destructor counted once. Nothing is ever made of this class; a received tool is one
/// (`OperationsOf`). Points, rectangles and origins are client pixels of the view.
class CToolOperations : public CListenerObject {
  public:
    virtual const GUID* GetGroupIdOverride() = 0;
    virtual int GetToolRect(RECT* pRect) = 0;
    virtual void OnObjectHook(CImgNode* pNode) = 0;
    virtual int ResetHost() = 0;
    virtual void OnSetCursor(CPoint* pPoint) = 0;
    /// 10.
    virtual int IsCtrlDown() = 0;
    virtual int GetNodeMarkRect(CImgNode* pNode, RECT* pRect) = 0;
    virtual int GetNodeOutlineMarkRect(CImgNode* pNode, RECT* pRect) = 0;
    virtual int GetNodeRect(CImgNode* pNode, RECT* pRect) = 0;
    virtual int GetNodeOutlineRect(CImgNode* pNode, RECT* pRect) = 0;
    virtual int DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) = 0;
    virtual int Reserved16(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) = 0;
    virtual int DrawMarkRect(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) = 0;
    virtual int Reserved18(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) = 0;
    virtual int InvalidateSelectionMark(CImgNode* pNode) = 0;
    /// 20.
    virtual int InvalidateMarkRect(CImgNode* pNode) = 0;
    virtual int HitTestSelected(CPoint* pPoint, CImgNode* pNode) = 0;
    virtual int PtInNodeOutline(CPoint* pPoint, CImgNode* pNode) = 0;
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
    virtual void m_fnAlignLeft() = 0;
    virtual void m_fnAlignTop() = 0;
    virtual void m_fnAlignRight() = 0;
    virtual void m_fnAlignBottom() = 0;
    /// 40.
    virtual void m_fnAlignMiddle() = 0;
    virtual void m_fnAlignCenter() = 0;
    virtual void m_fnAlignCenters() = 0;
    virtual void m_fnDistributeVertically() = 0;
    virtual void m_fnDistributeHorizontally() = 0;
    virtual void m_fnSameWidth() = 0;
    virtual void m_fnSameHeight() = 0;
    virtual void m_fnSameSize() = 0;
    virtual void Reserved48(CPoint point) = 0;
    virtual void Reserved49(CPoint point) = 0;
    /// 50.
    virtual void OnNodeResized(CImgNode* pNode) = 0;
};

/// The received tool by its main table; null for null.
inline CToolOperations* OperationsOf(CListenerObject* pTool) { return static_cast<CToolOperations*>(pTool); }
