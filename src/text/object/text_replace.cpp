// Putting a rebuilt text object into the place of the old one.
#include <memory>

#include "frames/frame_place.h"
#include "ops/refresh.h"
#include "text/object/text_attributes.h"
#include "tools/tool_core.h"

namespace {

// A companion is never replaced.
bool IsReplaceable(CTextNode* pNode) { return AsText(pNode) && !pNode->m_pOwner; }

void CenterOn(CImgNode& node, const CRect& rc) {
    node.Move((rc.Width() - node.m_tx.nWidth) / 2 - node.m_tx.nX + rc.left,
              (rc.Height() - node.m_tx.nHeight) / 2 - node.m_tx.nY + rc.top);
}

} // namespace

void CToolCore::AddMarkArea(CImgNode* pNode, CRefresh& refresh) {
    CRect rc(0, 0, 0, 0);
    GetNodeMarkArea(pNode, &rc);
    refresh.Add(rc);
}

int CToolCore::ReplaceTextNode(CTextNode* pOld, CTextNode* pRebuilt, int nRedraw) {
    if (!IsReplaceable(pOld) || !IsReplaceable(pRebuilt) || pOld == pRebuilt) {
        return 0;
    }
    CRefresh refresh;
    AddMarkArea(pOld, refresh);
    const FrameLink frame = FrameLinkOf(*pOld);
    CImgNode* const pShadow = pOld->m_pShadowNode;
    CRect rcOld;
    pOld->GetBoundRect(&rcOld);
    CenterOn(*pRebuilt, rcOld);
    pRebuilt->m_rcFrame = pOld->m_rcFrame;
    pRebuilt->m_rcPlaceHolder = pOld->m_rcPlaceHolder;
    pRebuilt->m_shadow = pOld->m_shadow;

    pOld->m_fnMoveMemberDataFrom(pRebuilt);
    delete pRebuilt;
    pOld->m_pShadowNode = nullptr;
    pOld->m_pFrameNode = nullptr;
    RestoreFrameLink(*pOld, frame);
    CenterFrame(*pOld);
    if (pShadow) {
        delete pShadow;
        m_fnCreateShadow(pOld, pOld->m_shadow);
    }
    KeepNodeInView(pOld);
    AddMarkArea(pOld, refresh);
    ShowReplaced(refresh.Area(), nRedraw);
    return 1;
}

void CToolCore::ShowReplaced(const CRect& rcArea, int nRedraw) {
    FlushViewRect(&rcArea);
    if (nRedraw == 1) {
        ShowSelectionMarks(1);
    }
    RedrawRect(&rcArea);
    CCanvas canvas(*this);
    if (nRedraw == 1 && canvas) {
        const CRect rcClient = canvas.ClientRect();
        RedrawRect(&rcClient);
    }
}

int CToolCore::RebuildTextNodeInPlace(CTextNode* pOld, CTextNode* pRebuilt, int nRedraw) {
    if (!IsReplaceable(pOld) || !IsReplaceable(pRebuilt)) {
        return 0;
    }
    if (SizeOf(*pOld) != SizeOf(*pRebuilt)) {
        const std::unique_ptr<CTextNode> pFresh(m_fnCreateTextLike(*pRebuilt));
        if (!pFresh) {
            return 0;
        }
        KeepWidth(*pRebuilt, SizeOf(*pFresh));
    }
    return ReplaceTextNode(pOld, pRebuilt, nRedraw);
}

CTextNode* CToolCore::RecolorTextNode(CTextNode* pNode, COLORREF crColor) {
    TextAttributes attributes;
    if (!AsText(pNode) || pNode->m_crText == crColor || TextOf(*pNode).IsEmpty() ||
        !ReadAttributes(*pNode, attributes)) {
        return nullptr;
    }
    attributes.crText = crColor;
    std::unique_ptr<CTextNode> pRebuilt(m_fnCreateText(TextOf(*pNode), attributes));
    if (!pRebuilt) {
        return nullptr;
    }
    pRebuilt->m_fnCopyTextEffectFrom(pNode);
    pRebuilt->m_fnRegenerateTextEffect();
    if (!CopyDisplayValues(*pRebuilt, *pNode) || !RebuildTextNodeInPlace(pNode, pRebuilt.get(), 1)) {
        return nullptr;
    }
    pRebuilt.release();
    return pNode;
}

// It was shown round the old text's middle, which is repainted here: callers know its last place alone.
void CToolCore::MoveRebuilt(CTextNode& node, CPoint ptCorner) {
    CRefresh refresh;
    AddMarkArea(&node, refresh);
    m_fnOffsetObject(&node, ptCorner - node.m_fnGetBoundRectWithFrame().TopLeft());
    FlushViewRect(&refresh.Area());
    RedrawRect(&refresh.Area());
}

int CToolCore::m_fnRebuildTextAtSize(CImgNode* pNode, int nPixelSize, const CPoint* pptCorner) {
    CTextNode* const pText = AsText(pNode);
    TextAttributes attributes;
    if (!pText) {
        return 0;
    }
    if (pText->m_nFontSize == nPixelSize) {
        return 1;
    }
    CWaitCursor wait;
    if (!ReadAttributes(*pText, attributes)) {
        return 0;
    }
    attributes.nPixelSize = nPixelSize;
    std::unique_ptr<CTextNode> pRebuilt(m_fnCreateText(TextOf(*pText), attributes));
    if (!pRebuilt) {
        return 0;
    }
    pRebuilt->m_fnCopyTextEffectFrom(pText);
    pRebuilt->m_fnRegenerateTextEffect();
    CopyDisplayValues(*pRebuilt, *pText);
    const CShadowParam shadow = pText->m_shadow;
    if (!ReplaceTextNode(pText, pRebuilt.get(), 0)) {
        return 0;
    }
    pRebuilt.release();
    if (pptCorner) {
        MoveRebuilt(*pText, *pptCorner);
    }
    if (pText->m_pShadowNode) {
        pText->m_shadow = shadow;
        m_fnRegenerateShadow(pText);
    }
    return 1;
}
