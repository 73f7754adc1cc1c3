#include "frames/frame_place.h"

#include "ops/saturate.h"

namespace {

CRect RectOf(const CImgNode& node) {
    return CRect(CPoint(node.m_tx.nX, node.m_tx.nY), CSize(node.m_tx.nWidth, node.m_tx.nHeight));
}

// An empty rectangle has no scale; what it frames keeps its size.
double ScaleOf(int nPage, int nComponent) {
    return nComponent > 0 ? static_cast<double>(nPage) / nComponent : 1.0;
}

int Mapped(int nOrigin, int nOffset, double dScale) {
    return Saturated(static_cast<long long>(nOrigin) + Truncated(nOffset * dScale));
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
    const CRect rcPage = RectOf(*object.m_pFrameNode);
    const CRect& rcFrame = object.m_rcFrame;
    const CRect& rcInner = object.m_rcPlaceHolder;
    const double dX = ScaleOf(rcPage.Width(), rcFrame.Width());
    const double dY = ScaleOf(rcPage.Height(), rcFrame.Height());
    const CPoint ptCorner(Mapped(rcPage.left, rcInner.left - rcFrame.left, dX),
                          Mapped(rcPage.top, rcInner.top - rcFrame.top, dY));
    return CRect(ptCorner, CSize(Truncated(rcInner.Width() * dX), Truncated(rcInner.Height() * dY)));
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
