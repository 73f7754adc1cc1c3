#include "host/img_doc.h"

#include "image/node_host.h"
#include "image/spatial_index.h"
#include "trace/trace.h"

namespace {

std::uint32_t g_nLastPageId = 0;

} // namespace

CImgDoc::CImgDoc(int nWidth, int nHeight)
    : m_nPageId(++g_nLastPageId), m_nWidth(nWidth), m_nHeight(nHeight),
      m_objList(this, CImgNodeList::Role::Objects), m_actList(this, CImgNodeList::Role::Selection),
      m_pIndex(std::make_unique<CSpatialIndex>()) {}

CImgDoc::~CImgDoc() {
    while (!m_nodeSet.empty()) {
        delete m_nodeSet.back();
    }
    if (m_hBaseImage != 0) {
        buf32Free(m_hBaseImage);
    }
}

void CImgDoc::SetBaseImage(HBUF32 hImage) {
    if (trace::IsOn()) {
        trace::Call("doc", "SetBaseImage", {trace::Pointer{hImage != 0}});
    }
    m_hBaseImage = hImage;
}

int CImgDoc::InsertNodeFor(CImgNode* pObject, CImgNode* pNode, int nAfter) {
    if (!pNode) {
        return 0;
    }
    const POSITION place = m_objList.Find(pObject);
    POSITION entered = nullptr;
    if (!place) {
        entered = m_objList.AddHead(pNode);
    } else if (nAfter == 1) {
        entered = m_objList.InsertAfter(place, pNode);
    } else {
        entered = m_objList.InsertBefore(place, pNode);
    }
    return entered != nullptr;
}

CVorDoc::CVorDoc(int nWidth, int nHeight) : CImgDoc(nWidth, nHeight) {}

CVorDoc::~CVorDoc() {
    if (m_hSrcBaseImage != 0) {
        buf32Free(m_hSrcBaseImage);
    }
}

void CVorDoc::m_fnSetSrcBaseImage(HBUF32 hImage) {
    if (trace::IsOn()) {
        trace::Call("doc", "SetSrcBaseImage", {trace::Pointer{hImage != 0}});
    }
    if (m_hSrcBaseImage != 0 && m_hSrcBaseImage != hImage) {
        buf32Free(m_hSrcBaseImage);
    }
    m_hSrcBaseImage = hImage;
}
