#include "afxdoc.h"

IMPLEMENT_DYNAMIC(CDocument, CCmdTarget)

CDocument::~CDocument() {
    for (POSITION pos = GetFirstViewPosition(); pos;) {
        GetNextView(pos)->m_pDocument = nullptr;
    }
}

void CDocument::AddView(CView* pView) {
    ASSERT(pView->m_pDocument == nullptr);
    if (m_viewList.AddTail(pView)) {
        pView->m_pDocument = this;
    }
}

void CDocument::RemoveView(CView* pView) {
    if (const POSITION pos = m_viewList.Find(pView)) {
        m_viewList.RemoveAt(pos);
        pView->m_pDocument = nullptr;
    }
}

CView* CDocument::GetNextView(POSITION& rPosition) const {
    return static_cast<CView*>(m_viewList.GetNext(rPosition));
}

void CDocument::UpdateAllViews(CView* pSender, LPARAM lHint, CObject* pHint) {
    for (POSITION pos = GetFirstViewPosition(); pos;) {
        CView* const pView = GetNextView(pos);
        if (pView != pSender) {
            pView->OnUpdate(pSender, lHint, pHint);
        }
    }
}

BOOL CDocument::OnNewDocument() {
    DeleteContents();
    SetModifiedFlag(FALSE);
    return TRUE;
}
