#include "host/text_node.h"

#include <cstring>
#include <memory>
#include <new>
#include <utility>

#include "buffer/buffer_host.h"
#include "host/frame_param.h"
#include "host/text_engine.h"
#include "image/node_host.h"
#include "platform/faults.h"
#include "text/text_effect.h"

namespace {

/// Takes a buffer over from another owner and frees what was there.
void MoveBuffer(HBUF32& hFrom, HBUF32& hTo) { CBufferPtr(std::exchange(hTo, std::exchange(hFrom, 0))); }

/// The companion follows the object that it is linked to.
void MoveCompanion(CImgNode*& pFrom, CImgNode*& pTo, const CImgNode* pOldOwner, CImgNode* pNewOwner) {
    pTo = std::exchange(pFrom, nullptr);
    if (pTo && pTo->m_pOwner == pOldOwner) {
        pTo->m_pOwner = pNewOwner;
    }
}

void CopyText(const CTextNode& from, CTextNode& to) {
    to.m_nFontSize = from.m_nFontSize;
    to.m_nBold = from.m_nBold;
    to.m_nItalic = from.m_nItalic;
    to.m_nUnderline = from.m_nUnderline;
    to.m_nAlignment = from.m_nAlignment;
    to.m_crText = from.m_crText;
    to.m_strText = from.m_strText;
    to.m_strFontName = from.m_strFontName;
}

} // namespace

CTextNode::CTextNode(CImgDoc* pDoc) : CImgNode(pDoc) { m_nType = node_type::Text; }

CTextNode::~CTextNode() { CTextEffectState::Reset(*this); }

int CTextNode::PtInMask(CPoint point) {
    CRect rcNode;
    GetBoundRect(&rcNode);
    return rcNode.PtInRect(point) != FALSE;
}

CImgNode* CTextNode::Duplicate() {
    std::unique_ptr<CTextNode> pCopy(
        platform::FaultTrips("copy") ? nullptr : new CTextNode(CNodeBookkeeping::DocumentOf(*this)));
    if (!pCopy || !CNodeBookkeeping::CopyFields(*this, *pCopy) || !CTextEffectState::Copy(*this, *pCopy)) {
        return nullptr;
    }
    CopyText(*this, *pCopy);
    return pCopy.release();
}

CImgNode* CTextNode::m_fnDuplicateImageNode() { return Duplicate(); }

void CTextNode::m_fnGetText(CString& strText) const {
    CString strJoined;
    const int nLength = m_strText.GetLength();
    for (int i = 0; i < nLength; ++i) {
        const char ch = m_strText[i];
        const bool bBreak = ch == '\r' || ch == '\n';
        strJoined += bBreak ? '\n' : ch;
        // A line may end by one of the two, or by both in either order.
        if (bBreak && i + 1 < nLength && m_strText[i + 1] == ('\r' ^ '\n' ^ ch)) {
            ++i;
        }
    }
    strText = strJoined;
}

char* CTextNode::CloneFontName() const {
    const std::size_t nBytes = static_cast<std::size_t>(m_strFontName.GetLength()) + 1;
    char* pszName = new (std::nothrow) char[nBytes];
    if (pszName) {
        std::memcpy(pszName, static_cast<LPCSTR>(m_strFontName), nBytes);
    }
    return pszName;
}

void CTextNode::m_fnAssign(textObject& object) {
    if (!SetImage(object.m_hImage, object.m_hMask, object.m_ptOrigin.x, object.m_ptOrigin.y, 0)) {
        return;
    }
    object.m_hImage = object.m_hMask = 0;
    CBufferPtr(std::exchange(m_hTransSrcImage, 0));
    CBufferPtr(std::exchange(m_hTransSrcMask, 0));
    CTextEffectState::Reset(*this);
    m_nFontSize = std::exchange(object.m_nFontSize, 0);
    m_nBold = std::exchange(object.m_nBold, 0);
    m_nItalic = std::exchange(object.m_nItalic, 0);
    m_nUnderline = std::exchange(object.m_nUnderline, 0);
    m_nAlignment = std::exchange(object.m_nAlignment, 0);
    m_crText = std::exchange(object.m_crText, 0);
    m_strText = std::exchange(object.m_strText, CString());
    m_strFontName = std::exchange(object.m_strFontName, CString());
}

void CTextNode::m_fnMoveMemberDataFrom(CTextNode* pOther) {
    if (!pOther || pOther == this) {
        return;
    }
    MoveBuffer(pOther->m_hImage, m_hImage);
    MoveBuffer(pOther->m_tx.hMask, m_tx.hMask);
    MoveBuffer(pOther->m_hTransSrcImage, m_hTransSrcImage);
    MoveBuffer(pOther->m_hTransSrcMask, m_hTransSrcMask);
    MoveBuffer(pOther->m_hMergeBuf, m_hMergeBuf);
    delete std::exchange(m_pFrameParam, std::exchange(pOther->m_pFrameParam, nullptr));
    const HBUF32 hMask = m_tx.hMask;
    m_tx = pOther->m_tx;
    m_tx.hMask = hMask;
    CNodeBookkeeping::CopyValues(*pOther, *this);
    CopyText(*pOther, *this);
    CTextEffectState::Move(*pOther, *this);
    m_pOwner = std::exchange(pOther->m_pOwner, nullptr);
    MoveCompanion(pOther->m_pFrameNode, m_pFrameNode, pOther, this);
    MoveCompanion(pOther->m_pShadowNode, m_pShadowNode, pOther, this);
    CNodeBookkeeping::PlaceChanged(*this);
    CNodeBookkeeping::PlaceChanged(*pOther);
}
