// The canvas view: conversions between client pixels and document units, the display cache, hit tests.
#pragma once

#include <memory>

#include <afxwin.h>

#include "host/img_doc.h"

class CDisplayCache;

/// The view of a CVorDoc. Client pixels and document units convert by zoom and scroll, rounded to nearest
/// with halves away from zero, after the scroll offset; a rectangle converts by its corners.
class CVorView : public CView {
  public:
    CVorView();
    ~CVorView() override;

    virtual void ViewPointToDoc(const CPoint& ptClient, CPoint& ptDoc);
    virtual void DocPointToView(const CPoint& ptDoc, CPoint& ptClient);
    virtual void ViewRectToDoc(const CRect& rcClient, CRect& rcDoc);
    virtual void DocRectToView(const CRect& rcDoc, CRect& rcClient);
    /// Repaints the client rectangle at once, erasing first when `nErase` is 1.
    virtual void RepaintViewRect(const CRect& rcClient, int nErase);

    /// The topmost node whose mask holds the client point, companions included, or null.
    CImgNode* m_fnNodeUnderPt(CPoint& ptClient);
    /// The first selected node whose outline contains the client point, or null.
    CImgNode* m_fnSelectedNodeBoundaryUnderPt(CPoint& ptClient);
    /// Composes the client rectangle of the display cache afresh from the document and invalidates it on the
    /// window.
    void m_fnFlushCacheRect(CRect& rcClient);
    /// A copy of the display cache's pixels in the client rectangle, clipped to the client area. The caller
    /// deletes the bitmap. Null when the rectangle is empty or no bitmap can be made.
    HBITMAP m_fnGetDisplayCache(CRect& rcClient);
    /// Copies the bitmap's pixels into the display cache with its top-left at the client point. The caller
    /// keeps the bitmap.
    void m_fnUpdateDisplayCache(CPoint& ptClient, HBITMAP hBitmap);

    CVorDoc* GetVorDoc() const { return static_cast<CVorDoc*>(GetDocument()); }

    double m_dZoom = 1.0; ///< view pixels per document unit
    CPoint m_ptScroll;    ///< the document point at the client's top-left

  protected:
    void OnDraw(CDC* pDC) override;
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);

    DECLARE_MESSAGE_MAP()

  private:
    friend struct CViewHost;
    std::unique_ptr<CDisplayCache> m_pCache;
};
