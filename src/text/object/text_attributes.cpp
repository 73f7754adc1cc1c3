#include "text/object/text_attributes.h"

#include <memory>

#include "ops/saturate.h"

CTextNode* AsText(CImgNode* pNode) {
    return pNode && pNode->m_nType == node_type::Text ? static_cast<CTextNode*>(pNode) : nullptr;
}

CString TextOf(const CTextNode& node) {
    CString strText;
    node.m_fnGetText(strText);
    return strText;
}

bool ReadFontName(const CTextNode& node, CString& strName) {
    const std::unique_ptr<char[]> pName(node.CloneFontName());
    strName = pName.get();
    return pName != nullptr;
}

bool ReadAttributes(const CTextNode& node, TextAttributes& attributes) {
    attributes.nPixelSize = node.m_nFontSize;
    attributes.nAlignment = AlignmentIndexOf(node);
    attributes.nStyle = StyleBitsOf(node);
    attributes.crText = node.m_crText;
    return ReadFontName(node, attributes.strFontName);
}

CSize SizeOf(const CImgNode& node) { return CSize(node.m_tx.nWidth, node.m_tx.nHeight); }

CPoint CornerOf(const CImgNode& node) { return CPoint(node.m_tx.nX, node.m_tx.nY); }

void MoveCornerTo(CImgNode& node, CPoint ptCorner) {
    const CSize delta = ptCorner - CornerOf(node);
    node.Move(delta.cx, delta.cy);
}

void KeepWidth(CImgNode& node, CSize before) {
    const CSize after = SizeOf(node);
    if (after == before || before.cx == 0 || after.cx == 0) {
        return;
    }
    const double dScale = static_cast<double>(before.cx) / after.cx;
    node.m_fnResize(CRect(CornerOf(node), CSize(Truncated(after.cx * dScale), Truncated(after.cy * dScale))));
}

void CopyEffect(CTextNode& node, const CTextNode& other) {
    const CSize before = SizeOf(node);
    node.m_fnCopyTextEffectFrom(&other);
    node.m_fnRegenerateTextEffect();
    KeepWidth(node, before);
}
