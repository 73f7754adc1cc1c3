#include "ops/canvas.h"

#include "host/document_service.h"
#include "ops/bus.h"

CCanvas::CCanvas(CListenerObject& seeker) {
    IDocumentService* pService = bus::FindService<IDocumentService>(seeker, kind::Document);
    m_pDoc = pService ? pService->GetActiveDocument() : nullptr;
    if (!m_pDoc) {
        return;
    }
    POSITION position = m_pDoc->GetFirstViewPosition();
    m_pView = position ? static_cast<CVorView*>(m_pDoc->GetNextView(position)) : nullptr;
}

CImgNode* CCanvas::OnlySelected() const {
    return m_pDoc && Selection().GetCount() == 1 ? Selection().GetHead() : nullptr;
}

CRect CCanvas::ClientRect() const {
    CRect rcClient;
    m_pView->GetClientRect(&rcClient);
    return rcClient;
}

CPoint CCanvas::ToDocument(CPoint ptClient) const {
    CPoint ptDoc;
    m_pView->ViewPointToDoc(ptClient, ptDoc);
    return ptDoc;
}

CRect CCanvas::ToDocument(const CRect& rcClient) const {
    CRect rcDoc;
    m_pView->ViewRectToDoc(rcClient, rcDoc);
    return rcDoc;
}

CPoint CCanvas::ToClient(CPoint ptDoc) const {
    CPoint ptClient;
    m_pView->DocPointToView(ptDoc, ptClient);
    return ptClient;
}

CRect CCanvas::ToClient(const CRect& rcDoc) const {
    CRect rcClient;
    m_pView->DocRectToView(rcDoc, rcClient);
    return rcClient;
}

CSize CCanvas::DeltaToDocument(CSize delta) const {
    return ToDocument(CPoint(delta.cx, delta.cy)) - ToDocument(CPoint(0, 0));
}

CSize CCanvas::DeltaToClient(CSize delta) const {
    return ToClient(CPoint(delta.cx, delta.cy)) - ToClient(CPoint(0, 0));
}
