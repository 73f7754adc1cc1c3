// Giving one object the look of another.
#include <memory>
#include <utility>

#include "frames/frame_place.h"
#include "text/object/text_attributes.h"
#include "tools/tool_core.h"

namespace {

void DropCompanions(CImgNode& node) {
    delete std::exchange(node.m_pShadowNode, nullptr);
    delete std::exchange(node.m_pFrameNode, nullptr);
}

// A copy of the source's frame in front of the target, or at the head when that is off the page. It becomes
// the target's own only when linked. Null when there is no frame or no memory for it.
CImgNode* CopyFrameFor(CImgNode& target, const CImgNode& source, CImgNodeList& objects) {
    CImgNode* const pCopy = source.m_pFrameNode ? source.m_pFrameNode->m_fnDuplicateImageNode() : nullptr;
    if (!pCopy) {
        return nullptr;
    }
    pCopy->m_pOwner = &target;
    if (POSITION position = objects.Find(&target)) {
        objects.InsertBefore(position, pCopy);
    } else {
        objects.AddHead(pCopy);
    }
    return pCopy;
}

CPoint MiddleOf(CImgNode& node) {
    CRect rc;
    node.GetBoundRect(&rc);
    return rc.CenterPoint();
}

// The frame lies to the target as the source's does to the source.
void LinkFrame(CImgNode& target, CImgNode* pFrame, CImgNode& source) {
    if (!pFrame) {
        return;
    }
    const CSize delta = MiddleOf(target) - MiddleOf(source);
    pFrame->Move(delta.cx, delta.cy);
    FrameLink link = FrameLinkOf(source);
    link.pFrame = pFrame;
    RestoreFrameLink(target, link);
}

} // namespace

// The text is made before anything is taken away, so that a failure loses nothing.
int CToolCore::CopyNodeLook(CImgNode* pSource, CImgNode* pTarget) {
    CCanvas canvas(*this);
    if (!pSource || !pTarget || !canvas.HasDocument()) {
        return 0;
    }
    if (pSource == pTarget || pSource->m_nType != pTarget->m_nType) {
        return 1;
    }
    const CPoint ptMiddle = MiddleOf(*pTarget);
    std::unique_ptr<CTextNode> pRebuilt;
    if (const CTextNode* pText = AsText(pSource)) {
        pRebuilt.reset(TextInLookOf(*AsText(pTarget), *pText));
        if (!pRebuilt) {
            return 0;
        }
    }
    const bool bShadow = pSource->m_pShadowNode != nullptr;
    DropCompanions(*pTarget);
    CImgNode* const pFrame = CopyFrameFor(*pTarget, *pSource, canvas.Objects());
    if (pRebuilt) {
        TakeTextLook(*AsText(pTarget), *pRebuilt, *AsText(pSource));
    } else {
        m_fnResizeObject(pTarget, CRect(CornerOf(*pTarget), SizeOf(*pSource)));
    }
    LinkFrame(*pTarget, pFrame, *pSource);
    if (!CopyDisplayValues(*pTarget, *pSource) ||
        (bShadow && !m_fnCreateShadow(pTarget, pSource->m_shadow))) {
        return 0;
    }
    m_fnOffsetObject(pTarget, ptMiddle - MiddleOf(*pTarget));
    KeepNodeInView(pTarget);
    OnObjectHook(pTarget);
    return 1;
}

// The target's own text with the source's attributes; null when it cannot be made.
CTextNode* CToolCore::TextInLookOf(const CTextNode& target, const CTextNode& source) {
    TextAttributes attributes;
    return ReadAttributes(source, attributes) ? m_fnCreateText(TextOf(target), attributes) : nullptr;
}

void CToolCore::TakeTextLook(CTextNode& target, CTextNode& rebuilt, const CTextNode& source) {
    const CPoint ptCorner = CornerOf(target);
    const CShadowParam shadow = target.m_shadow;
    const FrameLink frame = FrameLinkOf(target);
    target.m_fnMoveMemberDataFrom(&rebuilt);
    target.m_shadow = shadow;
    RestoreFrameLink(target, frame);
    MoveCornerTo(target, ptCorner);
    CopyEffect(target, source);
}
