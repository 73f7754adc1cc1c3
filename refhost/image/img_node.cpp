#include "host/img_node.h"

#include <memory>

#include "buffer/buffer_host.h"
#include "host/frame_param.h"
#include "host/placeholder.h"
#include "image/node_host.h"
#include "image/shown_picture.h"
#include "platform/faults.h"

namespace {

std::uint32_t NextId() {
    static std::uint32_t nLast = 0;
    return ++nLast;
}

/// The union with a companion's bounds.
void Join(CRect& rect, CImgNode* pCompanion) {
    if (!pCompanion) {
        return;
    }
    CRect rcCompanion;
    pCompanion->GetBoundRect(&rcCompanion);
    CRect rcJoined;
    rcJoined.UnionRect(&rect, &rcCompanion);
    rect = rcJoined;
}

int Sum(int a, int b) {
    return static_cast<int>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

int Difference(int a, int b) {
    return static_cast<int>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

/// Truncated, and held within 32 bits.
int Scaled(int nValue, double dScale) {
    const double dValue = nValue * dScale;
    if (!(dValue > -2147483648.0)) {
        return dValue <= -2147483648.0 ? INT32_MIN : 0;
    }
    return dValue < 2147483648.0 ? static_cast<int>(dValue) : INT32_MAX;
}

void FreeBuffer(HBUF32& hBuf) {
    if (hBuf != 0) {
        buf32Free(hBuf);
    }
    hBuf = 0;
}

/// Replaces an owned buffer; handing the same one in keeps it.
void ReplaceBuffer(HBUF32& hOwned, HBUF32 hNew) {
    if (hOwned != hNew) {
        FreeBuffer(hOwned);
    }
    hOwned = hNew;
}

} // namespace

CImgNode::CImgNode(CImgDoc* pDoc) : m_nId(NextId()) {
    CNodeBookkeeping::Enter(*this);
    CNodeBookkeeping::Register(*this, pDoc);
}

CImgNode::~CImgNode() {
    CNodeBookkeeping::Unregister(*this);
    CNodeBookkeeping::Leave(*this);
    FreeBuffer(m_hImage);
    FreeBuffer(m_tx.hMask);
    FreeBuffer(m_hTransSrcImage);
    FreeBuffer(m_hTransSrcMask);
    FreeBuffer(m_hMergeBuf);
    delete m_pFrameParam;
}

void CImgNode::GetBoundRect(CRect* pRect) {
    if (pRect) {
        *pRect = CNodeBookkeeping::NodeRect(*this);
    }
}

void CImgNode::GetBoundRectEx(CRect* pRect) {
    if (!pRect) {
        return;
    }
    GetBoundRect(pRect);
    Join(*pRect, m_pFrameNode);
    Join(*pRect, m_pShadowNode);
}

void CImgNode::Move(int nDx, int nDy) {
    m_tx.nX = Sum(m_tx.nX, nDx);
    m_tx.nY = Sum(m_tx.nY, nDy);
    CNodeBookkeeping::PlaceChanged(*this);
}

CImgNode* CImgNode::Duplicate() {
    std::unique_ptr<CImgNode> pCopy(platform::FaultTrips("copy") ? nullptr : new CImgNode(m_pDoc));
    if (!pCopy || !CNodeBookkeeping::CopyFields(*this, *pCopy)) {
        return nullptr;
    }
    return pCopy.release();
}

CImgNode* CImgNode::m_fnDuplicateImageNode() { return Duplicate(); }

CImgNode* CImgNode::m_fnDuplicateImageNode(double dScale) {
    CImgNode* pCopy = m_fnDuplicateImageNode();
    if (!pCopy) {
        return nullptr;
    }
    pCopy->m_tx.nX = Scaled(m_tx.nX, dScale);
    pCopy->m_tx.nY = Scaled(m_tx.nY, dScale);
    pCopy->m_tx.nWidth = Scaled(m_tx.nWidth, dScale);
    pCopy->m_tx.nHeight = Scaled(m_tx.nHeight, dScale);
    return pCopy;
}

void CImgNode::m_fnResize(const CRect& rect) {
    const bool bOffset = m_tx.nOffsetFlag == 1;
    m_tx.nX = bOffset ? Difference(rect.left, m_tx.nOffsetX) : rect.left;
    m_tx.nY = bOffset ? Difference(rect.top, m_tx.nOffsetY) : rect.top;
    m_tx.nWidth = Difference(rect.right, rect.left);
    m_tx.nHeight = Difference(rect.bottom, rect.top);
    CNodeBookkeeping::PlaceChanged(*this);
}

int CImgNode::NodeInRect(CRect& rect) {
    CRect rcNode;
    GetBoundRect(&rcNode);
    CRect rcCommon;
    return rcCommon.IntersectRect(&rcNode, &rect) != FALSE;
}

int CImgNode::PtInMask(CPoint point) {
    CRect rcNode;
    GetBoundRect(&rcNode);
    if (!rcNode.PtInRect(point)) {
        return 0;
    }
    const buffer_host::View mask = CShownPicture::Of(*this).mask;
    if (!mask.pixels) {
        return 1;
    }
    const std::int64_t nWidth = std::int64_t{rcNode.right} - rcNode.left;
    const std::int64_t nHeight = std::int64_t{rcNode.bottom} - rcNode.top;
    const std::int64_t x = (std::int64_t{point.x} - rcNode.left) * mask.width / nWidth;
    const std::int64_t y = (std::int64_t{point.y} - rcNode.top) * mask.height / nHeight;
    return mask.Row(static_cast<int>(y))[x] != 0;
}

void CImgNode::DrawMarquee(CDC* pDC) {
    CRect rcNode;
    GetBoundRect(&rcNode);
    if (!pDC || rcNode.IsRectEmpty()) {
        return;
    }
    pDC->MoveTo(rcNode.left, rcNode.top);
    pDC->LineTo(rcNode.right - 1, rcNode.top);
    pDC->LineTo(rcNode.right - 1, rcNode.bottom - 1);
    pDC->LineTo(rcNode.left, rcNode.bottom - 1);
    pDC->LineTo(rcNode.left, rcNode.top);
}

int CImgNode::IsShadowNode() const { return m_nType == node_type::Shadow && m_pOwner; }

int CImgNode::IsFrameNode() const { return m_nType == node_type::Frame && m_pOwner; }

CRect CImgNode::m_fnGetBoundRectWithFrame() {
    CRect rect;
    GetBoundRect(&rect);
    Join(rect, m_pFrameNode);
    return rect;
}

int CImgNode::m_fnUpdateBCAndT(int nBrightness, int nContrast, int nTransparency) {
    if (platform::FaultTrips("display-values")) {
        return 0;
    }
    m_nBrightness = nBrightness;
    m_nContrast = nContrast;
    m_nTransparency = nTransparency;
    CNodeBookkeeping::PlaceChanged(*this);
    return 1;
}

void CImgNode::GetOrthogonalWH(double* pdWidth, double* pdHeight) const {
    if (pdWidth) {
        *pdWidth = m_tx.nWidth;
    }
    if (pdHeight) {
        *pdHeight = m_tx.nHeight;
    }
}

CTxParam CImgNode::GetLastTrans() const { return m_tx; }

void CImgNode::SetLastTrans(CTxParam& param) {
    m_tx = param;
    CNodeBookkeeping::PlaceChanged(*this);
}

int CImgNode::SetImage(HBUF32 hImage, HBUF32 hMask, int nX, int nY, int /*nReserved*/) {
    const buffer_host::View image = buffer_host::Look(hImage);
    const buffer_host::View mask = buffer_host::Look(hMask);
    if (!image.pixels || image.unit != 3) {
        return 0;
    }
    if (hMask != 0 && (!mask.pixels || mask.unit != 1)) {
        return 0;
    }
    ReplaceBuffer(m_hImage, hImage);
    ReplaceBuffer(m_tx.hMask, hMask);
    m_tx.nX = nX;
    m_tx.nY = nY;
    m_tx.nWidth = image.width;
    m_tx.nHeight = image.height;
    CNodeBookkeeping::PlaceChanged(*this);
    return 1;
}

void CImgNode::SetTransSrcImg(HBUF32 hImage) {
    ReplaceBuffer(m_hTransSrcImage, hImage);
    CNodeBookkeeping::PlaceChanged(*this);
}

void CImgNode::SetTransSrcMask(HBUF32 hMask) {
    ReplaceBuffer(m_hTransSrcMask, hMask);
    CNodeBookkeeping::PlaceChanged(*this);
}

void CImgNode::m_fnRemoveMergeBuf() { FreeBuffer(m_hMergeBuf); }

CRect CImgNode::m_fnGetPlaceHolderRect() {
    const bool bFramed = m_pFrameNode && !m_rcFrame.IsRectEmpty();
    CRect rcOnPage;
    (bFramed ? m_pFrameNode : this)->GetBoundRect(&rcOnPage);
    return bFramed ? MapPlaceHolder(m_rcFrame, m_rcPlaceHolder, rcOnPage) : rcOnPage;
}
