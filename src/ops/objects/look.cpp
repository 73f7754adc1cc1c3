#include "ops/objects/look.h"

#include <memory>

#include "frames/frame_place.h"
#include "ops/canvas.h"
#include "ops/groups.h"
#include "ops/objects/offset.h"
#include "ops/objects/resize.h"
#include "shadows/shadow_build.h"
#include "text/object/text_build.h"
#include "text/object/text_place.h"

namespace {

// A copy of the source's frame in front of the target, or at the head when that is off the page. It becomes
// the target's own only when linked. Null when there is no frame or no memory for it.
CImgNode* CopyFrameFor(CImgNode& target, const CImgNode& source, CImgNodeList& objects) {
    CImgNode* const pCopy = source.m_pFrameNode ? source.m_pFrameNode->m_fnDuplicateImageNode() : nullptr;
    if (!pCopy) {
        return nullptr;
    }
    pCopy->m_pOwner = &target;
    if (POSITION place = objects.Find(&target)) {
        objects.InsertBefore(place, pCopy);
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

void TakeTextLook(CTool& tool, CTextNode& target, CTextNode& rebuilt, const CTextNode& source) {
    const CPoint ptCorner = CornerOf(target);
    TakePlace(tool, target, rebuilt, {FrameRule::Kept, ShadowRule::Kept, DisplayRule::FromRebuilt});
    MoveCornerTo(target, ptCorner);
    CopyEffect(target, source);
}

// The target has lost its own companions; the source's stand in their places afterwards.
bool TakeLook(CTool& tool, const CCanvas& canvas, CImgNode& target, CImgNode& source, CTextNode* pRebuilt) {
    const bool bShadow = source.m_pShadowNode != nullptr;
    FreeCompanion(canvas, target.m_pShadowNode);
    FreeCompanion(canvas, target.m_pFrameNode);
    CImgNode* const pFrame = CopyFrameFor(target, source, canvas.Objects());
    if (pRebuilt) {
        TakeTextLook(tool, *AsText(&target), *pRebuilt, *AsText(&source));
    } else {
        ResizeObject(tool, &target, CRect(CornerOf(target), SizeOf(source)));
    }
    LinkFrame(target, pFrame, source);
    return CopyDisplayValues(target, source) && (!bShadow || CreateShadow(tool, &target, source.m_shadow));
}

} // namespace

// The text is made before anything is taken away, so that a failure loses nothing.
int look::CopyNodeLook(CTool& tool, CImgNode* pSource, CImgNode* pTarget) {
    const CCanvas canvas(tool);
    if (!pSource || !pTarget || !canvas.HasDocument()) {
        return 0;
    }
    if (pSource == pTarget || pSource->m_nType != pTarget->m_nType) {
        return 1;
    }
    const CPoint ptMiddle = MiddleOf(*pTarget);
    std::unique_ptr<CTextNode> pRebuilt;
    if (const CTextNode* pText = AsText(pSource)) {
        pRebuilt = BuildPlainText(tool, *pText, TextOf(*AsText(pTarget)));
        if (!pRebuilt) {
            return 0;
        }
    }
    if (!TakeLook(tool, canvas, *pTarget, *pSource, pRebuilt.get())) {
        return 0;
    }
    OffsetObject(pTarget, ptMiddle - MiddleOf(*pTarget));
    tool.KeepNodeInView(pTarget);
    tool.OnObjectHook(pTarget);
    return 1;
}
