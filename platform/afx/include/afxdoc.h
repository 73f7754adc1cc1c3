#pragma once

// Documents and their views.

#include "afxcoll.h"
#include "afxwnd.h"

class CDocument;
class CView;

/// What a view's creation is told, as the window's creation parameter.
struct CCreateContext {
    /// The document that the new view is added to; null for none.
    CDocument* m_pCurrentDoc = nullptr;
};

/// A document. It knows its views and owns none of them.
class CDocument : public CCmdTarget {
    DECLARE_DYNAMIC(CDocument)

    CDocument() = default;
    /// The views that are left belong to no document afterwards.
    ~CDocument() override;

    virtual BOOL IsModified() { return m_bModified; }
    virtual void SetModifiedFlag(BOOL bModified = TRUE) { m_bModified = bModified; }

    /// The view must belong to no document.
    void AddView(CView* pView);
    void RemoveView(CView* pView);
    /// Views in the order in which they were added.
    virtual POSITION GetFirstViewPosition() const { return m_viewList.GetHeadPosition(); }
    virtual CView* GetNextView(POSITION& rPosition) const;

    /// OnUpdate to every view but `pSender`; null leaves none out.
    void UpdateAllViews(CView* pSender, LPARAM lHint = 0L, CObject* pHint = nullptr);

    /// An empty, unmodified document. FALSE on failure.
    virtual BOOL OnNewDocument();
    /// Empties the document without destroying the object.
    virtual void DeleteContents() {}

  protected:
    BOOL m_bModified = FALSE;
    CPtrList m_viewList;
};

/// A window on a document. It is deleted when its window goes.
class CView : public CWnd {
    DECLARE_DYNAMIC(CView)

    CDocument* GetDocument() const { return m_pDocument; }
    /// Called once when the view is attached to its document and ready to show.
    virtual void OnInitialUpdate() { OnUpdate(nullptr, 0L, nullptr); }

  protected:
    CView() = default;
    /// Leaves its document.
    ~CView() override;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override { delete this; }

    virtual void OnDraw(CDC* pDC) = 0;
    /// The document has changed. The view is repainted whole.
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);

    afx_msg int OnCreate(LPCREATESTRUCT lpcs);
    afx_msg void OnPaint();

    DECLARE_MESSAGE_MAP()

  private:
    friend class CDocument;

    CDocument* m_pDocument = nullptr;
};
