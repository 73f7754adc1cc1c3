#include "frames/frame_place.h"

#include "host/placeholder.h"
#include "ops/saturate.h"

namespace {

CRect RectOf(const CImgNode& node) {
    return CRect(CPoint(node.m_tx.nX, node.m_tx.nY), CSize(node.m_tx.nWidth, node.m_tx.nHeight));
}

// The object's own empty frame is its component.
void FollowFrame(CImgNode& object) {
    if (object.m_nFrameFollows == 1) {
        object.m_rcFrame = RectOf(*object.m_pFrameNode);
        object.m_rcPlaceHolder = object.m_rcFrame;
    }
}

} // namespace

CRect PlaceHolderOnPage(const CImgNode& object) {
    CRect rcOnPage;
    object.m_pFrameNode->GetBoundRect(&rcOnPage);
    return MapPlaceHolder(object.m_rcFrame, object.m_rcPlaceHolder, rcOnPage);
}

void CenterFrame(CImgNode& object) {
    if (!object.m_pFrameNode) {
        return;
    }
    CRect rcObject;
    object.GetBoundRect(&rcObject);
    const CSize delta = rcObject.CenterPoint() - PlaceHolderOnPage(object).CenterPoint();
    object.m_pFrameNode->Move(delta.cx, delta.cy);
    FollowFrame(object);
}

void ScaleFrame(CImgNode& object, int nOldHeight, int nNewHeight) {
    if (!object.m_pFrameNode) {
        return;
    }
    const double dScale =
        nOldHeight > 0 && nNewHeight > 0 ? static_cast<double>(nNewHeight) / nOldHeight : 1.0;
    if (dScale != 1.0) {
        const CRect rcPage = RectOf(*object.m_pFrameNode);
        object.m_pFrameNode->m_fnResize(CRect(rcPage.TopLeft(), CSize(Truncated(rcPage.Width() * dScale),
                                                                      Truncated(rcPage.Height() * dScale))));
    }
    CenterFrame(object);
}

FrameLink FrameLinkOf(const CImgNode& object) {
    return {object.m_pFrameNode, object.m_rcFrame, object.m_rcPlaceHolder, object.m_nFrameFollows,
            object.m_nPlaceHolderMode};
}

void RestoreFrameLink(CImgNode& object, const FrameLink& link) {
    object.m_pFrameNode = link.pFrame;
    object.m_nPlaceHolderMode = link.nPlaceHolderMode;
    if (link.pFrame) {
        link.pFrame->m_pOwner = &object;
        object.m_rcFrame = link.rcFrame;
        object.m_rcPlaceHolder = link.rcPlaceHolder;
        object.m_nFrameFollows = link.nFollows;
    }
}
