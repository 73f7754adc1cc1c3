// The menu page: its objects, its selection, its base image.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include <afxwin.h>

#include "host/buffer.h"
#include "host/img_node_list.h"

class CSpatialIndex;

/// The image engine's document. It keeps a set of every node made for it and frees those that are left with
/// itself.
class CImgDoc : public CDocument {
  public:
    /// A page of `nWidth` by `nHeight` document units.
    CImgDoc(int nWidth, int nHeight);
    ~CImgDoc() override;

    /// Every node of the page, companions included, front-most first. Owned by the document.
    CImgNodeList* GetObjList() { return &m_objList; }
    /// The base image (24-bit), or 0. Owned by the document.
    HBUF32 GetBaseImage() const { return m_hBaseImage; }
    /// Makes `hImage` the base image, which the document owns from then on. The former one is not freed; its
    /// owner is the caller again.
    virtual void SetBaseImage(HBUF32 hImage);
    /// Puts a companion into the object list for its object: `nAfter` 1 directly behind it (a shadow), 0
    /// directly before it (a frame). When the object is off the page, the companion goes to the head. Answers
    /// 1, or 0 for a null node.
    virtual int InsertNodeFor(CImgNode* pObject, CImgNode* pNode, int nAfter);

    /// Identity of the page, never used twice in a process and never 0.
    std::uint32_t PageId() const { return m_nPageId; }
    int PageWidth() const { return m_nWidth; }
    int PageHeight() const { return m_nHeight; }

  protected:
    friend class CImgNode;
    friend class CImgNodeList;
    friend struct CNodeBookkeeping;

    std::uint32_t m_nPageId;
    int m_nWidth;
    int m_nHeight;
    HBUF32 m_hBaseImage = 0;
    CImgNodeList m_objList;
    CImgNodeList m_actList;
    std::vector<CImgNode*> m_nodeSet;
    std::unique_ptr<CSpatialIndex> m_pIndex;
};

/// The document of the menu canvas.
class CVorDoc : public CImgDoc {
  public:
    CVorDoc(int nWidth, int nHeight);
    ~CVorDoc() override;

    /// The selected nodes, in the order of selection. Owned by the document.
    CImgNodeList* GetActList() { return &m_actList; }
    /// The untouched copy of the base image, or 0. Owned by the document.
    HBUF32 m_fnGetSrcBaseImage() const { return m_hSrcBaseImage; }
    /// Stores the source base image; the document owns it from then on and frees the former one.
    void m_fnSetSrcBaseImage(HBUF32 hImage);

  private:
    HBUF32 m_hSrcBaseImage = 0;
};
