#include "host/text_node.h"

#include <cstring>
#include <memory>
#include <new>

#include "image/node_host.h"
#include "platform/faults.h"

CTextNode::CTextNode(CImgDoc* pDoc) : CImgNode(pDoc) { m_nType = node_type::Text; }

CTextNode::~CTextNode() = default;

int CTextNode::PtInMask(CPoint point) {
    CRect rcNode;
    GetBoundRect(&rcNode);
    return rcNode.PtInRect(point) != FALSE;
}

CImgNode* CTextNode::Duplicate() {
    std::unique_ptr<CTextNode> pCopy(
        platform::FaultTrips("copy") ? nullptr : new CTextNode(CNodeBookkeeping::DocumentOf(*this)));
    if (pCopy == nullptr || !CNodeBookkeeping::CopyFields(*this, *pCopy))
        return nullptr;
    pCopy->m_nFontSize = m_nFontSize;
    pCopy->m_nBold = m_nBold;
    pCopy->m_nItalic = m_nItalic;
    pCopy->m_nUnderline = m_nUnderline;
    pCopy->m_nAlignment = m_nAlignment;
    pCopy->m_crText = m_crText;
    pCopy->m_strText = m_strText;
    pCopy->m_strFontName = m_strFontName;
    return pCopy.release();
}

CImgNode* CTextNode::m_fnDuplicateImageNode() { return Duplicate(); }

void CTextNode::m_fnGetText(CString& strText) const {
    CString strJoined;
    const int nLength = m_strText.GetLength();
    for (int i = 0; i < nLength; ++i) {
        const char ch = m_strText[i];
        // A line may end by CR LF, LF or CR.
        if (ch == '\r' && i + 1 < nLength && m_strText[i + 1] == '\n')
            continue;
        strJoined += ch == '\r' ? '\n' : ch;
    }
    strText = strJoined;
}

char* CTextNode::CloneFontName() const {
    const std::size_t nBytes = static_cast<std::size_t>(m_strFontName.GetLength()) + 1;
    char* pszName = new (std::nothrow) char[nBytes];
    if (pszName != nullptr)
        std::memcpy(pszName, static_cast<LPCSTR>(m_strFontName), nBytes);
    return pszName;
}
