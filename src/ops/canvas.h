// The document and its view, found over the bus at the moment of use.
#pragma once

#include "host/img_doc.h"
#include "host/vor_view.h"

class CListenerObject;

/// Found once at the top of an operation and tested there; nothing of it outlives the operation.
class CCanvas {
  public:
    /// Searches with `seeker`: the kind-4 object's active document and that document's first view.
    explicit CCanvas(CListenerObject& seeker);

    bool HasDocument() const { return m_pDoc != nullptr; }
    explicit operator bool() const { return m_pDoc && m_pView; }

    /// The identity of the document's page, 0 without one.
    std::uint32_t PageId() const { return m_pDoc ? m_pDoc->PageId() : 0; }
    CVorDoc& Document() const { return *m_pDoc; }
    CVorView& View() const { return *m_pView; }
    CImgNodeList& Objects() const { return *m_pDoc->GetObjList(); }
    CImgNodeList& Selection() const { return *m_pDoc->GetActList(); }

    /// These three also answer without a document.
    bool HasSelection() const { return m_pDoc && !Selection().IsEmpty(); }
    /// The selected node when there is exactly one, else null.
    CImgNode* OnlySelected() const;
    CImgNode* FirstSelected() const { return HasSelection() ? Selection().GetHead() : nullptr; }
    bool IsSelected(const CImgNode* pNode) const { return Selection().Find(pNode) != nullptr; }

    CRect ClientRect() const;
    CPoint ToDocument(CPoint ptClient) const;
    CRect ToDocument(const CRect& rcClient) const;
    CPoint ToClient(CPoint ptDoc) const;
    CRect ToClient(const CRect& rcDoc) const;
    /// A distance converts as the difference of two converted points.
    CSize DeltaToDocument(CSize delta) const;
    CSize DeltaToClient(CSize delta) const;

  private:
    CVorDoc* m_pDoc = nullptr;
    CVorView* m_pView = nullptr;
};
